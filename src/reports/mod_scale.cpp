#include "reports/mod_scale.h"

#include <algorithm>
#include <cmath>

namespace Hesperin {

const std::vector<double>* ModScale::RatiosOf(std::int16_t tier, Figure figure) const {
    if (tier < 1 || tier > HighestTier)
        return nullptr;
    return &ratios[figure][static_cast<std::size_t>(tier)];
}

void ModScale::Add(std::int16_t tier, Figure figure, double average, double inFile) {
    if (RatiosOf(tier, figure) != nullptr && average > 0 && inFile > 0)
        ratios[figure][static_cast<std::size_t>(tier)].push_back(average / inFile);
}

std::optional<double> ModScale::Of(std::int16_t tier, Figure figure) const {
    const auto* known = RatiosOf(tier, figure);
    if (known == nullptr || known->empty())
        return std::nullopt;
    std::vector<double> sorted = *known;
    std::sort(sorted.begin(), sorted.end());
    const std::size_t middle = sorted.size() / 2;
    return sorted.size() % 2 == 1 ? sorted[middle] : (sorted[middle - 1] + sorted[middle]) / 2;
}

Result<double> ModScale::Scaled(double computed, std::int16_t tier, Figure figure,
                                const QString& element) const {
    if (const auto scale = Of(tier, figure))
        return std::round(computed / *scale);
    return NoScale(QString::number(tier), element);
}

Error ModScale::NoScale(const QString& tier, const QString& element) {
    Error error{Error::What::NoScale, tier};
    error.element = element;
    return error;
}

std::size_t ModScale::CountOf(std::int16_t tier, Figure figure) const {
    const auto* known = RatiosOf(tier, figure);
    return known == nullptr ? 0 : known->size();
}

std::vector<std::int16_t> ModScale::KnownTiers() const {
    std::vector<std::int16_t> tiers;
    for (std::int16_t tier = 1; tier <= HighestTier; ++tier)
        if (CountOf(tier, Figure::Power) > 0)
            tiers.push_back(tier);
    return tiers;
}

} // namespace Hesperin
