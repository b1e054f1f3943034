#include "model/search.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

namespace Hesperin {

namespace {

/// A creature with an average Power of 137: 129 by Rolvane, 146 by Hesperin.
constexpr Parameters Plain{4, 3, 10, 2, 3, 5, 10, 2, 1, 1, false};

TEST(Search, TheRangeEndsWhereTheMinimumDamageWouldBeAboveTheMaximum) {
    const std::pair<Parameter, std::pair<int, int>> ranges[] = {
        {Parameter::Attack, {1, 50}}, {Parameter::MinDam, {1, 3}},      {Parameter::MaxDam, {2, 95}},
        {Parameter::Speed, {1, 9}},   {Parameter::Initiative, {1, 20}}, {Parameter::Tier, {1, 8}}};
    for (const auto& [parameter, range] : ranges) {
        const auto [lowest, highest] = RangeOf(Plain, parameter);
        EXPECT_EQ(std::pair(int(lowest), int(highest)), range);
    }
}

TEST(Search, OneMoreAddsToTheAveragePowerUpToTheEndOfTheRange) {
    // Speed 6: 138.8 and 146.8, on average 142. Initiative 11: 136.6 and 154, on average 145.
    EXPECT_EQ(GainOfOneMore(Plain, Parameter::Speed), 5);
    EXPECT_EQ(GainOfOneMore(Plain, Parameter::Initiative), 8);
    Parameters strong = Plain;
    strong.Speed = 9;
    strong.MinDam = 3;
    EXPECT_EQ(GainOfOneMore(strong, Parameter::Speed), std::nullopt);
    EXPECT_EQ(GainOfOneMore(strong, Parameter::MinDam), std::nullopt) << "it would be above the maximum";
    strong.AbilityProduct = 0.0035F; // 0.57 by Rolvane, which counts as 0
    EXPECT_EQ(AveragePowerOf(strong), std::nullopt);
    EXPECT_EQ(GainOfOneMore(strong, Parameter::Attack), std::nullopt);
}

/// The value of the Power nearest to today's one.
std::optional<Candidate> Nearest(const std::multimap<double, int>& values, double power, int today) {
    std::optional<Candidate> nearest;
    for (auto [at, end] = values.equal_range(power); at != end; ++at)
        if (!nearest || std::abs(at->second - today) < std::abs(nearest->value - today))
            nearest = Candidate{static_cast<std::int16_t>(at->second), at->first};
    return nearest;
}

TEST(Search, FindsWhatATableOfAllValuesShows) {
    std::mt19937 random(7);
    const auto from1To = [&random](int end) { return static_cast<std::int16_t>(1 + random() % unsigned(end)); };
    std::size_t exact = 0;
    std::size_t near = 0;
    for (int i = 0; i < 400; ++i) {
        Parameters creature;
        for (std::size_t which = 0; which < PowerParameters; ++which)
            creature[static_cast<Parameter>(which)] = from1To(ParameterRanges.items[which].highest / (1 + i % 4));
        creature.MinDam = std::min(creature.MinDam, creature.MaxDam);
        creature.Shooter = i % 3 == 0;
        creature.AbilityProduct = i % 5 == 0 ? 0.004F : 1.1F;
        const double goal = i % 7 == 0 ? from1To(9) : from1To(2000);
        const PowerBand wanted{goal, i % 2 == 0 ? goal : goal + 20};
        for (std::size_t which = 0; which < PowerParameters; ++which) {
            const auto parameter = static_cast<Parameter>(which);
            std::multimap<double, int> values;
            std::vector<std::int16_t> within;
            for (int value = 1; value <= ParameterRanges.items[which].highest; ++value) {
                Parameters tried = creature;
                tried[parameter] = static_cast<std::int16_t>(value);
                const Powers powers = ComputePowers(tried);
                if (tried.MinDam > tried.MaxDam || powers.PowerRolvane == 0)
                    continue;
                const double average = ComputeFigures(tried, powers).PowerAverage;
                values.emplace(average, value);
                if (average >= wanted.lowest && average <= wanted.highest)
                    within.push_back(tried[parameter]);
            }
            const Solution solution = Solve(creature, parameter, wanted);
            EXPECT_EQ(solution.exact, within);
            const auto above = values.upper_bound(wanted.highest);
            const auto notBelow = values.lower_bound(wanted.lowest);
            std::optional<Candidate> expectedBelow;
            std::optional<Candidate> expectedAbove;
            if (within.empty() && notBelow != values.begin())
                expectedBelow = Nearest(values, std::prev(notBelow)->first, creature[parameter]);
            if (within.empty() && above != values.end())
                expectedAbove = Nearest(values, above->first, creature[parameter]);
            EXPECT_EQ(solution.below, expectedBelow) << i << ' ' << which;
            EXPECT_EQ(solution.above, expectedAbove) << i << ' ' << which;
            exact += within.size();
            near += within.empty() ? 1 : 0;
        }
    }
    EXPECT_GT(exact, 100U);
    EXPECT_GT(near, 100U);
}

} // namespace

} // namespace Hesperin
