#pragma once

#include "engine/program.h"

namespace Hesperin {

/// The tier, 1 to 8, that the bands of Power advise. They take no account of the upgrade.
std::int16_t AdviseTier(double power);

/// The beginning of the advice: to increase the tier when `current` is less than `advised`, else to
/// lower it.
const QString& TierAdvicePrefix(const SharedState& state, std::int16_t current,
                                std::int16_t advised);

/// Compares the stored PowerAverage with the bands; shows MsgIncreaseTier or MsgLowerTier as an
/// information box when they advise another tier than the creature's.
void AdviseOnTier(Program& program);

} // namespace Hesperin
