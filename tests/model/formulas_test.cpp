#include "model/formulas.h"

#include <gtest/gtest.h>

#include <cmath>

namespace Hesperin {

namespace {

constexpr float Upgraded = UpgradedFactor;

/// The figures of a creature of given Powers.
Figures Of(double rolvane, double hesperin, std::int16_t tier, float upgradeFactor = 1) {
    Parameters parameters;
    parameters.Tier = tier;
    parameters.UpgradeFactor = upgradeFactor;
    return ComputeFigures(parameters, {0, 0, rolvane, hesperin});
}

TEST(WholeValue, IsOneThenZeroThenCutsTheFractionOff) {
    const std::pair<double, double> cases[] = {
        // clang-format off
        {-1000, 1},                   {-0.7, 1},                    {0, 1},
        {0.5, 1},                     {0.509999, 1},                {std::nextafter(0.51, 0), 1},
        {0.51, 0},                    {0.6, 0},                     {0.99, 0},
        {std::nextafter(1, 0), 0},    {1, 1},                       {1.49, 1},
        {1.99, 1},                    {2.5, 2},                     {2.99, 2},
        {129.0416, 129},              {3e9 + 0.75, 3e9},
        // clang-format on
    };
    for (const auto& [x, whole] : cases)
        EXPECT_EQ(WholeValue(x), whole) << x;
}

TEST(Formulas, WorkedExamples) {
    // Worked out by hand from the formulas, with a pocket calculator's precision: power, experience,
    // growth and cost, each by the first method, by the second and their average.
    using Results = std::vector<double>;
    const struct {
        const char* what;
        Parameters creature;
        Results expected;
    } cases[] = {
        {"plain", {4, 3, 10, 2, 3, 5, 10, 2, 1, 1, false}, {129, 146, 137, 11, 13, 12, 18, 15, 16, 54, 63, 58}},
        {"upgraded",
         {4, 3, 10, 2, 3, 5, 10, 2, 1, Upgraded, false},
         {129, 146, 137, 11, 13, 12, 11, 15, 13, 54, 63, 58}},
        {"shooter", {7, 7, 16, 4, 7, 5, 8, 3, 1.2F, 1, true}, {312, 310, 311, 26, 25, 25, 9, 7, 8, 133, 166, 149}},
        {"everything 1", {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, false}, {2, 8, 5, 1, 0, 1, 1000, 812, 906, 1, 1, 1}},
    };
    for (const auto& row : cases) {
        const Powers powers = ComputePowers(row.creature);
        const Figures f = ComputeFigures(row.creature, powers);
        Results results;
        for (const Figure figure : {Figure::Power, Figure::Experience, Figure::Growth, Figure::Cost})
            for (const Method method : {Method::Rolvane, Method::Hesperin, Method::Average})
                results.push_back(ResultOf(powers, f, method, figure));
        EXPECT_EQ(results, row.expected) << row.what;
    }
    const Powers powers = ComputePowers(cases[0].creature);
    EXPECT_NEAR(powers.OffenceScore, 2.8688075, 1e-7);
    EXPECT_NEAR(powers.DefenceScore, 10.8637395, 1e-7);
}

TEST(Formulas, AbilitiesMultiplyTheFirstPowerAndStandUnderTheRootOfTheSecond) {
    // Two creatures whose bare Powers are known, times a product that leaves no doubt in the last
    // digit.
    Parameters creature{4, 3, 10, 2, 3, 5, 10, 2, 144, 1, false};
    const Powers powers = ComputePowers(creature);
    EXPECT_EQ(powers.PowerRolvane, std::floor(129.0416 * 144)); // 18581.99
    EXPECT_EQ(powers.PowerHesperin, std::floor(146.8418 * 12)); // 1762.10
    creature.AbilityProduct = 0.005F;                           // 0.6452: the band that gives 0
    EXPECT_EQ(ComputePowers(creature).PowerRolvane, 0);
    creature.AbilityProduct = 0.0039F; // 0.5033: below it
    EXPECT_EQ(ComputePowers(creature).PowerRolvane, 1);
}

TEST(Formulas, SpeedCountsInTheFirstMethodOnlyAndAShooterLeansOnInitiative) {
    Parameters creature{4, 3, 10, 2, 3, 6, 20, 2, 1, 1, false};
    EXPECT_EQ(ComputePowers(creature).PowerRolvane, 210);  // 1.5243355 × 1.8211747 × 2^0.6 × 50
    EXPECT_EQ(ComputePowers(creature).PowerHesperin, 207); // root of 43125
    creature.Speed = 9;
    EXPECT_EQ(ComputePowers(creature).PowerRolvane, 247); // × 1.5^0.4
    EXPECT_EQ(ComputePowers(creature).PowerHesperin, 207);
    creature.Shooter = true; // 2.8688075^0.7 × 2.7159349^0.3 × 1.5^0.1 × 2^0.75 × 50 = 247.13
    EXPECT_EQ(ComputePowers(creature).PowerRolvane, 247);
    creature.Initiative = 10; // 146.94
    EXPECT_EQ(ComputePowers(creature).PowerRolvane, 146);
}

TEST(Formulas, EveryTierHasItsOwnConstants) {
    // At a Power of 1000 by both methods. The 32-bit floats next to 0.35, 0.48 and 0.59 lie below
    // them, so that a thousand times each falls short of the whole number. From tier 5 on growth is
    // fixed.
    // Experience, the growth numerator plain and upgraded, growth and cost by the two methods.
    const std::pair<std::int16_t, std::vector<double>> cases[] = {
        {1, {100, 2000, 1250, 2, 1, 349, 466}}, {2, {90, 2400, 1500, 2, 1, 400, 633}},
        {3, {83, 2900, 1812, 2, 2, 430, 625}},  {4, {71, 3650, 2281, 3, 2, 479, 700}},
        {5, {62, 4650, 2906, 3, 3, 589, 785}},  {6, {55, 5000, 3125, 2, 2, 680, 850}},
        {7, {50, 7000, 4375, 1, 1, 750, 818}},  {8, {45, 9000, 5625, 1, 1, 800, 803}},
    };
    for (const auto& [tier, expected] : cases) {
        const Figures f = Of(1000, 1000, tier);
        const Figures upgraded = Of(1000, 1000, tier, Upgraded);
        EXPECT_EQ(
            (std::vector<double>{double(f.ExpRolvane), double(f.GrowthNumerator), double(upgraded.GrowthNumerator),
                                 double(f.GrowthRolvane), double(f.GrowthHesperin), f.CostRolvane, f.CostHesperin}),
            expected)
            << tier;
        EXPECT_EQ(f.ExpHesperin, expected[0]);
        EXPECT_TRUE(tier < 5 || upgraded.GrowthRolvane == f.GrowthRolvane);
    }
    EXPECT_EQ(Of(365, 365, 4).GrowthRolvane, 10); // 3650 / 365
}

TEST(Formulas, TheSecondMethodsCostStaysAtTheGoldBaseAcrossItsZeroBand) {
    // At tier 1 the divisor is 3250 / Power: 1 from 1626 to 3250, 0 up to 6372, 1 again above.
    const std::pair<double, double> costs[] = {{1083, 466},  {1084, 700},  {1625, 700},  {1626, 1400}, {3250, 1400},
                                               {3251, 1400}, {6372, 1400}, {6373, 1400}, {1e6, 1400}};
    for (const auto& [power, cost] : costs)
        EXPECT_EQ(Of(power, power, 1).CostHesperin, cost) << power;
    for (const auto& [power, divisor] : {std::pair(3250.0, 1), {3251.0, 0}, {6372.0, 0}, {6373.0, 1}})
        EXPECT_EQ(Of(power, power, 1).CostDivisor, divisor) << power;
    EXPECT_EQ(Of(15000, 15000, 8).CostHesperin, 11250); // 14625 / 15000
}

TEST(Formulas, GrowthAndCostOfTheSecondMethodFollowTheFirstMethodsPower) {
    const Figures figures = Of(100, 400, 1);
    EXPECT_EQ(figures.GrowthHesperin, 16);      // 3250 / 100 / 2
    EXPECT_EQ(figures.CostHesperin, 43);        // 1400 / 16 = 87.5, half of 87
    EXPECT_EQ(figures.CostRolvane, 86);         // (34 + 139) / 2
    EXPECT_EQ(Of(2001, 1, 1).GrowthRolvane, 0); // 0.9995
    EXPECT_EQ(Of(3921, 1, 1).GrowthRolvane, 0); // 0.51007
    EXPECT_EQ(Of(3922, 1, 1).GrowthRolvane, 1); // 0.50994
    EXPECT_EQ(Of(2001, 1, 1).GrowthAverage, 1); // (0 and 0) / 2 is 0, which counts as 1
}

TEST(Formulas, FiguresBeyondSixteenBitsAreLimited) {
    const Figures figures = Of(400000, 400000, 1);
    EXPECT_EQ(figures.ExpRolvane, 32767);
    EXPECT_EQ(figures.ExpHesperin, 40000);
    EXPECT_EQ(figures.ExpAverage, 32767);
    EXPECT_EQ(figures.PowerAverage, 400000);
    EXPECT_EQ(figures.CostRolvane, 139999);
}

} // namespace

} // namespace Hesperin
