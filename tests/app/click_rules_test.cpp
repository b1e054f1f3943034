#include "app/handlers/options_menu.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace Hesperin {

namespace {

QString AbilityName(int i) { return QString("Abilities(%1)").arg(i); }
QString SpecabilityName(int j) { return QString("Specabilities(%1)").arg(j); }

/// Each linked box by its partner. The links follow the tokens, save for two pairs of different
/// tokens and eleven equal ones that are not linked.
QMap<QString, QString> ExpectedPartners(const MainForm& form) {
    const QStringList unlinked{"AGILITY",    "BEAR_ROAR",  "DEATH_CLOUD",      "DEATH_WAIL", "ENRAGED",         "FEAR",
                               "LIFE_DRAIN", "MANA_DRAIN", "ENTANGLING_ROOTS", "VENOM",      "POISONOUS_ATTACK"};
    QMap<QString, QString> partners;
    for (const CheckBox& ability : form.Abilities)
        for (const CheckBox& specability : form.Specabilities) {
            const bool same = ability.Caption() == specability.Caption() && !unlinked.contains(ability.Caption());
            const std::pair indices(ability.ArrayIndex(), specability.ArrayIndex());
            if (same || indices == std::pair(128, 37) || indices == std::pair(129, 38)) {
                partners[ability.Name()] = specability.Name();
                partners[specability.Name()] = ability.Name();
            }
        }
    return partners;
}

TEST(Links, EveryBoxTicksItsPartnerAndMovesCounterAndFlag) {
    const QStringList countsOnce{AbilityName(75), AbilityName(132), SpecabilityName(3), SpecabilityName(49)};
    TestProgram test;
    const auto partners = ExpectedPartners(test.form);
    ASSERT_EQ(partners.size(), 2 * 36);
    for (Control* control : test.form.Controls()) {
        const QString name = control->Name();
        const bool special = control->ArrayName() == QLatin1String("Specabilities");
        if ((!special && control->ArrayName() != QLatin1String("Abilities")) || name == SpecabilityName(0))
            continue;
        SCOPED_TRACE(name.toStdString());
        auto& box = dynamic_cast<CheckBox&>(*control);
        QStringList expected{name};
        if (partners.contains(name))
            expected.append(partners[name]);
        expected.sort();
        const int steps = expected.size() == 2 ? 2 : countsOnce.contains(name) ? 1 : 0;
        const bool movesFlag = steps > 0 || special;
        test.state.SpecabilityFlag = FlagFalse;
        box.SetTicked(true);
        EXPECT_EQ(test.Ticked(), expected);
        EXPECT_EQ(test.state.SpellPoints1Count, steps);
        EXPECT_EQ(test.state.SpecabilityFlag, movesFlag ? FlagTrue : FlagFalse);
        test.state.SpecabilityFlag = FlagTrue;
        box.SetTicked(false);
        EXPECT_EQ(test.Ticked(), QStringList());
        EXPECT_EQ(test.state.SpellPoints1Count, 0);
        EXPECT_EQ(test.state.SpecabilityFlag, movesFlag ? FlagFalse : FlagTrue);
    }
}

TEST(Links, ALanguageChangeZeroesTheCounterAndKeepsTheTicks) {
    TestProgram test;
    test.form.Abilities(17).SetTicked(true);
    mnuRussian_Click(test.program);
    EXPECT_EQ(test.state.SpellPoints1Count, 0);
    EXPECT_EQ(test.state.SpecabilityFlag, 0);
    EXPECT_EQ(test.Ticked(), (QStringList{AbilityName(17), SpecabilityName(4)}));
    EXPECT_EQ(test.form.Abilities(17).ToolTip(), "Value for this ability is 1.1");
    EXPECT_EQ(test.state.AbilityCurrentValue[17], 1.1F);
    test.form.Specabilities(4).SetTicked(false);
    EXPECT_EQ(test.state.SpellPoints1Count, -2);
    test.form.Specabilities(4).SetTicked(true);
    EXPECT_EQ(test.form.Abilities(17).ToolTip(), "Значение способности - 1.1");
}

TEST(Abilities, ASecondNatureIsTakenBackWithoutAWord) {
    constexpr int natures[] = {49, 65, 111, 164};
    TestProgram test;
    for (const int first : natures) {
        test.form.Abilities(first).SetTicked(true);
        for (const int second : natures)
            if (second != first) {
                test.form.Abilities(second).SetTicked(true);
                EXPECT_EQ(test.Ticked(), QStringList{AbilityName(first)}) << second;
                EXPECT_EQ(test.form.Abilities(second).ToolTip(), "1");
                EXPECT_EQ(test.state.AbilityCurrentValue[static_cast<std::size_t>(second)], 1.0F);
            }
        test.form.Abilities(first).SetTicked(false);
    }
    EXPECT_TRUE(test.platform.boxes.empty());
}

TEST(Abilities, CasterAndShooterOpenTheirFieldsAndCloseThemEmpty) {
    const struct {
        int ability;
        TextField MainForm::*field;
        QStringList opened;
    } cases[] = {
        {29, &MainForm::txtMana, {"Tablus.Tab(2)", "cmdRAS", "FrameMana", "txtMana"}},
        {147, &MainForm::txtShots, {"ComboRange", "FrameRange", "FrameShots", "txtShots"}},
    };
    for (const auto& row : cases) {
        TestProgram test;
        TextField& field = test.form.*row.field;
        const auto expectOpen = [&](bool open) {
            for (const QString& name : row.opened)
                EXPECT_EQ(test.form.Find(name)->Enabled(), open) << name.toStdString();
            EXPECT_EQ(field.Usable(), open);
            EXPECT_EQ(test.form.Tablus.Tab(2).Visible(), open && row.ability == 29);
        };
        expectOpen(false);
        for (const char* text : {"0", ""}) { // "0" at the start only
            test.form.Abilities(row.ability).SetTicked(true);
            expectOpen(true);
            EXPECT_EQ(field.Text(), text);
            field.SetText("25");
            test.form.Abilities(row.ability).SetTicked(false);
            expectOpen(false);
            EXPECT_EQ(field.Text(), "");
        }
        EXPECT_EQ(test.platform.focus, (QStringList{field.Name(), field.Name()}));
    }
}

} // namespace

} // namespace Hesperin
