#include "localisation/language_menu.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

#include <map>

namespace Hesperin {

namespace {

/// Special ability by ability. The links follow the tokens, save for two pairs of different tokens
/// and eleven equal ones that are not linked.
std::map<int, int> ExpectedLinks(const MainForm& form) {
    const QStringList unlinked{"AGILITY",    "BEAR_ROAR",  "DEATH_CLOUD",      "DEATH_WAIL", "ENRAGED",         "FEAR",
                               "LIFE_DRAIN", "MANA_DRAIN", "ENTANGLING_ROOTS", "VENOM",      "POISONOUS_ATTACK"};
    std::map<int, int> links{{128, 37}, {129, 38}};
    for (const CheckBox& ability : form.Abilities)
        for (const CheckBox& specability : form.Specabilities)
            if (ability.Caption() == specability.Caption() && !unlinked.contains(ability.Caption()))
                links[ability.ArrayIndex()] = specability.ArrayIndex();
    return links;
}

QString AbilityName(int i) { return QString("Abilities(%1)").arg(i); }
QString SpecabilityName(int j) { return QString("Specabilities(%1)").arg(j); }

TEST(Links, EveryAbilityTicksItsPartnerAndMovesCounterAndFlag) {
    TestProgram test;
    const std::map<int, int> links = ExpectedLinks(test.form);
    ASSERT_EQ(links.size(), 36U);
    for (int i = 1; i <= 174; ++i) {
        SCOPED_TRACE(i);
        const bool linked = links.count(i) != 0;
        const int steps = linked ? 2 : (i == 75 || i == 132 ? 1 : 0);
        QStringList expected{AbilityName(i)};
        if (linked)
            expected.append(SpecabilityName(links.at(i)));
        test.state.SpecabilityFlag = FlagFalse;
        test.form.Abilities(i).SetTicked(true);
        EXPECT_EQ(test.Ticked(), expected);
        EXPECT_EQ(test.state.SpellPoints1Count, steps);
        EXPECT_EQ(test.state.SpecabilityFlag, steps > 0 ? -1 : 0);
        EXPECT_EQ(test.form.saz(linked ? links.at(i) : 1).Enabled(), linked);
        test.state.SpecabilityFlag = FlagTrue;
        test.form.Abilities(i).SetTicked(false);
        EXPECT_EQ(test.Ticked(), QStringList());
        EXPECT_EQ(test.state.SpellPoints1Count, 0);
        EXPECT_EQ(test.state.SpecabilityFlag, steps > 0 ? 0 : -1);
    }
}

TEST(Links, EverySpecialAbilityTicksItsPartnerAndWritesTheFlag) {
    TestProgram test;
    std::map<int, int> abilities;
    for (const auto& [ability, specability] : ExpectedLinks(test.form))
        abilities[specability] = ability;
    for (int j = 1; j <= 54; ++j) {
        SCOPED_TRACE(j);
        const bool linked = abilities.count(j) != 0;
        QStringList expected;
        if (linked)
            expected.append(AbilityName(abilities.at(j)));
        expected.append(SpecabilityName(j));
        test.form.Specabilities(j).SetTicked(true);
        EXPECT_EQ(test.Ticked(), expected);
        EXPECT_EQ(test.state.SpellPoints1Count, linked ? 2 : (j == 3 || j == 49 ? 1 : 0));
        EXPECT_EQ(test.state.SpecabilityFlag, -1);
        EXPECT_TRUE(test.form.saz(j).Enabled());
        EXPECT_TRUE(!linked || test.form.Abilities(abilities.at(j)).ToolTip().startsWith("Value"));

        test.form.saz(j).ClickOption(3);
        test.form.Specabilities(j).SetTicked(false);
        EXPECT_EQ(test.Ticked(), QStringList());
        EXPECT_EQ(test.state.SpellPoints1Count, 0);
        EXPECT_EQ(test.state.SpecabilityFlag, 0);
        EXPECT_FALSE(test.form.saz(j).Enabled());
        EXPECT_EQ(test.form.saz(j).Value(), 0);
        EXPECT_EQ(test.form.saz(j).SelectedOption(), 0);
    }
}

TEST(Links, TheFlagIsTheSenseOfTheLastClick) {
    TestProgram test;
    test.form.Abilities(17).SetTicked(true);
    test.form.Specabilities(1).SetTicked(true);
    test.form.Abilities(4).SetTicked(true);
    EXPECT_EQ(test.state.SpellPoints1Count, 4);
    test.form.Abilities(17).SetTicked(false);
    EXPECT_EQ(test.state.SpellPoints1Count, 2);
    EXPECT_EQ(test.state.SpecabilityFlag, 0);
    EXPECT_TRUE(test.form.saz(1).Enabled());
    test.form.Abilities(16).SetTicked(true); // in no table
    EXPECT_EQ(test.state.SpecabilityFlag, 0);
    test.form.Specabilities(1).SetTicked(false);
    test.form.Abilities(75).SetTicked(true);
    EXPECT_EQ(test.state.SpecabilityFlag, -1);
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

TEST(Abilities, ShowTheirValueOnceTheyHaveChanged) {
    TestProgram test;
    CheckBox& bash = test.form.Abilities(16);
    EXPECT_EQ(bash.ToolTip(), "");
    EXPECT_EQ(test.state.AbilityCurrentValue[16], 1.0F);
    bash.SetTicked(true);
    EXPECT_EQ(bash.ToolTip(), "Value for this ability is 1.08");
    EXPECT_EQ(test.state.AbilityCurrentValue[16], 1.08F);
    bash.SetTicked(false);
    EXPECT_EQ(bash.ToolTip(), "1");
    EXPECT_EQ(test.state.AbilityCurrentValue[16], 1.0F);
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
