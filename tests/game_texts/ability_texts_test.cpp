#include "game_texts/ability_texts.h"
#include "system/files.h"

namespace Hesperin {

namespace {

struct AbilityTextsTest : Files {
    /// Writes a file of the text tree; `name` begins with the ability's folder.
    void WriteText(const QString& language, const QString& name, const QByteArray& bytes) const {
        Write(language + "/Text/Game/Creatures/Creature_abilities/" + name + ".txt", bytes);
    }

    AbilityWords WordsOf(int ability, const QString& language = "EN") const {
        return LoadAbilityTexts(language, {folder.path(), Path("settings")}).at(static_cast<std::size_t>(ability));
    }
};

TEST_F(AbilityTextsTest, LieUnderTheGamesFileNames) {
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
    WriteText("EN", "Life_drain/Life_drain_desc", "not this one");
    WriteText("EN", "Rebirth/Rebirth_name", "not this one");
    for (const auto& row : cases) {
        WriteText("EN", row.nameFile, row.nameFile);
        WriteText("EN", row.descFile, row.descFile);
        EXPECT_EQ(WordsOf(row.index).name, row.nameFile);
        EXPECT_EQ(WordsOf(row.index).description, row.descFile);
        EXPECT_EQ(AbilityTextFiles(row.index).AbilityNameFile, QString(row.nameFile).section('/', 1));
        EXPECT_EQ(AbilityTextFiles(row.index).AbilityDescFile, QString(row.descFile).section('/', 1));
    }
}

TEST_F(AbilityTextsTest, AreDecodedByTheirLanguageAndANameLosesOneLineEnd) {
    const struct {
        const char* language;
        QByteArray bytes;
        const char* name;
        const char* description;
    } cases[] = {
        {"EN", "Bash\r\n", "Bash", "Bash\r\n"},
        {"EN", "Bash\n", "Bash", "Bash\n"},
        {"EN", "Bash\r", "Bash", "Bash\r"},
        {"EN", "Bash\n\n", "Bash\n", "Bash\n\n"},
        {"EN", "Bash\r\n\r\n", "Bash\r\n", "Bash\r\n\r\n"},
        {"EN", "A\nB", "A\nB", "A\nB"},
        {"EN", "\n", "", "\n"},
        {"EN", " Bash ", " Bash ", " Bash "},
        {"EN", QByteArray("\xFF\xFE\x16\x04\n\0", 6), "Ж", "Ж\n"},
        {"EN", "\xC4", "Ä", "Ä"},
        {"FR", "Agilit\xE9", "Agilité", "Agilité"},
        {"RU", "\xC6\xE0\xF0", "Жар", "Жар"},
        {"RU", "Жар", "Жар", "Жар"},
    };
    for (const auto& row : cases) {
        WriteText(row.language, "Bash/Bash_name", row.bytes);
        WriteText(row.language, "Bash/Bash_desc", row.bytes);
        EXPECT_EQ(WordsOf(16, row.language).name, row.name);
        EXPECT_EQ(WordsOf(16, row.language).description, row.description);
    }
}

TEST_F(AbilityTextsTest, TheExactSpellingAndTheUsersFolderWin) {
    Write("en/TEXT/game/Creatures/creature_Abilities/BASH/bash_NAME.TXT", "other letter case");
    EXPECT_EQ(WordsOf(16).name, "other letter case");
    WriteText("EN", "Bash/Bash_name", "exact");
    WriteText("EN", "Bash/Bash_desc", "beside the program");
    EXPECT_EQ(WordsOf(16).name, "exact");
    WriteText("settings/EN", "Bash/Bash_name", "of the user");
    EXPECT_EQ(WordsOf(16).name, "of the user");
    EXPECT_EQ(WordsOf(16).description, "beside the program") << "a part is better than none";
}

TEST_F(AbilityTextsTest, AreEmptyWhereThereIsNoFile) {
    WriteText("RU", "Wound/Wound_desc", "Рана");
    WriteText("EN", "Wound/Wound_desc.txt/x", "a folder in its place");
    WriteText("EN", "Wound/Wound_name", QByteArray(LargestAbilityText + 1, 'x'));
    for (const char* language : {"EN", "RU", "DE"}) {
        EXPECT_EQ(WordsOf(174, language).description, language == QString("RU") ? "Рана" : "");
        EXPECT_EQ(WordsOf(174, language).name, "");
    }
}

} // namespace

} // namespace Hesperin
