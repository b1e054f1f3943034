// The balance model as a pure function: from a validated creature to its figures, by two methods.
#pragma once

#include "engine/shared_state.h"

namespace Hesperin {

/// A creature whose parameters lie in their ranges (see SharedState).
struct Creature {
    std::int16_t Attack = 1;
    std::int16_t Defence = 1;
    std::int16_t Health = 1;
    std::int16_t MinDam = 1;
    std::int16_t MaxDam = 1;
    std::int16_t Speed = 1;
    std::int16_t Initiative = 1;
    std::int16_t Tier = 1;
    float AbilityProduct = 1.0F;
    float UpgradeFactor = 1.0F;
    bool Shooter = false;
};

/// The exponents of the first method's four factors.
struct Exponents {
    FixedPoint Offence;
    FixedPoint Defence;
    FixedPoint Speed;
    FixedPoint Initiative;
};

/// A shooter's Power leans on offence and initiative, everybody else's on defence and speed.
constexpr Exponents ExponentsFor(bool shooter) {
    return shooter ? Exponents{7000, 3000, 1000, 7500} : Exponents{4000, 6000, 4000, 6000};
}

/// 500 / 16: scale of the damage in the second method.
inline constexpr float DamageScale = 500.0F / 16.0F;

/// The two Powers and the scores behind them.
struct Powers {
    double OffenceScore;  ///< 1.035^Attack × mean damage
    double DefenceScore;  ///< 1.028^Defence × Health
    double PowerRolvane;  ///< whole; 0 is possible, and nothing else can then be computed
    double PowerHesperin; ///< whole
};

Powers ComputePowers(const Creature& creature);

/// What follows from the two Powers.
struct Figures {
    std::int16_t ExpRolvane;
    double ExpHesperin;
    std::int16_t GrowthNumerator; ///< growth numerator of the first method at this tier
    std::int16_t GrowthRolvane;
    std::int16_t GrowthHesperin;
    std::int16_t GoldBaseNow; ///< GoldBase at this tier
    double CostRolvane;
    double CostDivisor; ///< the second method's growth before it is halved; the s of its cost
    double CostHesperin;
    double CostAverage;
    std::int16_t GrowthAverage;
    std::int16_t ExpAverage;
    double PowerAverage;
};

/// `powers.PowerRolvane` must not be 0. The second method's Growth and Cost lean on the first
/// method's Power, and the first method's Cost on both.
Figures ComputeFigures(const Creature& creature, const Powers& powers);

/// Experience by the second method, which is stored nowhere.
double ExpHesperinOf(double powerHesperin, std::int16_t tier);

/// The mean of two whole figures, its fraction cut off.
double AverageOf(double first, double second);

} // namespace Hesperin
