#include "support/test_program.h"
#include "ui/window_commands.h"

#include <gtest/gtest.h>

namespace Hesperin {

namespace {

TEST(ConfirmQuit, AfterANoNothingHasHappened) {
    TestProgram test;
    test.Write("lang.ini", "EN");
    test.form.mnuRussian.Click();
    test.platform.answerYes = false;
    test.form.mnuQuit.Click();
    EXPECT_FALSE(Form_Unload(test.program));
    ASSERT_EQ(test.platform.boxes.size(), 2U);
    EXPECT_EQ(test.platform.boxes[0].icon, BoxIcon::Question);
    EXPECT_EQ(test.platform.boxes[0].title, "Выход из программы");
    EXPECT_EQ(test.platform.boxes[0].text, "Вы хотите выйти?");
    EXPECT_FALSE(test.platform.ended);
    EXPECT_EQ(ReadAll(test.Path("lang.ini")), "EN");
}

TEST(ConfirmQuit, AfterAYesTheLanguageIsRememberedAndTheProcessEnds) {
    for (const bool byMenu : {false, true})
        for (const Language language : {English, Russian}) {
            TestProgram test(language);
            if (byMenu)
                test.form.mnuQuit.Click();
            else
                EXPECT_TRUE(Form_Unload(test.program));
            EXPECT_TRUE(test.platform.ended);
            EXPECT_EQ(test.platform.boxes.size(), 1U);
            EXPECT_EQ(ReadAll(test.Path("lang.ini")), language == English ? "EN" : "RU");
        }
}

TEST(ConfirmQuit, ALanguageFileThatCannotBeWrittenKeepsNobodyFromLeaving) {
    TestProgram test;
    test.platform.programFolder = test.Write("file", "") + "/program";
    EXPECT_TRUE(ConfirmQuit(test.program));
    EXPECT_EQ(ReadAll(test.Path("settings/lang.ini")), "EN");
    test.platform.settingsFolder = test.Path("file/settings");
    test.platform.ended = false;
    EXPECT_TRUE(ConfirmQuit(test.program));
    EXPECT_TRUE(test.platform.ended);
}

TEST(KeyFilters, LetThroughWhatTheirFieldsHold) {
    const QString digits = "\b0123456789";
    const QString letters = "\bABCDEFGHIJKLMNOPQRSTUVWXYZ_abcdefghijklmnopqrstuvwxyz";
    TestProgram test;
    int fields = 0;
    for (const Control* control : test.form.Controls())
        if (const auto* field = dynamic_cast<const TextField*>(control)) {
            SCOPED_TRACE(field->Name().toStdString());
            ++fields;
            if (field == &test.form.txtIDC) { // has no filter
                EXPECT_TRUE(field->Accepts(u'-') && field->Accepts(u'Ж'));
                continue;
            }
            const QString& allowed = field == &test.form.txtNC ? letters : digits;
            QString accepted;
            for (char32_t key = 1; key <= 0xFFFF; ++key)
                if (field->Accepts(static_cast<char16_t>(key)))
                    accepted += QChar(key);
            EXPECT_EQ(accepted, allowed);
        }
    EXPECT_EQ(fields, 19);
    for (const QChar key : QStringView(u"a\b1-Ж\b2345"))
        test.form.txtHealth.Type(key.unicode());
    EXPECT_EQ(test.form.txtHealth.Text(), "234");
}

TEST(ListRules, FactionAndRangeDriveTheGamesWords) {
    TestProgram test;
    const QStringList aliases{"HEAVEN",  "INFERNO",  "NECROMANCY", "PRESERVE", "DUNGEON",
                              "ACADEMY", "FORTRESS", "STRONGHOLD", "NO_TYPE"};
    for (std::int16_t i = 0; i < 9; ++i) {
        test.form.ComboFaction.Select(i);
        EXPECT_EQ(test.form.ComboAlias.Text(), aliases[i]);
    }
    for (std::int16_t i = 2; i >= 0; --i) {
        test.form.ComboRange.Select(i);
        EXPECT_EQ(test.form.ComboDiapazon.Text(), QString::number(-i));
    }
}

TEST(ListRules, OfTwoEqualElementsTheLastChosenFallsBack) {
    enum List { First, Second };
    const struct {
        const char* what;
        std::vector<std::pair<List, std::int16_t>> choices;
        const char* first;
        const char* second;
    } cases[] = {
        {"different", {{First, 3}, {Second, 1}}, "Fire", "Air"},
        {"second equal", {{First, 3}, {Second, 3}}, "Fire", "None"},
        {"first equal", {{Second, 4}, {First, 4}}, "None", "Water"},
        {"back to another", {{First, 3}, {Second, 1}, {First, 1}}, "None", "Air"},
        {"none in both", {{First, 3}, {First, 0}, {Second, 0}}, "None", "None"},
        {"free again", {{First, 3}, {Second, 3}, {First, 2}, {Second, 3}}, "Earth", "Fire"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.what);
        TestProgram test;
        for (const auto& [list, index] : row.choices)
            (list == First ? test.form.ComboFME : test.form.ComboSME).Select(index);
        EXPECT_EQ(test.form.ComboFME.Text(), row.first);
        EXPECT_EQ(test.form.ComboSME.Text(), row.second);
    }
}

TEST(ListRules, UpgradeSetsItsFactorAtOnce) {
    TestProgram test;
    test.form.ComboUpgrade.Select(1);
    EXPECT_EQ(test.state.UpgradeFactor, 1.6F);
    test.form.ComboUpgrade.Select(0);
    EXPECT_EQ(test.state.UpgradeFactor, 1.0F);
}

TEST(Calculator, TriesTheNamesInOrderUntilOneStarts) {
    const struct {
        QStringList startable;
        QStringList started;
        QStringList status;
    } cases[] = {
        {{"one", "two"}, {"one"}, {}},
        {{"two", "three"}, {"one", "two"}, {}},
        {{}, {"one", "two", "three"}, {"No calculator could be started; looked for: one, two, three."}},
    };
    for (const auto& row : cases) {
        TestProgram test;
        test.platform.calculators = QStringList{"one", "two", "three"};
        test.platform.startable = row.startable;
        test.form.mnuCalculator.Click();
        EXPECT_EQ(test.platform.started, row.started);
        EXPECT_EQ(test.platform.status, row.status);
        EXPECT_EQ(test.form.frmMain.Enabled(), row.status.isEmpty());
        EXPECT_TRUE(test.platform.boxes.empty());
    }
}

TEST(AlternativeMethod, IsShownWithACheckMarkAndHiddenWithout) {
    TestProgram test;
    for (const bool shown : {true, false, true}) {
        test.form.mnuAlternativeMethod.Click();
        EXPECT_EQ(test.form.frmAM.Visible(), shown);
        EXPECT_EQ(test.form.mnuAlternativeMethod.Checked(), shown);
        EXPECT_TRUE(test.form.frmMM.Visible());
    }
}

TEST(SecondaryWindows, LockTheMainWindow) {
    TestProgram test;
    test.form.mnuAbout.Click();
    EXPECT_FALSE(test.form.frmMain.Enabled());
    test.form.frmMain.SetEnabled(true);
    Abilities_RightClick(test.program, 66);
    EXPECT_FALSE(test.form.frmMain.Enabled());
    EXPECT_EQ(test.platform.opened, (std::vector{SecondaryWindow::About, SecondaryWindow::AbilityInformation}));
    EXPECT_EQ(test.state.AbilityInfoIndex, 66);
    EXPECT_FALSE(test.form.Abilities(66).Ticked());
}

TEST(Buttons, CalcAndNewAreWired) {
    TestProgram test;
    test.FillInCreature();
    test.form.cmdCalc.Click();
    EXPECT_EQ(test.form.lblPowerRolvane.Caption(), "129");
    test.form.Abilities(16).SetTicked(true);
    test.form.mnuNew.Click();
    EXPECT_EQ(test.form.lblPowerRolvane.Caption(), "");
    EXPECT_EQ(test.form.txtAttack.Text(), "0");
    EXPECT_FALSE(test.form.Abilities(16).Ticked());
    EXPECT_FALSE(test.form.mnuSave.Enabled());
    EXPECT_EQ(test.form.frmMain.Caption(), "TALMIR v0.0.0.44");
}

} // namespace

} // namespace Hesperin
