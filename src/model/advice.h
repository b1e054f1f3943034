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

/// The tier that is advised for an average Power, and how that Power compares with the tier's that
/// `parameters` has.
Advice AdviseOn(const Parameters& parameters, double powerAverage);

/// The same, with every step added to `record`.
Advice AdviseOn(const Parameters& parameters, double powerAverage, Record& record);

/// The average Powers, both ends included, that advise a tier.
struct PowerBand {
    double lowest = 1;
    double highest = 0; ///< infinite for tier 8
};

/// The band of a tier from 1 to 8.
PowerBand BandOf(std::int16_t tier);

} // namespace Hesperin
