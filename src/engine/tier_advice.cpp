#include "engine/tier_advice.h"

#include "engine/numbers.h"
#include "engine/tier_tables.h"

#include <algorithm>

namespace Hesperin {

namespace {

/// Highest Power of each tier's band from tier 1 to 7; everything above belongs to tier 8.
constexpr std::array<double, 7> BandEnds{151, 259, 511, 977, 2051, 4696, 6500};

} // namespace

std::int16_t AdviseTier(double power) {
    const auto* band = std::lower_bound(BandEnds.begin(), BandEnds.end(), power);
    return static_cast<std::int16_t>(1 + std::distance(BandEnds.begin(), band));
}

const QString& TierAdvicePrefix(const SharedState& state, std::int16_t current,
                                std::int16_t advised) {
    return current < advised ? state.MsgIncreaseTier : state.MsgLowerTier;
}

void AdviseOnTier(Program& program) {
    SharedState& state = program.state;
    const auto tier = static_cast<std::size_t>(state.Tier);
    state.TierReferencePower =
        state.UpgradeFactor == 1.0F ? TierPower[tier] : TierPowerUpgraded[tier];
    state.PowerRatio = static_cast<float>(state.PowerAverage / state.TierReferencePower);
    state.AdvisedTier = AdviseTier(state.PowerAverage);
    if (state.AdvisedTier != state.Tier)
        program.Warn(BoxIcon::Information, TierAdvicePrefix(state, state.Tier, state.AdvisedTier) +
                                               QString::number(state.Tier) + state.MsgTierTo +
                                               QString::number(state.AdvisedTier));
}

} // namespace Hesperin
