// The balance model as pure functions: from validated parameters to the figures, by two methods.
#pragma once

#include "catalogue/results.h"
#include "model/terms.h"
#include "model/validation.h"

namespace Hesperin {

/// Fixed-point number: counts ten-thousandths.
using FixedPoint = std::int64_t;

/// The exponents of the first method's four factors.
struct Exponents {
    FixedPoint ExponentOffence = 0;
    FixedPoint ExponentDefence = 0;
    FixedPoint ExponentSpeed = 0;
    FixedPoint ExponentInitiative = 0;

    bool operator==(const Exponents&) const = default;
};

/// A shooter's Power leans on offence and initiative, everybody else's on defence and speed.
constexpr Exponents ExponentsFor(bool shooter) {
    return shooter ? Exponents{7000, 3000, 1000, 7500} : Exponents{4000, 6000, 4000, 6000};
}

/// 500 / 16: scale of the damage in the second method.
inline constexpr float DamageScale = 500.0F / 16.0F;

/// The rounding of nearly every figure: 1 below 0.51, 0 from 0.51 up to but not including 1, and
/// from 1 on the value with its fraction cut off.
double WholeValue(double x);

/// The two Powers and the scores behind them.
struct Powers {
    double OffenceScore = 0;  ///< 1.035^Attack × mean damage
    double DefenceScore = 0;  ///< 1.028^Defence × Health
    double PowerRolvane = 0;  ///< whole; 0 is possible, and nothing else can then be computed
    double PowerHesperin = 0; ///< whole

    bool operator==(const Powers&) const = default;
};

/// `parameters` must be validated.
Powers ComputePowers(const Parameters& parameters);

/// The same, with every step added to `record`.
Powers ComputePowers(const Parameters& parameters, Record& record);

/// What follows from the two Powers. With them, all twelve results.
struct Figures {
    double PowerAverage = 0;
    std::int16_t ExpRolvane = 0;
    double ExpHesperin = 0;
    std::int16_t ExpAverage = 0;
    std::int16_t GrowthNumerator = 0; ///< growth numerator of the first method at this tier
    std::int16_t GrowthRolvane = 0;
    std::int16_t GrowthHesperin = 0;
    std::int16_t GrowthAverage = 0;
    std::int16_t GoldBaseNow = 0; ///< GoldBase at this tier
    double CostRolvane = 0;
    double CostDivisor = 0; ///< the second method's growth before it is halved; the s of its cost
    double CostHesperin = 0;
    double CostAverage = 0;

    bool operator==(const Figures&) const = default;
};

/// `powers.PowerRolvane` must not be 0. The second method's Growth and Cost lean on the first
/// method's Power, and the first method's Cost on both.
Figures ComputeFigures(const Parameters& parameters, const Powers& powers);
Figures ComputeFigures(const Parameters& parameters, const Powers& powers, Record& record);

/// One of the twelve results.
double ResultOf(const Powers& powers, const Figures& figures, Method method, Figure figure);

/// Experience by the second method.
double ExpHesperinOf(double powerHesperin, std::int16_t tier);

/// The mean of two whole figures, its fraction cut off.
double AverageOf(double first, double second);

} // namespace Hesperin
