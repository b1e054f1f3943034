#include "model/advice.h"

#include "catalogue/tiers.h"

#include <algorithm>

namespace Hesperin {

std::int16_t AdviseTier(double power) {
    const auto* band = std::lower_bound(BandEnds.begin(), BandEnds.end(), power);
    return static_cast<std::int16_t>(1 + std::distance(BandEnds.begin(), band));
}

Advice AdviseOn(const Parameters& parameters, double powerAverage) {
    const auto tier = static_cast<std::size_t>(parameters.Tier);
    const std::int16_t reference =
        parameters.UpgradeFactor == PlainFactor ? TierPower[tier] : TierPowerUpgraded[tier];
    return {reference, static_cast<float>(powerAverage / reference), AdviseTier(powerAverage)};
}

} // namespace Hesperin
