#include "support/test_program.h"
#include "app/handlers/form_load.h"

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
    EXPECT_TRUE(test.platform.boxes.empty());
}

TEST_F(StartUp, TheLanguageFileChoosesTheLanguageAndTheAbilityTexts) {
    test.Write("lang.ini", "RU\r\n");
    test.Write("RU/Text/Game/Creatures/Creature_abilities/Bash/Bash_name.txt", "Оглушение");
    EXPECT_TRUE(Form_Load(test.program));
    EXPECT_EQ(form.FrameAttack.Caption(), "Нападение");
    EXPECT_EQ(test.state.LanguageId, 2);
    EXPECT_EQ(form.ComboFaction.Text(), "Неизвестно");
    EXPECT_EQ(form.utbN(16).Text(), "Оглушение");
    EXPECT_EQ(ReadAll(test.Path("lang.ini")), "RU\r\n"); // rewritten at quit only
}

TEST_F(StartUp, IsRefusedBesideAnotherInstanceWithTheFileToDeleteIfThatIsElsewhere) {
    test.Write("lang.ini", "RU");
    const QString lock = QDir::toNativeSeparators("/home/a %1/talmir.lock");
    const std::pair<RunningInstance, QString> cases[] = {{{"", lock}, "Нельзя запускать эту программу дважды!"},
                                                         {{"attic", lock},
                                                          "TALMIR уже запущена на компьютере \"attic\" или была там "
                                                          "прервана. Если она там не запущена, удалите файл \"" +
                                                              lock + "\" и запустите её снова."}};
    for (const auto& [other, text] : cases) {
        test.platform.otherInstance = other;
        EXPECT_EQ(test.BoxesOf([&] { EXPECT_FALSE(Form_Load(test.program)); }), QStringList{text});
    }
}

TEST_F(StartUp, FieldsAndListsShowTheirFirstValues) {
    EXPECT_TRUE(Form_Load(test.program));
    QStringList fields; // with their lengths
    QStringList lists;
    for (const Control* control : form.Controls()) {
        const QString shown = control->Name() + (control->Usable() ? " " : " off ") + control->Shown();
        if (const auto* field = dynamic_cast<const TextField*>(control))
            fields.append(shown + '/' + QString::number(field->MaxLength()));
        if (const auto* list = dynamic_cast<const ComboBox*>(control))
            lists.append(shown + " of " + list->Items().join(' '));
    }
    EXPECT_EQ(
        fields.join(", "),
        "txtNC /0, txtIDC off /0, txtAttack 0/2, txtDefence 0/2, txtMinDam 0/2, txtMaxDam 0/2, txtHealth 0/3, "
        "txtPower 0/5, txtExp 0/4, txtShots off 0/2, txtGrowthf 0/5, txtGoldf 0/4, txtMana off 0/3, txtWoodf 0/5, "
        "txtOref 0/4, txtMercuryf 0/5, txtCrystalf 0/4, txtSulfurf 0/5, txtGemf 0/4");
    const QStringList expected{
        "ComboTier 1 of 1 2 3 4 5 6 7 8",
        "ComboSpeed 5 of 1 2 3 4 5 6 7 8 9",
        "ComboInitiative 10 of 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20",
        "ComboFaction Unknown of Haven Inferno Necropolis Sylvan Dungeon Academy Fortress Stronghold Unknown",
        "ComboFME None of None Air Earth Fire Water",
        "ComboUpgrade False of False True",
        "ComboSME None of None Air Earth Fire Water",
        "ComboRange off None of None Max Half",
        "ComboTTC 10 of 10 15",
        "ComboAlias off NO_TYPE of HEAVEN INFERNO NECROMANCY PRESERVE DUNGEON ACADEMY FORTRESS STRONGHOLD NO_TYPE",
        "ComboDiapazon off 0 of 0 -1 -2"};
    EXPECT_EQ(lists, expected);
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
