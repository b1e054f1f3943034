#include "app/calculate.h"
#include "app/resets.h"
#include "model/advice.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace Hesperin {

namespace {

TEST(AbilityProduct, IsAThirtyTwoBitFloatFormedInIndexOrder) {
    // Products of the catalogue's values, each step rounded to 32 bits. In 64 bits, or backwards,
    // the last of the seven digits differs.
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
        SCOPED_TRACE(row.text);
        TestProgram test;
        for (const int ability : row.abilities)
            test.form.Abilities(ability).SetTicked(true);
        Calculate(test.program);
        EXPECT_EQ(test.state.parameters.AbilityProduct, row.product);
        EXPECT_EQ(test.form.cmdCalc.ToolTip(), QString("Average value for all abilities is ") + row.text);
    }
}

TEST(Calculate, FillsLabelsAndTitleAndSwitchesTheExponents) {
    TestProgram test;
    test.FillInCreature();
    test.form.ComboTier.Select(1);
    EXPECT_EQ(test.BoxesOf([&] { Calculate(test.program); }),
              QStringList{"It is recommended to lower tier from 2 to 1"});
    EXPECT_EQ(test.platform.boxes[0].icon, BoxIcon::Information);
    EXPECT_EQ(test.platform.boxes[0].title, "Warning!");
    EXPECT_EQ(test.form.ComboTier.Text(), "2"); // it is advice only
    EXPECT_EQ(test.form.frmMain.Caption(),
              "TALMIR v0.0.0.44 [Creature: Test, Power=0{137}, Experience=0{12}, Growth=0{16}, "
              "Gold=0{58}]");
    EXPECT_EQ(test.Results(), "129 54 11 18 146 63 13 15 137 58 12 16");
    EXPECT_EQ(test.state.figures.GrowthNumerator, 2400);
    const auto exponents = [&] {
        const SharedState& state = test.state;
        return std::vector{state.exponents.ExponentOffence, state.exponents.ExponentDefence, state.exponents.ExponentSpeed, state.exponents.ExponentInitiative};
    };
    EXPECT_EQ(exponents(), (std::vector<FixedPoint>{4000, 6000, 4000, 6000}));
    test.form.Abilities(Ability::Shooter).SetTicked(true);
    Calculate(test.program);
    EXPECT_EQ(exponents(), (std::vector<FixedPoint>{7000, 3000, 1000, 7500}));
}

TEST(Calculate, AllowsSavingOnlyWhileTheCreatureHasAName) {
    TestProgram test;
    test.FillInCreature();
    for (const char* name : {"", "x", " ", ""}) {
        test.form.txtNC.SetText(name);
        Calculate(test.program);
        EXPECT_EQ(test.form.mnuSave.Enabled(), *name != '\0');
    }
}

TEST(TierAdvice, EachBandReachesToItsEnds) {
    const struct {
        double from;
        double to;
        std::int16_t tier;
    } bands[] = {{1, 151, 1},     {152, 259, 2},   {260, 511, 3},    {512, 977, 4},  {978, 2051, 5},
                 {2052, 4696, 6}, {4697, 6500, 7}, {6501, 24000, 8}, {24001, 1e9, 8}};
    for (const auto& band : bands) {
        EXPECT_EQ(AdviseTier(band.from), band.tier) << band.from;
        EXPECT_EQ(AdviseTier(band.to), band.tier) << band.to;
    }
}

TEST(TierAdvice, ComparesWithTheReferenceOfThePlainOrUpgradedCreature) {
    constexpr std::int16_t plain[] = {78, 152, 260, 512, 978, 2052, 4697, 6500};
    constexpr std::int16_t upgraded[] = {129, 227, 367, 723, 1336, 2463, 5954, 8000};
    TestProgram test;
    for (std::int16_t tier = 1; tier <= 8; ++tier)
        for (const bool isUpgraded : {false, true}) {
            test.form.ComboUpgrade.Select(isUpgraded ? 1 : 0);
            test.state.parameters.Tier = tier;
            test.state.figures.PowerAverage = 600; // tier 4
            const QStringList advice = test.BoxesOf([&] { AdviseOnTier(test.program); });
            const std::int16_t reference = (isUpgraded ? upgraded : plain)[tier - 1];
            EXPECT_EQ(test.state.advice.TierReferencePower, reference);
            EXPECT_EQ(test.state.advice.PowerRatio, static_cast<float>(600.0 / reference));
            EXPECT_EQ(test.state.advice.AdvisedTier, 4);
            const QString text =
                QString("It is recommended to %1 tier from %2 to 4").arg(tier < 4 ? "increase" : "lower").arg(tier);
            EXPECT_EQ(advice, tier == 4 ? QStringList() : QStringList{text});
        }
}

TEST(ClearCreature, EmptiesFieldsAndLabelsAndKeepsTicksAndResults) {
    TestProgram test;
    test.FillInCreature();
    Calculate(test.program);
    const double power = test.state.powers.PowerRolvane;
    test.form.Abilities(17).SetTicked(true);
    const TestProgram fresh; // the first values stand in the tests of the start
    for (Control* control : test.form.Controls()) {
        if (auto* field = dynamic_cast<TextField*>(control))
            field->SetText("5");
        if (auto* list = dynamic_cast<ComboBox*>(control))
            list->Select(1);
    }
    EXPECT_EQ(test.state.UpgradeFactor, 1.6F);

    ClearCreature(test.program);
    for (const Control* control : test.form.Controls())
        if (dynamic_cast<const TextField*>(control) || dynamic_cast<const ComboBox*>(control)) {
            EXPECT_EQ(control->Shown(), fresh.form.Find(control->Name())->Shown()) << control->Name().toStdString();
        }
    EXPECT_EQ(test.Results().trimmed(), "");
    EXPECT_EQ(test.form.cmdCalc.ToolTip(), "");
    EXPECT_EQ(test.state.UpgradeFactor, 1.0F);
    EXPECT_EQ(test.state.CreatureName, "Test");
    EXPECT_EQ(test.state.powers.PowerRolvane, power);
    EXPECT_TRUE(test.form.Abilities(17).Ticked());
}

} // namespace

} // namespace Hesperin
