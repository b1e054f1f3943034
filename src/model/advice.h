#pragma once

#include "model/formulas.h"

namespace Hesperin {

/// How a creature's average Power stands to its tier.
struct Advice {
    std::int16_t TierReferencePower = 0; ///< of the tier, plain or upgraded
    float PowerRatio = 0;                ///< average Power to that
    std::int16_t AdvisedTier = 0;        ///< 1 to 8

    bool operator==(const Advice&) const = default;
};

/// The tier, 1 to 8, that the bands of Power advise. They take no account of the upgrade.
std::int16_t AdviseTier(double power);

Advice AdviseOn(const Parameters& parameters, double powerAverage);

} // namespace Hesperin
