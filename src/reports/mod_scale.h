#pragma once

#include "catalogue/results.h"
#include "model/creature.h"

#include <QStringList>

#include <array>
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

    /// The number of creatures behind it.
    std::size_t CountOf(std::int16_t tier, Figure figure) const;

    /// The tiers that have a scale of Power, rising.
    std::vector<std::int16_t> KnownTiers() const;

private:
    static constexpr std::size_t Tiers = 9; // 1 to 8

    const std::vector<double>* RatiosOf(std::int16_t tier, Figure figure) const;

    std::array<std::array<std::vector<double>, Tiers>, static_cast<std::size_t>(Figure::Count)>
        ratios;
};

} // namespace Hesperin
