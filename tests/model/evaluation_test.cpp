#include "model/evaluation.h"

#include "support/test_program.h"
#include "text/numbers.h"

#include <gtest/gtest.h>

namespace Hesperin {

namespace {

using What = Correction::What;

/// A creature that nothing has to be corrected in.
Creature Valid() {
    Creature creature = EmptyCreature();
    for (QString& number : creature.Numbers)
        number = "10";
    return creature;
}

Validated After(const Creature& creature) { return Validate(EnteredOf(creature)); }

TEST(Validation, LimitsEachParameterToItsRangeAndTellsItOnce) {
    EXPECT_EQ(After(Valid()).corrections, std::vector<Correction>());
    const struct {
        What what;
        NumberField number;
        ListField list;
        Parameter parameter;
        std::int16_t limit;
    } fields[] = {
        {What::Attack, NumberField::Attack, {}, Parameter::Attack, 50},
        {What::Defence, NumberField::Defence, {}, Parameter::Defence, 50},
        {What::Health, NumberField::Health, {}, Parameter::Health, 400},
        {What::MaxDam, NumberField::MaxDam, {}, Parameter::MaxDam, 95},
        {What::Speed, NumberField::Count, ListField::Speed, Parameter::Speed, 9},
        {What::Initiative, NumberField::Count, ListField::Initiative, Parameter::Initiative, 20},
        {What::Tier, NumberField::Count, ListField::Tier, Parameter::Tier, 8},
    };
    for (const auto& field : fields) {
        const std::int16_t limit = field.limit;
        const QString text = QString::number(limit);
        const struct {
            QString text;
            std::int16_t value;
            bool corrected;
        } cases[] = {
            {text, limit, false},
            {QString::number(limit + 1), limit, true},
            {text + ".5", limit, limit % 2 != 0},
            {"70000", limit, true},
            {"1e999", limit, true},
            {"", 1, true},
            {"0", 1, true},
            {"abc", 1, true},
            {"-5", 1, true},
            {"0.4", 1, true},
            {"0.5", 1, true},
            {"1.5", 2, false},
            {"7abc", 7, false},
        };
        for (const auto& row : cases) {
            SCOPED_TRACE(testing::Message() << int(field.what) << ' ' << row.text.toStdString());
            Creature creature = Valid();
            creature.Numbers[NumberField::MinDam] = "1";
            (field.number == NumberField::Count ? creature.Choices[field.list].text : creature.Numbers[field.number]) =
                row.text;
            const Validated validated = After(creature);
            EXPECT_EQ(validated.parameters[field.parameter], row.value);
            std::vector<Correction> corrections;
            if (row.corrected)
                corrections.push_back({field.what, row.text, row.value});
            EXPECT_EQ(validated.corrections, corrections);
        }
    }
}

TEST(Validation, TheMinimumDamageFollowsTheMaximum) {
    const struct {
        const char* minimum;
        const char* maximum;
        std::vector<Correction> corrections;
        std::int16_t minimumAfter;
        std::int16_t maximumAfter;
    } cases[] = {
        {"20", "20", {}, 20, 20},
        {"90", "95", {}, 90, 95},
        {"95", "95", {{What::MinDam, "95", 90}}, 90, 95},
        {"30", "20", {{What::DamageOrder, "30", 20}}, 20, 20},
        {"100", "20", {{What::MinDam, "100", 90}, {What::DamageOrder, "90", 20}}, 20, 20},
        {"50", "0", {{What::MaxDam, "0", 1}, {What::DamageOrder, "50", 1}}, 1, 1},
        {"0", "200", {{What::MinDam, "0", 1}, {What::MaxDam, "200", 95}}, 1, 95},
        {"2.5", "1.6", {}, 2, 2},
        {"3.4", "1.6", {{What::DamageOrder, "3", 2}}, 2, 2},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(testing::Message() << row.minimum << " to " << row.maximum);
        Creature creature = Valid();
        creature.Numbers[NumberField::MinDam] = row.minimum;
        creature.Numbers[NumberField::MaxDam] = row.maximum;
        const Validated validated = After(creature);
        EXPECT_EQ(validated.corrections, row.corrections);
        EXPECT_EQ(validated.parameters.MinDam, row.minimumAfter);
        EXPECT_EQ(validated.parameters.MaxDam, row.maximumAfter);
    }
}

TEST(Validation, ManaAndShotsNeedOnlyBeAboveZeroAndOnlyWhileTheirAbilityIsTicked) {
    const std::pair<const char*, bool> cases[] = {{"0", true},  {"", true},     {"abc", true},
                                                  {"-3", true}, {"0.4", false}, {"70000", false}};
    for (const auto& [text, wrong] : cases)
        for (const bool ticked : {false, true}) {
            Creature creature = Valid();
            creature.Set(Ability::Caster, ticked);
            creature.Set(Ability::Shooter, ticked);
            creature.Numbers[NumberField::Mana] = creature.Numbers[NumberField::Shots] = text;
            std::vector<Correction> corrections;
            if (wrong && ticked)
                corrections = {{What::Mana, text, 1}, {What::Shots, text, 1}};
            EXPECT_EQ(After(creature).corrections, corrections) << text << ticked;
            EXPECT_EQ(After(creature).parameters.Shooter, ticked);
        }
}

TEST(AbilityProduct, IsAThirtyTwoBitFloatFormedInIndexOrder) {
    // Products of the catalogue's values, each step rounded to 32 bits. In 64 bits, or backwards, the last of the
    // seven digits differs.
    const struct {
        std::vector<int> abilities;
        float product;
        const char* text;
    } cases[] = {
        {{}, 1, "1"},
        {{9, 33, 48, 162, 174}, 0.983465254F, "0.9834653"},
        {{10, 40, 46, 62, 75, 83, 94, 125, 132}, 6.48509741F, "6.485097"},
        {{2, 3, 19, 22, 24, 26, 33, 36, 55, 57, 62, 74, 78, 81, 88, 100, 106, 107, 108, 119, 130, 135, 157, 165, 166},
         9.63098907F,
         "9.630989"},
    };
    for (const auto& row : cases) {
        Creature creature;
        for (const int ability : row.abilities)
            creature.Set(ability, true);
        const float product = EnteredOf(creature).AbilityProduct;
        EXPECT_EQ(product, row.product);
        EXPECT_EQ(FloatText(product), row.text);
    }
}

TEST(Advice, FollowsTheBandsAndComparesWithThePlainOrUpgradedReference) {
    const std::pair<double, std::int16_t> bands[] = {{1, 1},    {151, 1},  {152, 2},  {259, 2},   {260, 3},   {511, 3},
                                                     {512, 4},  {977, 4},  {978, 5},  {2051, 5},  {2052, 6},  {4696, 6},
                                                     {4697, 7}, {6500, 7}, {6501, 8}, {24000, 8}, {24001, 8}, {1e9, 8}};
    for (const auto& [power, tier] : bands)
        EXPECT_EQ(AdviseTier(power), tier) << power;
    constexpr std::int16_t plain[] = {78, 152, 260, 512, 978, 2052, 4697, 6500};
    constexpr std::int16_t upgraded[] = {129, 227, 367, 723, 1336, 2463, 5954, 8000};
    for (std::int16_t tier = 1; tier <= 8; ++tier)
        for (const char* upgrade : {"False", "True"}) {
            Parameters parameters;
            parameters.Tier = tier;
            parameters.UpgradeFactor = UpgradeFactorOf(QString(upgrade));
            const Advice advice = AdviseOn(parameters, 600);
            const std::int16_t reference = (*upgrade == 'T' ? upgraded : plain)[tier - 1];
            EXPECT_EQ(advice.TierReferencePower, reference);
            EXPECT_EQ(advice.PowerRatio, static_cast<float>(600.0 / reference));
            EXPECT_EQ(advice.AdvisedTier, 4);
        }
}

} // namespace

} // namespace Hesperin
