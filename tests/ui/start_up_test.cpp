#include "support/test_program.h"
#include "ui/form_load.h"

#include <gtest/gtest.h>

#include <QDir>

namespace Hesperin {

namespace {

/// A program that starts as for a user, with its lang.ini.
struct StartUp : testing::Test {
    TestProgram test{English, TestProgram::Start::Bare};
    MainForm& form = test.form;
};

TEST_F(StartUp, AFirstRunIsEnglishAndLeavesALanguageFile) {
    EXPECT_TRUE(Form_Load(test.program));
    EXPECT_EQ(ReadAll(test.Path("lang.ini")), "EN");
    EXPECT_EQ(form.FrameAttack.Caption(), "Attack");
    EXPECT_TRUE(form.mnuEnglish.Checked());
    EXPECT_FALSE(form.mnuRussian.Checked());
    EXPECT_TRUE(test.platform.boxes.empty());
    EXPECT_FALSE(test.platform.ended);
}

TEST_F(StartUp, TheLanguageFileChoosesTheLanguageAndTheAbilityTexts) {
    test.Write("lang.ini", "RU\r\n");
    QDir(test.folder.path()).mkpath("RU/Text/Game/Creatures/Creature_abilities/Bash");
    test.Write("RU/Text/Game/Creatures/Creature_abilities/Bash/Bash_name.txt", "Оглушение");
    EXPECT_TRUE(Form_Load(test.program));
    EXPECT_EQ(form.FrameAttack.Caption(), "Нападение");
    EXPECT_EQ(test.state.LanguageId, 2);
    EXPECT_TRUE(form.mnuRussian.Checked());
    EXPECT_EQ(form.ComboFaction.Text(), "Неизвестно");
    EXPECT_EQ(form.utbN(16).Text(), "Оглушение");
    EXPECT_EQ(ReadAll(test.Path("lang.ini")), "RU\r\n"); // rewritten at quit only
}

TEST_F(StartUp, ASecondInstanceIsToldInItsLanguageAndSetsNothingUp) {
    test.Write("lang.ini", "RU");
    test.platform.otherInstanceRuns = true;
    EXPECT_FALSE(Form_Load(test.program));
    ASSERT_EQ(test.platform.boxes.size(), 1U);
    EXPECT_EQ(test.platform.boxes[0].icon, BoxIcon::Critical);
    EXPECT_EQ(test.platform.boxes[0].title, "Внимание!");
    EXPECT_EQ(test.platform.boxes[0].text, "Нельзя запускать эту программу дважды!");
    EXPECT_EQ(form.frmMain.Caption(), "");
    EXPECT_TRUE(form.ComboTier.Items().isEmpty());
    EXPECT_EQ(ReadAll(test.Path("lang.ini")), "RU");
}

TEST_F(StartUp, FieldsAndListsShowTheirFirstValues) {
    const struct {
        const char* control;
        const char* text;
        const char* items; ///< null for a field
        int longest;
        bool usable;
    } cases[] = {
        // clang-format off
        {"txtNC", "", nullptr, 0, true},        {"txtIDC", "", nullptr, 0, false},
        {"txtAttack", "0", nullptr, 2, true},   {"txtDefence", "0", nullptr, 2, true},
        {"txtMinDam", "0", nullptr, 2, true},   {"txtMaxDam", "0", nullptr, 2, true},
        {"txtHealth", "0", nullptr, 3, true},   {"txtShots", "0", nullptr, 2, false},
        {"txtMana", "0", nullptr, 3, false},    {"txtPower", "0", nullptr, 5, true},
        {"txtExp", "0", nullptr, 4, true},      {"txtGoldf", "0", nullptr, 4, true},
        {"txtGrowthf", "0", nullptr, 5, true},  {"txtWoodf", "0", nullptr, 5, true},
        {"txtOref", "0", nullptr, 4, true},     {"txtMercuryf", "0", nullptr, 5, true},
        {"txtCrystalf", "0", nullptr, 4, true}, {"txtSulfurf", "0", nullptr, 5, true},
        {"txtGemf", "0", nullptr, 4, true},
        // clang-format on
        {"ComboTier", "1", "1 2 3 4 5 6 7 8", 0, true},
        {"ComboSpeed", "5", "1 2 3 4 5 6 7 8 9", 0, true},
        {"ComboInitiative", "10", "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20", 0, true},
        {"ComboFaction", "Unknown", "Haven Inferno Necropolis Sylvan Dungeon Academy Fortress Stronghold Unknown", 0,
         true},
        {"ComboUpgrade", "False", "False True", 0, true},
        {"ComboFME", "None", "None Air Earth Fire Water", 0, true},
        {"ComboSME", "None", "None Air Earth Fire Water", 0, true},
        {"ComboRange", "None", "None Max Half", 0, false},
        {"ComboTTC", "10", "10 15", 0, true},
        {"ComboAlias", "NO_TYPE", "HEAVEN INFERNO NECROMANCY PRESERVE DUNGEON ACADEMY FORTRESS STRONGHOLD NO_TYPE", 0,
         false},
        {"ComboDiapazon", "0", "0 -1 -2", 0, false},
    };
    EXPECT_TRUE(Form_Load(test.program));
    for (const auto& row : cases) {
        SCOPED_TRACE(row.control);
        const Control* control = form.Find(row.control);
        EXPECT_EQ(control->Shown(), row.text);
        EXPECT_EQ(control->Usable(), row.usable);
        if (const auto* field = dynamic_cast<const TextField*>(control)) {
            EXPECT_EQ(field->MaxLength(), row.longest);
        } else {
            EXPECT_EQ(dynamic_cast<const ComboBox&>(*control).Items().join(' '), row.items);
        }
    }
}

TEST_F(StartUp, TheIdleWindow) {
    form.Spells(3).SetTicked(true); // whatever stood there is cleared
    form.saz(0).SetValue(4);
    test.state.CreatureFileLoaded = true;
    EXPECT_TRUE(Form_Load(test.program));
    EXPECT_EQ(form.frmMain.Caption(), "TALMIR v0.0.0.44");
    EXPECT_EQ(form.Tablus.Shown(), "Parametres | Abilities | Specabilities");
    EXPECT_EQ(form.Tablus.Tab(4).Caption(), "XDB");
    const QStringList off{"mnuSave",          "mnuFrench", "mnuGerman", "mnuAlternativeMethod", "mnuHelp",
                          "cmdRAS",           "frmMM",     "frmAM",     "FrameAlias",           "FrameDiapazon",
                          "Specabilities(0)", "saz(0)",    "soq(3)"};
    const QStringList on{"mnuNew",  "mnuOpen", "mnuQuit", "mnuEnglish",  "mnuRussian",   "mnuCalculator",   "mnuAbout",
                         "cmdCalc", "cmdRAP",  "cmdRAA",  "cmdResetAll", "Abilities(1)", "Specabilities(1)"};
    for (const QString& name : off + on)
        EXPECT_EQ(form.Find(name)->Usable(), on.contains(name)) << name.toStdString();
    EXPECT_TRUE(form.frmMM.Visible());
    EXPECT_EQ(form.saz(0).Value(), 0);
    EXPECT_EQ(test.Ticked(), QStringList());
    EXPECT_FALSE(test.state.CreatureFileLoaded);
    EXPECT_EQ(test.state.CreatureName, "Test");
    EXPECT_EQ(test.state.UpgradeFactor, 1.0F);
    for (const float value : test.state.AbilityCurrentValue)
        EXPECT_EQ(value, 1.0F);

    QStringList languages;
    for (const MenuEntry* entry : {&form.mnuEnglish, &form.mnuRussian, &form.mnuFrench, &form.mnuGerman})
        languages.append(entry->Caption());
    EXPECT_EQ(languages.join(", "), "English, Русский [Russian], Franзais [French], Deutsch [German]");
    QStringList shortcuts;
    for (const Control* control : form.Controls())
        if (const auto* entry = dynamic_cast<const MenuEntry*>(control);
            entry != nullptr && !entry->Shortcut().isEmpty())
            shortcuts.append(entry->Name() + ' ' + entry->Shortcut());
    EXPECT_EQ(shortcuts.join(", "), "mnuNew Ctrl+N, mnuOpen Ctrl+O, mnuSave Ctrl+S, mnuQuit Ctrl+Q, "
                                    "mnuCalculator Ctrl+C, mnuHelp F1, mnuAbout Ctrl+A");
}

} // namespace

} // namespace Hesperin
