#include "engine/calculate.h"

#include "engine/title.h"
#include "support/test_program.h"
#include "ui/form_load.h"

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
            EXPECT_EQ(box.title, test.state.WarningTitle);
            texts.append(box.text);
        }
    return texts;
}

TEST(Calculate, WarnsOfEveryFieldInOrderAndInTheLanguageOfTheWindow) {
    const QStringList fixed{"Value for 'Speed' out of the range!", "Value for 'Initiative' out of the range!",
                            "Value for 'Tier' out of the range!"};
    const struct {
        Language language;
        QString format;
        QStringList names;
    } cases[] = {
        {English,
         "Value for '%1' out of the range!",
         {"Mana", "Shots", "Attack", "Defence", "Health", "Min damage", "Max damage"}},
        {Russian,
         "Значение для '%1' недопустимо!",
         {"Мана", "Выстрелы", "Нападение", "Защита", "Ед. жизни", "Мин. урон", "Макс. урон"}},
    };
    for (const auto& row : cases) {
        QStringList expected;
        for (const QString& name : row.names)
            expected.append(row.format.arg(name));
        TestProgram test(row.language);
        EXPECT_EQ(Warnings(test), expected.mid(2)); // a cleared creature
        EXPECT_EQ(Warnings(test), QStringList());   // corrected by the first run

        TestProgram worst(row.language);
        worst.form.Abilities(Ability::Shooter).SetTicked(true);
        worst.form.Abilities(Ability::Caster).SetTicked(true);
        worst.form.txtMana.SetText("");
        worst.form.ComboSpeed.SetText("0");
        worst.form.ComboInitiative.SetText("21");
        worst.form.ComboTier.SetText("9");
        EXPECT_EQ(Warnings(worst), expected + fixed);
        EXPECT_EQ(worst.form.txtMana.Text(), "1");
        EXPECT_EQ(worst.form.txtShots.Text(), "1");
        EXPECT_EQ(worst.form.ComboSpeed.Text(), "1");
        EXPECT_EQ(worst.form.ComboInitiative.Text(), "20");
        EXPECT_EQ(worst.form.ComboTier.Text(), "8");
    }
}

TEST(Calculate, LimitsEachParameterAndWritesOnlyCorrectionsBack) {
    const struct {
        const char* field;
        const char* text;
        std::int16_t SharedState::*parameter;
        std::int16_t value;
        const char* after;
    } cases[] = {
        {"txtAttack", "50", &SharedState::Attack, 50, "50"},
        {"txtAttack", "51", &SharedState::Attack, 50, "50"},
        {"txtAttack", "", &SharedState::Attack, 1, "1"},
        {"txtAttack", "0.4", &SharedState::Attack, 1, "1"},
        {"txtAttack", "0.5", &SharedState::Attack, 1, "1"},
        {"txtAttack", "1.5", &SharedState::Attack, 2, "1.5"},
        {"txtAttack", "50.5", &SharedState::Attack, 50, "50.5"},
        {"txtAttack", "12abc", &SharedState::Attack, 12, "12abc"},
        {"txtAttack", "abc", &SharedState::Attack, 1, "1"},
        {"txtAttack", "-5", &SharedState::Attack, 1, "1"},
        {"txtAttack", "-70000", &SharedState::Attack, 1, "1"},
        {"txtAttack", "70000", &SharedState::Attack, 50, "50"},
        {"txtAttack", "1e999", &SharedState::Attack, 50, "50"},
        {"txtDefence", "50", &SharedState::Defence, 50, "50"},
        {"txtDefence", "51", &SharedState::Defence, 50, "50"},
        {"txtHealth", "400", &SharedState::Health, 400, "400"},
        {"txtHealth", "401", &SharedState::Health, 400, "400"},
        {"txtMaxDam", "95", &SharedState::MaxDam, 95, "95"},
        {"txtMaxDam", "96", &SharedState::MaxDam, 95, "95"},
        {"ComboSpeed", "9", &SharedState::Speed, 9, "9"},
        {"ComboSpeed", "10", &SharedState::Speed, 9, "9"},
        {"ComboSpeed", "", &SharedState::Speed, 1, "1"},
        {"ComboInitiative", "20", &SharedState::Initiative, 20, "20"},
        {"ComboTier", "8", &SharedState::Tier, 8, "8"},
        {"ComboTier", "-1", &SharedState::Tier, 1, "1"},
        {"ComboTier", "70000", &SharedState::Tier, 8, "8"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(testing::Message() << row.field << ' ' << row.text);
        TestProgram test;
        test.FillInCreature();
        Control* control = test.form.Find(row.field);
        if (auto* field = dynamic_cast<TextField*>(control))
            field->SetText(row.text);
        else
            dynamic_cast<ComboBox&>(*control).SetText(row.text);
        EXPECT_EQ(Warnings(test).size(), QString(row.text) == row.after ? 0 : 1);
        EXPECT_EQ(test.state.*row.parameter, row.value);
        EXPECT_EQ(control->Shown(), row.after);
    }
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
    TestProgram test(Russian);
    test.FillInCreature();
    test.form.txtMinDam.SetText("30");
    EXPECT_EQ(Warnings(test), QStringList{"Значение для 'Макс. урон' не может быть меньше, чем 'Мин. урон'!"});
}

TEST(Calculate, ManaAndShotsNeedOnlyBeAboveZeroAndOnlyWhileTheirAbilityIsTicked) {
    const struct {
        const char* text;
        const char* after;
    } cases[] = {{"0", "1"}, {"", "1"},      {"abc", "1"},   {"-3", "1"},       {"0.0", "1"},
                 {"1", "1"}, {"0.4", "0.4"}, {"999", "999"}, {"70000", "70000"}};
    for (const auto& row : cases)
        for (const bool ticked : {false, true}) {
            SCOPED_TRACE(testing::Message() << row.text << (ticked ? " ticked" : " unticked"));
            TestProgram test;
            test.FillInCreature();
            for (const int ability : {Ability::Caster, Ability::Shooter})
                test.form.Abilities(ability).SetTicked(ticked);
            test.form.txtMana.SetText(row.text);
            test.form.txtShots.SetText(row.text);
            const char* after = ticked ? row.after : row.text;
            EXPECT_EQ(Warnings(test).size(), QString(after) == row.text ? 0 : 2);
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
    test.form.ComboUpgrade.Select(1);
    test.form.txtNC.SetText("");
    EXPECT_EQ(test.BoxesOf([&] { Calculate(test.program); }), QStringList{"Value for 'Power by Rolvane' is zero!"});
    EXPECT_EQ(test.platform.boxes[0].icon, BoxIcon::Critical);
    EXPECT_EQ(test.platform.boxes[0].title, "Warning!");

    EXPECT_EQ(test.form.lblPowerRolvane.Caption(), "0");
    EXPECT_EQ(test.form.lblPowerHesperin.Caption(), "11");
    EXPECT_EQ(test.form.cmdCalc.ToolTip(), "Average value for all abilities is 0.0058");
    EXPECT_EQ(test.state.Tier, 5);
    QStringList labels;
    for (const char* label : {"ExpRolvane", "ExpHesperin", "GrowthRolvane", "GrowthHesperin", "CostRolvane",
                              "CostHesperin", "CostAverage", "GrowthAverage", "ExpAverage", "PowerAverage"})
        labels.append(dynamic_cast<Label&>(*test.form.Find(QString("lbl") + label)).Caption());
    EXPECT_EQ(labels.join(' '), "11 13 18 15 54 63 58 16 12 137");
    EXPECT_EQ(test.form.frmMain.Caption(), title);
    EXPECT_TRUE(test.form.mnuSave.Enabled());
    EXPECT_EQ(test.state.ExpRolvane, before.ExpRolvane);
    EXPECT_EQ(test.state.GrowthNumerator, before.GrowthNumerator);
    EXPECT_EQ(test.state.GoldBaseNow, before.GoldBaseNow);
    EXPECT_EQ(test.state.CostHesperin, before.CostHesperin);
    EXPECT_EQ(test.state.PowerAverage, before.PowerAverage);
    EXPECT_EQ(test.state.AdvisedTier, before.AdvisedTier);
    EXPECT_EQ(test.state.TierReferencePower, before.TierReferencePower);

    TestProgram russian(Russian);
    russian.FillInCreature();
    russian.state.AbilityCurrentValue[16] = 0.0058F;
    EXPECT_EQ(Warnings(russian), QStringList{"Значение параметра 'Сила' по Rolvane'у равно нулю!"});
}

} // namespace

} // namespace Hesperin
