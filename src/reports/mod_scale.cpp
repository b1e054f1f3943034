#include "reports/mod_scale.h"

#include <algorithm>

namespace Hesperin {

const std::vector<double>* ModScale::RatiosOf(std::int16_t tier, Figure figure) const {
    if (tier < 1 || static_cast<std::size_t>(tier) >= Tiers)
        return nullptr;
    return &ratios[static_cast<std::size_t>(figure)][static_cast<std::size_t>(tier)];
}

void ModScale::Add(std::int16_t tier, Figure figure, double average, double inFile) {
    if (RatiosOf(tier, figure) != nullptr && average > 0 && inFile > 0)
        ratios[static_cast<std::size_t>(figure)][static_cast<std::size_t>(tier)].push_back(average /
                                                                                           inFile);
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

std::size_t ModScale::CountOf(std::int16_t tier, Figure figure) const {
    const auto* known = RatiosOf(tier, figure);
    return known == nullptr ? 0 : known->size();
}

std::vector<std::int16_t> ModScale::KnownTiers() const {
    std::vector<std::int16_t> tiers;
    for (std::int16_t tier = 1; static_cast<std::size_t>(tier) < Tiers; ++tier)
        if (CountOf(tier, Figure::Power) > 0)
            tiers.push_back(tier);
    return tiers;
}

} // namespace Hesperin
