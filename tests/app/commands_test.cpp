#include "support/test_program.h"
#include "app/handlers/form_load.h"
#include "app/handlers/options_menu.h"

#include <gtest/gtest.h>

namespace Hesperin {

namespace {

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
}

TEST(ListRules, FactionRangeAndUpgradeDriveWhatBelongsToThem) {
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
    for (const std::int16_t upgrade : std::initializer_list<std::int16_t>{1, 0}) {
        test.form.ComboUpgrade.Select(upgrade);
        EXPECT_EQ(test.state.UpgradeFactor, upgrade == 1 ? 1.6F : 1.0F);
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

TEST(Calculator, TriesTheNamesInOrderUntilOneStarts) {
    const struct {
        QStringList startable;
        QStringList started;
        QStringList told;
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
        EXPECT_EQ(test.platform.Texts(), row.told);
        EXPECT_TRUE(test.form.frmMain.Enabled());
    }
}

TEST(HighContrast, IsRememberedByTheWindowAlone) {
    TestProgram test;
    for (const bool on : {true, false}) {
        test.form.mnuHighContrast.Click();
        EXPECT_EQ(test.form.mnuHighContrast.Checked(), on);
        EXPECT_EQ(ReadAll(test.Path("contrast.ini")), on ? "HIGH" : "GIVEN");
        Program next(test.platform);
        Form_Load(next, {English, false});
        EXPECT_FALSE(next.form.mnuHighContrast.Checked());
        RestoreHighContrast(next);
        EXPECT_EQ(next.form.mnuHighContrast.Checked(), on);
    }
}

TEST(AlternativeMethod, IsShownWithACheckMarkAndHiddenWithout) {
    TestProgram test;
    for (const bool shown : {true, false}) {
        test.form.mnuAlternativeMethod.Click();
        EXPECT_EQ(test.form.frmAM.Visible(), shown);
        EXPECT_EQ(test.form.mnuAlternativeMethod.Checked(), shown);
    }
}

} // namespace

} // namespace Hesperin
