#pragma once

#include "catalogue/enum_array.h"
#include "catalogue/results.h"
#include "catalogue/tiers.h"
#include "text/error.h"

#include <array>
#include <optional>
#include <vector>

namespace Hesperin {

/// How the figures of a mod's files stand to the computed ones: the scale of a figure in a tier is
/// the median of computed average to the file's figure over the mod's creatures of that tier (their
/// own CreatureTier) where both are above 0.
class ModScale {
public:
    /// Passes over a tier that the game hasn't, and values of 0 or less.
    void Add(std::int16_t tier, Figure figure, double average, double inFile);

    /// None when no creature of the tier has the figure.
    std::optional<double> Of(std::int16_t tier, Figure figure) const;

    /// A computed figure divided by its scale, to the nearest whole number. Without a scale the
    /// error (NoScale) names the tier and `element`.
    Result<double> Scaled(double computed, std::int16_t tier, Figure figure,
                          const QString& element) const;

    /// That error.
    static Error NoScale(const QString& tier, const QString& element);

    /// The number of creatures behind it.
    std::size_t CountOf(std::int16_t tier, Figure figure) const;

    /// The tiers that have a scale of Power, rising.
    std::vector<std::int16_t> KnownTiers() const;

private:
    const std::vector<double>* RatiosOf(std::int16_t tier, Figure figure) const;

    EnumArray<Figure, TierTable<std::vector<double>>> ratios;
};

} // namespace Hesperin
