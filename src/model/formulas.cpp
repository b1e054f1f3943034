#include "model/formulas.h"

#include "catalogue/tiers.h"
#include "text/numbers.h"

#include <cmath>

namespace Hesperin {

namespace {

double Widen(FixedPoint value) {
    return static_cast<double>(value) / 10000.0;
}

struct Growth {
    std::int16_t Rolvane;
    std::int16_t Hesperin;
};

/// Plain and upgraded growth numerator added up; the second method takes their mean. The 1.6 here
/// is a 64-bit constant and not the creature's own upgrade factor.
double BothNumerators(std::int16_t tier) {
    const double base = GrowthBase[static_cast<std::size_t>(tier)];
    return base / 1.6 + base;
}

Growth ComputeGrowth(std::int16_t tier, std::int16_t numerator, double powerRolvane) {
    if (tier >= FirstTierOfFixedGrowth) {
        const std::int16_t fixed =
            FixedGrowth[static_cast<std::size_t>(tier - FirstTierOfFixedGrowth)];
        return {fixed, fixed};
    }
    return {RoundTo16Bits(WholeValue(numerator / powerRolvane)),
            RoundTo16Bits(WholeValue(BothNumerators(tier) / powerRolvane / 2.0))};
}

double ComputeCostRolvane(std::int16_t tier, const Powers& powers) {
    const double goldPerPower = GoldPerPower[static_cast<std::size_t>(tier)];
    return WholeValue((WholeValue(goldPerPower * powers.PowerRolvane) +
                       WholeValue(goldPerPower * powers.PowerHesperin)) /
                      2);
}

/// A divisor of 0, which a strong creature at a low tier has, counts as 1: the cost is then the
/// gold base, as it is on both sides of that band.
double ComputeCostHesperin(std::int16_t goldBase, double divisor) {
    const double s = divisor == 0 ? 1 : divisor;
    return WholeValue(0.5 * WholeValue(goldBase / (s / 2)));
}

} // namespace

double WholeValue(double x) {
    constexpr double lastHundredthOfOne = 50;
    return std::floor(x * 100) > lastHundredthOfOne ? std::floor(x) : 1;
}

Powers ComputePowers(const Parameters& parameters) {
    const auto damageSum = static_cast<std::int16_t>(parameters.MinDam + parameters.MaxDam);
    const double product = parameters.AbilityProduct;
    const Exponents exponents = ExponentsFor(parameters.Shooter);

    Powers powers{};
    powers.OffenceScore = std::pow(1.035, parameters.Attack) * (damageSum / 2.0);
    powers.DefenceScore = std::pow(1.028, parameters.Defence) * parameters.Health;
    powers.PowerHesperin = WholeValue(std::sqrt(
        damageSum * static_cast<double>(DamageScale) * (parameters.Attack * 0.05 + 1) *
        parameters.Health * (parameters.Defence * 0.05 + 1) * parameters.Initiative * product));
    powers.PowerRolvane = WholeValue(
        std::pow(powers.OffenceScore, Widen(exponents.ExponentOffence)) *
        std::pow(powers.DefenceScore / 4, Widen(exponents.ExponentDefence)) *
        std::pow(parameters.Speed / 6.0, Widen(exponents.ExponentSpeed)) *
        std::pow(parameters.Initiative / 10.0, Widen(exponents.ExponentInitiative)) * product * 50);
    return powers;
}

double ExpHesperinOf(double powerHesperin, std::int16_t tier) {
    return WholeValue(powerHesperin / ExpDivisor[static_cast<std::size_t>(tier)]);
}

double AverageOf(double first, double second) {
    return WholeValue((first + second) / 2.0);
}

Figures ComputeFigures(const Parameters& parameters, const Powers& powers) {
    const std::int16_t tier = parameters.Tier;
    const auto row = static_cast<std::size_t>(tier);

    Figures figures{};
    figures.ExpRolvane = RoundTo16Bits(WholeValue(powers.PowerRolvane / ExpDivisor[row]));
    figures.ExpHesperin = ExpHesperinOf(powers.PowerHesperin, tier);
    figures.GrowthNumerator =
        RoundTo16Bits(GrowthBase[row] / static_cast<double>(parameters.UpgradeFactor));
    figures.GoldBaseNow = GoldBase[row];
    const Growth growth = ComputeGrowth(tier, figures.GrowthNumerator, powers.PowerRolvane);
    figures.GrowthRolvane = growth.Rolvane;
    figures.GrowthHesperin = growth.Hesperin;
    figures.CostRolvane = ComputeCostRolvane(tier, powers);
    figures.CostDivisor = WholeValue(BothNumerators(tier) / powers.PowerRolvane);
    figures.CostHesperin = ComputeCostHesperin(figures.GoldBaseNow, figures.CostDivisor);
    figures.CostAverage = AverageOf(figures.CostHesperin, figures.CostRolvane);
    figures.GrowthAverage = RoundTo16Bits(AverageOf(figures.GrowthHesperin, figures.GrowthRolvane));
    figures.ExpAverage = RoundTo16Bits(AverageOf(figures.ExpHesperin, figures.ExpRolvane));
    figures.PowerAverage = AverageOf(powers.PowerRolvane, powers.PowerHesperin);
    return figures;
}

double ResultOf(const Powers& powers, const Figures& figures, Method method, Figure figure) {
    const double results[][3] = {
        {powers.PowerRolvane, powers.PowerHesperin, figures.PowerAverage},
        {static_cast<double>(figures.ExpRolvane), figures.ExpHesperin,
         static_cast<double>(figures.ExpAverage)},
        {static_cast<double>(figures.GrowthRolvane), static_cast<double>(figures.GrowthHesperin),
         static_cast<double>(figures.GrowthAverage)},
        {figures.CostRolvane, figures.CostHesperin, figures.CostAverage},
    };
    return results[static_cast<std::size_t>(figure)][static_cast<std::size_t>(method)];
}

} // namespace Hesperin
