#include "localisation/language_file.h"

#include "system/files.h"

namespace Hesperin {

namespace {

/// A program folder that can be written and one below a plain file, which nobody can write.
struct LanguageFileTest : Files {
    LanguageFileTest() {
        QDir(folder.path()).mkdir("program");
        Write("file", "");
    }

    ProgramPlaces writable{Path("program"), Path("settings/talmir")};
    ProgramPlaces readOnly{Path("file/program"), Path("settings/talmir")};
};

TEST_F(LanguageFileTest, OnlyAFirstLineOfExactlyRuIsRussian) {
    for (const QByteArray& russian :
         {QByteArray("RU"), QByteArray("RU\r\n"), QByteArray("RU\nEN"), QByteArray("RU\rx")}) {
        Write("program/lang.ini", russian);
        EXPECT_EQ(ReadLanguageFile(writable), 2) << russian.data();
    }
    for (const QByteArray& english :
         {QByteArray("EN"), QByteArray("ru"), QByteArray("FR"), QByteArray("DE"), QByteArray(), QByteArray("RU "),
          QByteArray(" RU"), QByteArray("RUS"), QByteArray("R"), QByteArray("\nRU"), QByteArray("\xEF\xBB\xBFRU"),
          QByteArray("RU\0", 3)}) {
        Write("program/lang.ini", english);
        EXPECT_EQ(ReadLanguageFile(writable), 1) << english.data();
        EXPECT_EQ(Content("program/lang.ini"), english) << "reading writes nothing";
    }
}

TEST_F(LanguageFileTest, AMissingFileIsCreatedWithTheTwoLettersOnly) {
    EXPECT_EQ(ReadLanguageFile(writable), 1);
    EXPECT_EQ(Content("program/lang.ini"), "EN");
    EXPECT_FALSE(QFileInfo::exists(Path("settings")));
}

TEST_F(LanguageFileTest, IsWrittenWholeInEachLanguage) {
    Write("program/lang.ini", "something longer\r\n");
    const QByteArray codes[] = {"EN", "RU", "FR", "DE"};
    for (std::uint8_t language = 1; language <= 4; ++language) {
        EXPECT_TRUE(WriteLanguageFile(writable, language));
        EXPECT_EQ(Content("program/lang.ini"), codes[language - 1]);
        EXPECT_EQ(ReadLanguageFile(writable), language == 2 ? 2 : 1);
    }
}

TEST_F(LanguageFileTest, GoesToTheSettingsFolderWhereTheProgramsCannotBeWritten) {
    EXPECT_EQ(ReadLanguageFile(readOnly), 1);
    EXPECT_EQ(Content("settings/talmir/lang.ini"), "EN");
    EXPECT_TRUE(WriteLanguageFile(readOnly, 2));
    EXPECT_EQ(Content("settings/talmir/lang.ini"), "RU");
    EXPECT_EQ(ReadLanguageFile(readOnly), 2);

    Write("program/lang.ini", "EN");
    EXPECT_EQ(ReadLanguageFile(writable), 2); // it wins over the program's own
    EXPECT_TRUE(WriteLanguageFile(writable, 1));
    EXPECT_EQ(ReadLanguageFile(writable), 1); // and not for longer than it is needed
    EXPECT_FALSE(QFileInfo::exists(Path("settings/talmir/lang.ini")));

    const ProgramPlaces forAll{Path("program"), Path("settings/talmir"), true};
    EXPECT_TRUE(WriteLanguageFile(forAll, 2)); // as root, who could write there
    EXPECT_EQ(Content("program/lang.ini"), "EN");
    EXPECT_EQ(ReadLanguageFile(forAll), 2);

    const ProgramPlaces nowhere{Path("file/a"), Path("file/b")};
    EXPECT_EQ(ReadLanguageFile(nowhere), 1);
    EXPECT_FALSE(WriteLanguageFile(nowhere, 2));
}

TEST_F(LanguageFileTest, AFolderInItsPlaceGivesEnglishAndSendsTheFileElsewhere) {
    QDir(folder.path()).mkpath("program/lang.ini/inner");
    EXPECT_EQ(ReadLanguageFile(writable), 1);
    EXPECT_TRUE(WriteLanguageFile(writable, 2));
    EXPECT_EQ(Content("settings/talmir/lang.ini"), "RU");
    EXPECT_EQ(ReadLanguageFile(writable), 2);
    EXPECT_TRUE(QFileInfo(Path("program/lang.ini/inner")).isDir());
}

} // namespace

} // namespace Hesperin
