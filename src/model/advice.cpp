#include "model/advice.h"

#include "catalogue/tiers.h"

#include <algorithm>
#include <limits>

namespace Hesperin {

namespace {

template <typename Record>
Advice AdviceWith(Record&& record, const Parameters& parameters, double powerAverage) {
    const auto tier = static_cast<std::size_t>(parameters.Tier);
    const bool plain = parameters.UpgradeFactor == PlainFactor;

    Advice advice;
    const auto average = record.Known("power_average", powerAverage);
    const auto reference = record.Step("tier_reference_power", advice.TierReferencePower,
                                       plain ? TierPower[tier] : TierPowerUpgraded[tier]);
    record.Step("power_ratio", advice.PowerRatio, CutTo32Bits(average / reference));
    record.Step("advised_tier", advice.AdvisedTier, AdviseTier(powerAverage));
    return advice;
}

} // namespace

std::int16_t AdviseTier(double power) {
    const auto* band = std::lower_bound(BandEnds.begin(), BandEnds.end(), power);
    return static_cast<std::int16_t>(1 + std::distance(BandEnds.begin(), band));
}

Advice AdviseOn(const Parameters& parameters, double powerAverage) {
    return AdviceWith(Unrecorded{}, parameters, powerAverage);
}

Advice AdviseOn(const Parameters& parameters, double powerAverage, Record& record) {
    return AdviceWith(record, parameters, powerAverage);
}

PowerBand BandOf(std::int16_t tier) {
    const auto band = static_cast<std::size_t>(tier - 1);
    return {band == 0 ? 1 : BandEnds[band - 1] + 1,
            band < BandEnds.size() ? BandEnds[band] : std::numeric_limits<double>::infinity()};
}

} // namespace Hesperin
