#include "game_texts/ability_texts.h"

#include "app/handlers/options_menu.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace Hesperin {

namespace {

/// Writes a file of the text tree; `name` begins with the ability's folder.
void WriteText(const TestProgram& test, const QString& language, const QString& name, const QByteArray& bytes) {
    test.Write(language + "/Text/Game/Creatures/Creature_abilities/" + name + ".txt", bytes);
}

TEST(AbilityTexts, LieUnderTheGamesFileNames) {
    const struct {
        int index;
        const char* nameFile;
        const char* descFile;
    } cases[] = {
        // The eight odd ones.
        {37, "Cursing_attack/Cursing_attack_name", "Cursing_attack/Cursin_attack_desc"},
        {68, "Frightful_presence/Frightful_precence_name", "Frightful_presence/Frightful_presence_desc"},
        {95, "Life_drain/Life_drain_name", "Life_drain/Life_drain_desct"},
        {98, "Lizard_bite_name/Lizard_bite_name", "Lizard_bite_name/Lizard_bite_desc"},
        {102, "Magic_proof_50/Magic_proof50_name", "Magic_proof_50/Magic_proof50_desc"},
        {103, "Magic_proof_75/Magic_proof75_name", "Magic_proof_75/Magic_proof75_desc"},
        {132, "Rebirth/Rebrith_name", "Rebirth/Rebrith_desc"},
        {145, "Shiled_other/Shield_other_name", "Shiled_other/Shield_other_desc"},
        // Named after their folder.
        {2, "Acid_breath/Acid_breath_name", "Acid_breath/Acid_breath_desc"},
        {174, "Wound/Wound_name", "Wound/Wound_desc"},
        // Plainly named.
        {1, "AcidBlood/name", "AcidBlood/description"},
        {28, "Presence_of_the_storm/name", "Presence_of_the_storm/description"},
    };
    TestProgram test;
    WriteText(test, "EN", "Life_drain/Life_drain_desc", "not this one");
    WriteText(test, "EN", "Rebirth/Rebirth_name", "not this one");
    for (const auto& row : cases) {
        WriteText(test, "EN", row.nameFile, row.nameFile);
        WriteText(test, "EN", row.descFile, row.descFile);
    }
    LoadAbilityTexts(test.program);
    for (const auto& row : cases) {
        SCOPED_TRACE(row.index);
        EXPECT_EQ(test.form.utbN(row.index).Text(), row.nameFile);
        EXPECT_EQ(test.form.utbD(row.index).Text(), row.descFile);
        AbilityTextFiles(test.state, row.index);
        EXPECT_EQ(test.state.AbilityNameFile, QString(row.nameFile).section('/', 1));
        EXPECT_EQ(test.state.AbilityDescFile, QString(row.descFile).section('/', 1));
    }
}

TEST(AbilityTexts, AreDecodedByTheirBytes) {
    const QByteArray utf16le("\x16\x04\x61\0\x2C\x67", 6); // "Жa本"
    const QByteArray utf16be("\x04\x16\0\x61\x67\x2C", 6);
    const struct {
        const char* what;
        const char* language;
        QByteArray bytes;
        const char* text;
    } cases[] = {
        {"UTF-16 LE with a mark", "EN", QByteArray("\xFF\xFE") + utf16le, "Жa本"},
        {"UTF-16 BE with a mark", "EN", QByteArray("\xFE\xFF") + utf16be, "Жa本"},
        {"UTF-16 LE without a mark", "EN", QByteArray("F\0i\0r\0e\0", 8), "Fire"},
        {"UTF-8", "EN", "Жa本", "Жa本"},
        {"UTF-8 with a mark", "EN", "\xEF\xBB\xBFЖa本", "Жa本"},
        {"UTF-8 in Russian", "RU", "Жар", "Жар"},
        {"Windows-1252", "EN", "caf\xE9 \x80", "café €"},
        {"Windows-1251", "RU", "\xC6\xE0\xF0", "Жар"},
        {"the last letter would begin a UTF-8 sequence", "FR", "Agilit\xE9", "Agilité"},
        {"and so would the only one", "DE", "\xC4", "Ä"},
        {"only the mark", "EN", "\xFF\xFE", ""},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.what);
        TestProgram test;
        test.state.messages.LanguageCode = row.language;
        WriteText(test, row.language, "Bash/Bash_name", row.bytes);
        WriteText(test, row.language, "Bash/Bash_desc", row.bytes);
        LoadAbilityTexts(test.program);
        EXPECT_EQ(test.form.utbN(16).Text(), row.text);
        EXPECT_EQ(test.form.utbD(16).Text(), row.text);
    }
}

TEST(AbilityTexts, ANameLosesOneLineEndAndADescriptionNone) {
    const std::pair<const char*, const char*> cases[] = {
        // clang-format off
        {"Bash\r\n", "Bash"},  {"Bash\n", "Bash"},      {"Bash\r", "Bash"},
        {"Bash\n\n", "Bash\n"}, {"Bash\r\n\r\n", "Bash\r\n"}, {"A\nB", "A\nB"},
        {"\n", ""},             {" Bash ", " Bash "},
        // clang-format on
    };
    for (const auto& [bytes, name] : cases) {
        TestProgram test;
        WriteText(test, "EN", "Bash/Bash_name", bytes);
        WriteText(test, "EN", "Bash/Bash_desc", bytes);
        LoadAbilityTexts(test.program);
        EXPECT_EQ(test.form.utbN(16).Text(), name);
        EXPECT_EQ(test.form.utbD(16).Text(), bytes);
    }
}

TEST(AbilityTexts, AreFoundInOtherLetterCase) {
    TestProgram test;
    test.Write("en/TEXT/game/Creatures/creature_Abilities/BASH/bash_NAME.TXT", "Bash");
    LoadAbilityTexts(test.program);
    EXPECT_EQ(test.form.utbN(16).Text(), "Bash");
    WriteText(test, "EN", "Bash/Bash_name", "exact"); // the exact spelling is preferred
    LoadAbilityTexts(test.program);
    EXPECT_EQ(test.form.utbN(16).Text(), "exact");
}

TEST(AbilityTexts, InTheUsersFolderWin) {
    TestProgram test;
    WriteText(test, "EN", "Bash/Bash_name", "beside the program");
    WriteText(test, "EN", "Bash/Bash_desc", "beside the program");
    QTemporaryDir settings;
    test.platform.settingsFolder = settings.path();
    WriteFile(settings.filePath("EN/Text/Game/Creatures/Creature_abilities/Bash/Bash_name.txt"), "of the user");
    LoadAbilityTexts(test.program);
    EXPECT_EQ(test.form.utbN(16).Text(), "of the user");
    EXPECT_EQ(test.form.utbD(16).Text(), "beside the program"); // a part is better than none
}

TEST(AbilityTexts, FollowTheLanguageAndAreEmptyWhereTheTreeIsNot) {
    TestProgram test;
    WriteText(test, "EN", "Bash/Bash_name", "Bash");
    WriteText(test, "RU", "Bash/Bash_name", "Оглушение");
    WriteText(test, "RU", "Wound/Wound_desc", "Рана");
    WriteText(test, "EN", "Wound/Wound_desc.txt/x", ""); // a folder in a file's place
    const struct {
        void (*switchTo)(Program&);
        const char* bash;
        const char* wound;
    } steps[] = {{mnuEnglish_Click, "Bash", ""},
                 {mnuRussian_Click, "Оглушение", "Рана"},
                 {mnuEnglish_Click, "Bash", ""},
                 {mnuGerman_Click, "", ""}}; // no such folder
    for (const auto& step : steps) {
        step.switchTo(test.program);
        EXPECT_EQ(test.form.utbN(16).Text(), step.bash);
        EXPECT_EQ(test.form.utbD(174).Text(), step.wound);
    }
    EXPECT_TRUE(test.platform.boxes.empty());
}

} // namespace

} // namespace Hesperin
