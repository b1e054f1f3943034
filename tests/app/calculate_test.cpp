#include "app/calculate.h"

#include "support/test_program.h"
#include "app/handlers/form_load.h"

#include <gtest/gtest.h>

namespace Hesperin {

namespace {

/// The critical boxes of one run, without the advice that may follow them.
QStringList Warnings(TestProgram& test) {
    test.platform.boxes.clear();
    Calculate(test.program);
    QStringList texts;
    for (const ScriptedPlatform::Box& box : test.platform.boxes)
        if (box.icon == BoxIcon::Critical) {
            EXPECT_EQ(box.title, test.state.messages.WarningTitle);
            texts.append(box.text);
        }
    return texts;
}

TEST(Calculate, WarnsOfEveryFieldInOrderAndInTheLanguageOfTheWindow) {
    QStringList expected;
    for (const char* name : {"Мана", "Выстрелы", "Нападение", "Защита", "Ед. жизни", "Мин. урон", "Макс. урон"})
        expected.append(QString("Значение для '%1' недопустимо!").arg(name));
    TestProgram cleared(Russian);
    EXPECT_EQ(Warnings(cleared), expected.mid(2));
    EXPECT_EQ(Warnings(cleared), QStringList()); // corrected by the first run

    TestProgram worst(Russian);
    worst.form.Abilities(Ability::Shooter).SetTicked(true);
    worst.form.Abilities(Ability::Caster).SetTicked(true);
    worst.SetText("txtMana", "");
    worst.SetText("ComboSpeed", "0");
    worst.SetText("ComboInitiative", "21");
    worst.SetText("ComboTier", "9");
    for (const char* name : {"Speed", "Initiative", "Tier"})
        expected.append(QString("Value for '%1' out of the range!").arg(name)); // in every language
    EXPECT_EQ(Warnings(worst), expected);
}

/// What a valid creature's field becomes when it holds `text`, and whether the user is warned.
void ExpectCorrection(const char* field, const QString& text, std::int16_t SharedState::*parameter, std::int16_t value,
                      const QString& after) {
    SCOPED_TRACE(testing::Message() << field << ' ' << text.toStdString());
    TestProgram test;
    test.FillInCreature();
    test.SetText(field, text);
    EXPECT_EQ(Warnings(test).size(), text == after ? 0 : 1);
    EXPECT_EQ(test.state.*parameter, value);
    EXPECT_EQ(test.form.Find(field)->Shown(), after);
}

TEST(Calculate, LimitsEachParameterToItsRange) {
    const struct {
        const char* field;
        std::int16_t SharedState::*parameter;
        std::int16_t limit;
    } cases[] = {
        {"txtAttack", &SharedState::Attack, 50},  {"txtDefence", &SharedState::Defence, 50},
        {"txtHealth", &SharedState::Health, 400}, {"txtMaxDam", &SharedState::MaxDam, 95},
        {"ComboSpeed", &SharedState::Speed, 9},   {"ComboInitiative", &SharedState::Initiative, 20},
        {"ComboTier", &SharedState::Tier, 8},
    };
    for (const auto& row : cases) {
        const QString limit = QString::number(row.limit);
        ExpectCorrection(row.field, limit, row.parameter, row.limit, limit);
        ExpectCorrection(row.field, QString::number(row.limit + 1), row.parameter, row.limit, limit);
    }
    ExpectCorrection("ComboSpeed", "", &SharedState::Speed, 1, "1");
    ExpectCorrection("ComboTier", "-1", &SharedState::Tier, 1, "1");
}

TEST(Calculate, WritesOnlyCorrectionsBack) {
    const struct {
        const char* text;
        std::int16_t value;
        const char* after;
    } cases[] = {
        {"", 1, "1"},        {"0.4", 1, "1"}, {"0.5", 1, "1"}, {"1.5", 2, "1.5"},      {"50.5", 50, "50.5"},
        {"70000", 50, "50"}, {"abc", 1, "1"}, {"-5", 1, "1"},  {"12abc", 12, "12abc"}, {"1e999", 50, "50"},
    };
    for (const auto& row : cases)
        ExpectCorrection("txtAttack", row.text, &SharedState::Attack, row.value, row.after);
}

TEST(Calculate, TheMinimumDamageFollowsTheMaximum) {
    const QString low = "Value for 'Min damage' out of the range!";
    const QString high = "Value for 'Max damage' out of the range!";
    const QString order = "Value for 'Max damage' cannot be less than it is for 'Min damage'!";
    const struct {
        const char* minimum;
        const char* maximum;
        QStringList warnings;
        const char* minimumAfter;
        const char* maximumAfter;
    } cases[] = {
        // clang-format off
        {"20", "20", {}, "20", "20"},            {"90", "95", {}, "90", "95"},
        {"95", "95", {low}, "90", "95"},         {"30", "20", {order}, "20", "20"},
        {"100", "20", {low, order}, "20", "20"}, {"50", "0", {high, order}, "1", "1"},
        {"0", "200", {low, high}, "1", "95"},    {"2.5", "1.6", {}, "2.5", "1.6"},
        {"3.4", "1.6", {order}, "2", "2"},
        // clang-format on
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(testing::Message() << row.minimum << " to " << row.maximum);
        TestProgram test;
        test.FillInCreature();
        test.form.txtMinDam.SetText(row.minimum);
        test.form.txtMaxDam.SetText(row.maximum);
        EXPECT_EQ(Warnings(test), row.warnings);
        EXPECT_EQ(test.form.txtMinDam.Text(), row.minimumAfter);
        EXPECT_EQ(test.form.txtMaxDam.Text(), row.maximumAfter);
    }
}

TEST(Calculate, ManaAndShotsNeedOnlyBeAboveZeroAndOnlyWhileTheirAbilityIsTicked) {
    const std::pair<const char*, const char*> cases[] = {{"0", "1"},  {"", "1"},      {"abc", "1"},
                                                         {"-3", "1"}, {"0.4", "0.4"}, {"70000", "70000"}};
    for (const auto& [text, corrected] : cases)
        for (const bool ticked : {false, true}) {
            SCOPED_TRACE(testing::Message() << text << (ticked ? " ticked" : " unticked"));
            TestProgram test;
            test.FillInCreature();
            for (const int ability : {Ability::Caster, Ability::Shooter})
                test.form.Abilities(ability).SetTicked(ticked);
            const QString after = ticked ? corrected : text;
            for (const char* field : {"txtMana", "txtShots"})
                test.SetText(field, text);
            EXPECT_EQ(Warnings(test).size(), after == text ? 0 : 2);
            EXPECT_EQ(test.form.txtMana.Text(), after);
            EXPECT_EQ(test.form.txtShots.Text(), after);
        }
}

TEST(Calculate, TheCorrectedFieldStandsBeforeItsWarningIsShown) {
    struct Watcher : ScriptedPlatform {
        MainForm* form = nullptr;
        QStringList seen;
        void ShowMessage(BoxIcon, const QString&, const QString&) override {
            seen.append(form->txtAttack.Text() + form->txtDefence.Text() + form->lblPowerRolvane.Caption());
        }
    } platform;
    Program program(platform);
    platform.form = &program.form;
    Form_Load(program, {English, false});
    program.form.txtAttack.SetText("99");
    program.form.txtDefence.SetText("x");
    Calculate(program);
    EXPECT_EQ(platform.seen.mid(0, 3), (QStringList{"50x", "501", "501"}));
}

TEST(Calculate, AZeroPowerStopsTheRunAndLeavesTheRestUntouched) {
    TestProgram test;
    test.FillInCreature();
    test.form.ComboTier.Select(1);
    Calculate(test.program);
    const QString title = test.form.frmMain.Caption();
    const SharedState before = test.state;

    test.state.AbilityCurrentValue[16] = 0.0058F; // 129.04 × 0.0058 = 0.748; root: 146.84 × 0.0762 = 11.18
    test.form.ComboTier.Select(4);
    test.form.txtNC.SetText("");
    EXPECT_EQ(Warnings(test), QStringList{"Value for 'Power by Rolvane' is zero!"});
    EXPECT_EQ(test.Results(), "0 54 11 18 11 63 13 15 137 58 12 16"); // all but the Powers as before
    EXPECT_EQ(test.form.cmdCalc.ToolTip(), "Average value for all abilities is 0.0058");
    EXPECT_EQ(test.state.parameters.Tier, 5);
    EXPECT_EQ(test.form.frmMain.Caption(), title);
    EXPECT_TRUE(test.form.mnuSave.Enabled());
    EXPECT_EQ(test.state.figures.GrowthNumerator, before.GrowthNumerator);
    EXPECT_EQ(test.state.figures.CostHesperin, before.CostHesperin);
    EXPECT_EQ(test.state.advice.TierReferencePower, before.TierReferencePower);
}

} // namespace

} // namespace Hesperin
