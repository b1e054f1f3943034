#include "creature_files/creature_xml.h"
#include "app/handlers/file_menu.h"
#include "app/window_snapshot.h"
#include "xml/xml_document.h"

#include <gtest/gtest.h>

#include <QDir>

namespace Hesperin {

namespace {

/// Opens a creature that leaves nothing in the window as it was at the start.
void OpenCaster(TestProgram& test) {
    const CreatureXml document = CreatureXml()
                                     .Set("SpellPoints", "8")
                                     .Set("Shots", "5")
                                     .Spell("SLOW", "EXPERT")
                                     .Spell("ABILITY_DASH", "BASIC")
                                     .Ability("UNDEAD");
    ASSERT_TRUE(OpenCreatureFile(test.program, test.Write("Creature_200.xdb", document.Bytes())));
    ASSERT_EQ(test.form.txtIDC.Text(), "200");
    test.platform.boxes.clear();
}

TEST(Open, ARefusedFileChangesNothing) {
    struct Refused {
        const char* what;
        QString name;
        QByteArray bytes;
        int line; // 0: the message names no place
    };
    for (const Language language : {English, Russian}) {
        TestProgram test(language);
        OpenCaster(test);
        QDir(test.folder.path()).mkdir("folder.xdb");
        const QByteArray valid = CreatureXml().Bytes();
        for (const Refused& refused : std::initializer_list<Refused>{
                 {"missing", "nowhere.xdb", {}, 0},
                 {"missing, with an odd name", "50%1 %2.xdb", {}, 0},
                 {"folder", "folder.xdb", {}, 0},
                 {"more than a megabyte", "big.xdb", valid + QByteArray(1 << 20, ' '), 0},
                 {"empty", "empty.xdb", "", 0},
                 {"cut off", "cut.xdb", "<Creature>\n\n<Exp>5</Exp>", 3},
                 {"not well-formed", "bad.xdb", "<Creature>\n<Exp>5</Gold></Creature>", 2},
                 {"another document", "monster.xdb", "<?xml version='1.0'?>\n<Monster/>", 2},
                 {"too long", "long.xdb", CreatureXml().Set("Exp", QString(33000, u'5')).Bytes(), 0},
                 {"nulls", "null.xdb", QByteArray(64, '\0'), 0}}) {
            SCOPED_TRACE(QString("%1 %2").arg(language).arg(refused.what).toStdString());
            const bool onDisk = QFileInfo(test.Path(refused.name)).isDir() || refused.name.startsWith("nowhere") ||
                                refused.name.startsWith("50");
            const QString path = onDisk ? test.Path(refused.name) : test.Write(refused.name, refused.bytes);
            const QStringList before = Snapshot(test);
            test.platform.boxes.clear();
            test.platform.dialogPath = path;
            test.form.mnuOpen.Click();
            EXPECT_EQ(Snapshot(test), before);
            EXPECT_EQ(test.form.ComDialog.FileName, test.Path("Creature_200.xdb"));
            ASSERT_EQ(test.platform.boxes.size(), 1U);
            const ScriptedPlatform::Box& box = test.platform.boxes.front();
            EXPECT_EQ(static_cast<int>(box.icon), static_cast<int>(BoxIcon::Critical));
            EXPECT_EQ(box.title, language == English ? "Warning!" : QString::fromUtf8("Внимание!"));
            EXPECT_TRUE(box.text.contains('"' + path + '"')) << box.text.toStdString();
            EXPECT_EQ(test.program.failure, box.text);
            const QString place = language == English ? "line %1," : QString::fromUtf8("строка %1,");
            EXPECT_TRUE(refused.line == 0 || box.text.contains(place.arg(refused.line))) << box.text.toStdString();
            const QString reason = QString(box.text).remove('"' + path + '"');
            const bool cyrillic =
                std::any_of(reason.begin(), reason.end(), [](QChar c) { return c.script() == QChar::Script_Cyrillic; });
            EXPECT_EQ(cyrillic, language == Russian) << reason.toStdString();
        }
    }
}

TEST(Open, TellsWhatTheParserSaysInTheLanguageOfTheWindow) {
    const struct {
        const char* document;
        const char* english;
        const char* russian;
    } cases[] = {
        {"<Creature></Gold>", "Opening and ending tag mismatch.", "Открывающий и закрывающий теги не совпадают."},
        {"<Creature>&x;</Creature>", "Entity 'x' not declared.", "Сущность 'x' не объявлена."},
        {"<Creature a='' a=''/>", "Attribute 'a' redefined.", "Атрибут 'a' указан дважды."},
        {"<Creature/><x/>", "Extra content at end of document.", "За концом документа стоит что-то ещё."},
        {"<Creature a=1/>", "Expected ''' or '\"', but got '[0-9]'.", "Ожидалось ''' или '\"', а стоит '[0-9]'."},
        {"<!DOCTYPE Creature [<!ENTITY e SYSTEM 'f'>]><Creature>&e;</Creature>",
         "Entity 'e' lies in another file, which is not read.",
         "Сущность 'e' находится в другом файле, а он не читается."},
    };
    for (const auto& test : cases)
        for (const auto& [language, words] : {std::pair(English, test.english), {Russian, test.russian}}) {
            TestProgram program(language);
            EXPECT_FALSE(OpenCreatureFile(program.program, program.Write("a.xdb", test.document)));
            EXPECT_TRUE(program.program.failure.contains(QString("XML: ") + words))
                << program.program.failure.toStdString();
        }
}

TEST(Open, TheLargestFileIsStillRead) {
    TestProgram test;
    QByteArray bytes = CreatureXml().Bytes();
    bytes += QByteArray((1 << 20) - bytes.size(), '\n');
    EXPECT_TRUE(OpenCreatureFile(test.program, test.Write("a.xdb", bytes)));
    EXPECT_FALSE(OpenCreatureFile(test.program, test.Write("a.xdb", bytes + '\n')));
}

TEST(Open, ACancelledDialogChangesNothing) {
    for (const std::optional<QString>& answer : {std::optional<QString>(), std::optional<QString>("")}) {
        TestProgram test;
        OpenCaster(test);
        const QStringList before = Snapshot(test);
        test.platform.dialogPath = answer;
        test.form.mnuOpen.Click();
        EXPECT_EQ(Snapshot(test), before);
        EXPECT_TRUE(test.platform.boxes.empty());
        EXPECT_EQ(test.platform.dialogFileName, test.Path("Creature_200.xdb")) << "offered: the last one";
        EXPECT_EQ(test.form.ComDialog.Filter, "Heroes of Might and Magic V Files (*.xdb )|*.xdb");
        EXPECT_EQ(test.form.ComDialog.InitialDirectory, test.platform.programFolder);
        EXPECT_EQ(test.form.ComDialog.DefaultExtension, "xdb");
    }
}

TEST(Open, KeepsTheNormalisedTextAndForgetsTheCreatureBefore) {
    TestProgram test;
    TestProgram fresh;
    OpenCaster(test);
    test.form.Specabilities(1).SetTicked(true); // no ability box reaches it
    const QByteArray bytes = CreatureXml().Bytes();
    for (TestProgram* program : {&test, &fresh})
        ASSERT_TRUE(OpenCreatureFile(program->program, test.Write("Creature_179.xdb", bytes)));
    EXPECT_EQ(test.form.RTBData.Text(), std::get<QString>(NormaliseXml(bytes, u"Creature", 32767)));
    EXPECT_EQ(test.state.SpellPoints1Count, 0);
    for (const Control* control : test.form.Controls()) {
        // The work buffers keep their last window; the tick taken away has emptied the shots.
        const bool differs =
            control == &test.form.RTBTEMP || control == &test.form.RTBSPEC || control == &test.form.txtShots;
        EXPECT_TRUE(differs || control->Shown() == fresh.form.Find(control->Name())->Shown())
            << control->Name().toStdString();
    }
    EXPECT_EQ(test.form.txtShots.Text(), "");
}

TEST(Open, TellsInOneBoxWhatWasMissingOrLimitedBeforeCalculateWarns) {
    const struct {
        const char* element;
        const char* control;
        const char* cleared;
    } cases[] = {
        {"AttackSkill", "txtAttack", "1"},
        {"DefenceSkill", "txtDefence", "1"},
        {"MinDamage", "txtMinDam", "1"},
        {"MaxDamage", "txtMaxDam", "1"},
        {"Speed", "ComboSpeed", "5"},
        {"Initiative", "ComboInitiative", "10"},
        {"Flying", "Abilities(66)", "0"},
        {"Health", "txtHealth", "1"},
        {"Exp", "txtExp", "0"},
        {"Power", "txtPower", "0"},
        {"CreatureTier", "ComboTier", "1"},
        {"Upgrade", "ComboUpgrade", "False"},
        {"CreatureTown", "ComboAlias", "NO_TYPE"},
        {"CombatSize", "Abilities(91)", "0"},
        {"Range", "ComboRange", "None"},
        {"TimeToCommand", "ComboTTC", "10"},
        {"SpellPoints", "Abilities(29)", "0"},
        {"Shots", "Abilities(147)", "0"},
        {"First", "ComboFME", "None"},
        {"Second", "ComboSME", "None"},
        {"WeeklyGrowth", "txtGrowthf", "0"},
        {"Wood", "txtWoodf", "0"},
        {"Ore", "txtOref", "0"},
        {"Mercury", "txtMercuryf", "0"},
        {"Crystal", "txtCrystalf", "0"},
        {"Sulfur", "txtSulfurf", "0"},
        {"Gem", "txtGemf", "0"},
        {"Gold", "txtGoldf", "0"},
    };
    CreatureXml bare;
    QStringList names;
    for (const auto& missing : cases) {
        SCOPED_TRACE(missing.element);
        TestProgram test;
        OpenCaster(test);
        ASSERT_TRUE(OpenCreatureFile(test.program, test.Write("a.xdb", CreatureXml().Remove(missing.element).Bytes())));
        ASSERT_FALSE(test.platform.boxes.empty());
        EXPECT_EQ(static_cast<int>(test.platform.boxes[0].icon), static_cast<int>(BoxIcon::Information));
        EXPECT_EQ(test.platform.boxes[0].text, QString("Missing in the file, so left empty: %1.").arg(missing.element));
        EXPECT_EQ(test.form.Find(missing.control)->Shown(), missing.cleared);
        bare.Remove(missing.element);
        names.append(missing.element);
    }
    TestProgram test;
    OpenCaster(test);
    ASSERT_TRUE(OpenCreatureFile(test.program, test.Write("a.xdb", bare.Reference({}).Bytes())));
    names.append("MonsterShared");
    const QString text = test.platform.boxes[0].text;
    for (const QString& name : names)
        EXPECT_EQ(text.count(name), 1) << name.toStdString();
    EXPECT_EQ(test.state.file.FilePower + test.state.file.FileExperience + test.state.file.FileGrowth + test.state.file.FileGold, 0);
    EXPECT_EQ(test.state.CreatureName, "Test");
    EXPECT_EQ(test.form.txtNC.Text(), "");
    EXPECT_FALSE(test.form.mnuSave.Enabled());
}

TEST(Open, NamesElementsWhoseClosingTagComesFirstAndLimitedNumbers) {
    const CreatureXml document =
        CreatureXml().Lead("<Speed kind=\"x\">3</Speed>").Set("Exp", "99999 %1").Set("Gold", "-40000.7");
    TestProgram test;
    ASSERT_TRUE(OpenCreatureFile(test.program, test.Write("a.xdb", document.Bytes())));
    EXPECT_EQ(test.platform.boxes[0].text, "Missing in the file, so left empty: Speed.\n"
                                           "Outside the range -32768 to 32767, so limited: "
                                           "Exp 99999 %1 (32767), Gold -40000.7 (-32768).");
    EXPECT_EQ(test.form.ComboSpeed.Text(), "5");
    EXPECT_EQ(test.state.file.FileExperience, 32767);
    EXPECT_EQ(test.state.file.FileGold, -32768);
}

TEST(Open, TakesTheNameAsTheReferenceHasIt) {
    const struct {
        const char* href;
        const char* name;
    } cases[] = {
        {"/a/b/bog_WYRM.(AdvMapMonsterShared).xdb#xpointer(/AdvMapMonsterShared)", "bog_WYRM"},
        {"/a/Wyrm.xdb#xpointer(/AdvMapMonsterShared)", "Wyrm"},
        {"/Wyrm of  bogs.xdb#xpointer(/AdvMapMonsterShared)", "Wyrm of  bogs"},
        {"Wyrm.xdb#xpointer(/AdvMapMonsterShared)", ""},
    };
    for (const auto& test : cases) {
        TestProgram program;
        ASSERT_TRUE(
            OpenCreatureFile(program.program, program.Write("a.xdb", CreatureXml().Reference(test.href).Bytes())));
        EXPECT_EQ(program.form.txtNC.Text(), test.name);
        EXPECT_EQ(program.state.CreatureName, test.name);
    }
}

TEST(Open, TakesTheCreatureNumberFromTheFileName) {
    const struct {
        const char* name;
        const char* number;
    } cases[] = {{"Creature_179.xdb", ""},
                 {"Creature_180.xdb", "180"},
                 {"Creature_999.XDB", "999"},
                 {"Peasant.xdb", ""},
                 {"1000.xdb", ""},
                 {"1500.xdb", "500"},
                 {"Creature_200.xml1", ""},
                 {"180", "180"},
                 {"250.x", "250"},
                 {"9.xdb", ""},
                 {"2e3.xdb", "2e3"}};
    const QString home = QDir::currentPath();
    for (const auto& test : cases) {
        TestProgram program;
        program.Write(test.name, CreatureXml().Bytes());
        QDir::setCurrent(program.folder.path());
        ASSERT_TRUE(OpenCreatureFile(program.program, test.name));
        QDir::setCurrent(home);
        EXPECT_EQ(program.form.txtIDC.Text(), test.number) << test.name;
    }
}

TEST(New, ResetsAndAsksForTheName) {
    TestProgram test;
    OpenCaster(test);
    test.form.mnuNew.Click();
    EXPECT_EQ(test.platform.Texts(), QStringList{"Please introduce creature's name in the project TCX!"});
    EXPECT_EQ(static_cast<int>(test.platform.boxes[0].icon), static_cast<int>(BoxIcon::Critical));
    EXPECT_EQ(test.platform.focus.last(), "txtNC");
    EXPECT_FALSE(test.state.CreatureFileLoaded);
    EXPECT_FALSE(test.form.mnuSave.Enabled() || test.form.Tablus.Tab(2).On() || test.form.Tablus.Tab(4).On());
    EXPECT_EQ(test.form.txtNC.Text() + test.form.txtMana.Text(), "");
}

} // namespace

} // namespace Hesperin
