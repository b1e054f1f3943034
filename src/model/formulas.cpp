#include "model/formulas.h"

#include "catalogue/tiers.h"
#include "text/numbers.h"

#include <cmath>

namespace Hesperin {

namespace {

double Widen(FixedPoint value) {
    return static_cast<double>(value) / 10000.0;
}

template <typename Record>
Powers PowersWith(Record&& record, const Parameters& parameters) {
    const auto attack = record.Known("Attack", parameters.Attack);
    const auto defence = record.Known("Defence", parameters.Defence);
    const auto minDam = record.Known("MinDam", parameters.MinDam);
    const auto maxDam = record.Known("MaxDam", parameters.MaxDam);
    const auto health = record.Known("Health", parameters.Health);
    const auto speed = record.Known("Speed", parameters.Speed);
    const auto initiative = record.Known("Initiative", parameters.Initiative);
    const auto product = record.Known("product", static_cast<double>(parameters.AbilityProduct));
    const Exponents exponents = ExponentsFor(parameters.Shooter);

    Powers powers{};
    const auto damage = record.Step("damage_sum", minDam + maxDam);
    const auto offence =
        record.Step("offence_score", powers.OffenceScore, RaisedTo(1.035, attack) * (damage / 2.0));
    const auto defended =
        record.Step("defence_score", powers.DefenceScore, RaisedTo(1.028, defence) * health);

    const auto ofOffence = record.Step("exponent_offence", Widen(exponents.ExponentOffence));
    const auto ofDefence = record.Step("exponent_defence", Widen(exponents.ExponentDefence));
    const auto ofSpeed = record.Step("exponent_speed", Widen(exponents.ExponentSpeed));
    const auto ofInitiative =
        record.Step("exponent_initiative", Widen(exponents.ExponentInitiative));
    const auto offenceFactor = record.Step("rolvane_offence", RaisedTo(offence, ofOffence));
    const auto defenceFactor = record.Step("rolvane_defence", RaisedTo(defended / 4, ofDefence));
    const auto speedFactor = record.Step("rolvane_speed", RaisedTo(speed / 6.0, ofSpeed));
    const auto initiativeFactor =
        record.Step("rolvane_initiative", RaisedTo(initiative / 10.0, ofInitiative));
    const auto rolvane =
        record.Step("power_rolvane_exact",
                    offenceFactor * defenceFactor * speedFactor * initiativeFactor * product * 50);
    record.Step("power_rolvane", powers.PowerRolvane, WholeValue(rolvane));

    const auto attackFactor = record.Step("hesperin_attack", attack * 0.05 + 1);
    const auto armourFactor = record.Step("hesperin_defence", defence * 0.05 + 1);
    const auto square =
        record.Step("hesperin_square", damage * static_cast<double>(DamageScale) * attackFactor *
                                           health * armourFactor * initiative * product);
    const auto root = record.Step("power_hesperin_exact", RootOf(square));
    record.Step("power_hesperin", powers.PowerHesperin, WholeValue(root));
    return powers;
}

/// The mean of two whole figures, its fraction cut off.
template <typename Record, typename First, typename Second>
auto AverageWith(Record&& record, const char* id, const First& first, const Second& second) {
    return WholeValue(record.Step(id, (first + second) / 2.0));
}

template <typename Record, typename Power, typename Divisor>
auto ExperienceWith(Record&& record, const char* id, const Power& power, const Divisor& divisor) {
    return WholeValue(record.Step(id, power / divisor));
}

template <typename Record>
Figures FiguresWith(Record&& record, const Parameters& parameters, const Powers& powers) {
    const std::int16_t tier = parameters.Tier;
    const auto row = static_cast<std::size_t>(tier);
    const auto rolvane = record.Known("power_rolvane", powers.PowerRolvane);
    const auto hesperin = record.Known("power_hesperin", powers.PowerHesperin);

    Figures figures{};
    const auto expDivisor = record.Step("exp_divisor", ExpDivisor[row]);
    const auto expRolvane = record.Step(
        "exp_rolvane", figures.ExpRolvane,
        RoundTo16Bits(ExperienceWith(record, "exp_rolvane_exact", rolvane, expDivisor)));
    const auto expHesperin =
        record.Step("exp_hesperin", figures.ExpHesperin,
                    ExperienceWith(record, "exp_hesperin_exact", hesperin, expDivisor));

    const auto growthBase = record.Step("growth_base", GrowthBase[row]);
    const auto ownNumerator = record.Step(
        "growth_numerator_exact",
        growthBase / record.Known("UpgradeFactor", static_cast<double>(parameters.UpgradeFactor)));
    const auto numerator =
        record.Step("growth_numerator", figures.GrowthNumerator, RoundTo16Bits(ownNumerator));
    // Plain and upgraded growth numerator added up; the second method takes their mean. The 1.6
    // here is a 64-bit constant and not the creature's own upgrade factor.
    const auto both = record.Step("both_numerators", growthBase / 1.6 + growthBase);
    if (tier >= FirstTierOfFixedGrowth) {
        const std::int16_t fixed =
            FixedGrowth[static_cast<std::size_t>(tier - FirstTierOfFixedGrowth)];
        record.Step("growth_rolvane", figures.GrowthRolvane, fixed);
        record.Step("growth_hesperin", figures.GrowthHesperin, fixed);
    } else {
        const auto first = record.Step("growth_rolvane_exact", numerator / rolvane);
        record.Step("growth_rolvane", figures.GrowthRolvane, RoundTo16Bits(WholeValue(first)));
        const auto second = record.Step("growth_hesperin_exact", both / rolvane / 2.0);
        record.Step("growth_hesperin", figures.GrowthHesperin, RoundTo16Bits(WholeValue(second)));
    }
    const auto growthRolvane = record.Known("growth_rolvane", figures.GrowthRolvane);
    const auto growthHesperin = record.Known("growth_hesperin", figures.GrowthHesperin);

    const auto perPower = record.Step("gold_per_power", static_cast<double>(GoldPerPower[row]));
    const auto firstGold = record.Step("gold_for_rolvane_exact", perPower * rolvane);
    const auto firstCost = record.Step("gold_for_rolvane", WholeValue(firstGold));
    const auto secondGold = record.Step("gold_for_hesperin_exact", perPower * hesperin);
    const auto secondCost = record.Step("gold_for_hesperin", WholeValue(secondGold));
    const auto costMean = record.Step("cost_rolvane_exact", (firstCost + secondCost) / 2);
    const auto costRolvane = record.Step("cost_rolvane", figures.CostRolvane, WholeValue(costMean));

    const auto goldBase = record.Step("gold_base", figures.GoldBaseNow, GoldBase[row]);
    const auto exactDivisor = record.Step("cost_divisor_exact", both / rolvane);
    auto divisor = record.Step("cost_divisor", figures.CostDivisor, WholeValue(exactDivisor));
    // A divisor of 0, which a strong creature at a low tier has, counts as 1: the cost is then the
    // gold base, as it is on both sides of that band.
    if (figures.CostDivisor == 0)
        divisor = record.Step("cost_divisor_taken", 1.0);
    const auto exactDouble = record.Step("cost_hesperin_double_exact", goldBase / (divisor / 2));
    const auto wholeDouble = record.Step("cost_hesperin_double", WholeValue(exactDouble));
    const auto half = record.Step("cost_hesperin_exact", 0.5 * wholeDouble);
    const auto costHesperin = record.Step("cost_hesperin", figures.CostHesperin, WholeValue(half));

    record.Step("power_average", figures.PowerAverage,
                AverageWith(record, "power_average_exact", rolvane, hesperin));
    record.Step("exp_average", figures.ExpAverage,
                RoundTo16Bits(AverageWith(record, "exp_average_exact", expHesperin, expRolvane)));
    record.Step(
        "growth_average", figures.GrowthAverage,
        RoundTo16Bits(AverageWith(record, "growth_average_exact", growthHesperin, growthRolvane)));
    record.Step("cost_average", figures.CostAverage,
                AverageWith(record, "cost_average_exact", costHesperin, costRolvane));
    return figures;
}

} // namespace

double WholeValue(double x) {
    constexpr double lastHundredthOfOne = 50;
    return std::floor(x * 100) > lastHundredthOfOne ? std::floor(x) : 1;
}

Powers ComputePowers(const Parameters& parameters) {
    return PowersWith(Unrecorded{}, parameters);
}

Powers ComputePowers(const Parameters& parameters, Record& record) {
    return PowersWith(record, parameters);
}

double ExpHesperinOf(double powerHesperin, std::int16_t tier) {
    return ExperienceWith(Unrecorded{}, nullptr, powerHesperin,
                          ExpDivisor[static_cast<std::size_t>(tier)]);
}

double AverageOf(double first, double second) {
    return AverageWith(Unrecorded{}, nullptr, first, second);
}

Figures ComputeFigures(const Parameters& parameters, const Powers& powers) {
    return FiguresWith(Unrecorded{}, parameters, powers);
}

Figures ComputeFigures(const Parameters& parameters, const Powers& powers, Record& record) {
    return FiguresWith(record, parameters, powers);
}

double ResultOf(const Powers& powers, const Figures& figures, Method method, Figure figure) {
    const auto of = [method](double rolvane, double hesperin, double average) {
        if (method == Method::Average)
            return average;
        return method == Method::Rolvane ? rolvane : hesperin;
    };
    switch (figure) {
    case Figure::Experience:
        return of(figures.ExpRolvane, figures.ExpHesperin, figures.ExpAverage);
    case Figure::Growth:
        return of(figures.GrowthRolvane, figures.GrowthHesperin, figures.GrowthAverage);
    case Figure::Cost:
        return of(figures.CostRolvane, figures.CostHesperin, figures.CostAverage);
    default:
        return of(powers.PowerRolvane, powers.PowerHesperin, figures.PowerAverage);
    }
}

} // namespace Hesperin
