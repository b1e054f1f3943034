#include "localisation/language_file.h"

#include "support/test_program.h"

#include <gtest/gtest.h>

#include <QDir>

namespace Hesperin {

namespace {

/// A program folder that can be written and one below a plain file, which nobody can write.
struct LanguageFileTest : testing::Test {
    LanguageFileTest() {
        QDir(folder.path()).mkdir("program");
        QFile file(folder.filePath("file"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    }

    void Write(const QString& name, const QByteArray& bytes) const {
        QDir(folder.path()).mkpath(QFileInfo(name).path());
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QByteArray Content(const QString& name) const { return ReadAll(folder.filePath(name)); }

    QTemporaryDir folder;
    ProgramPlaces writable{folder.filePath("program"), folder.filePath("settings/talmir")};
    ProgramPlaces readOnly{folder.filePath("file/program"), folder.filePath("settings/talmir")};
};

TEST_F(LanguageFileTest, OnlyAFirstLineOfExactlyRuIsRussian) {
    const struct {
        const char* what;
        QByteArray bytes;
        int language;
    } cases[] = {
        // clang-format off
        {"English", "EN", 1},          {"Russian", "RU", 2},
        {"line end", "RU\r\n", 2},     {"more lines", "RU\nEN", 2},
        {"old line end", "RU\rx", 2},  {"lower case", "ru", 1},
        {"French", "FR", 1},           {"German", "DE", 1},
        {"empty", "", 1},              {"blank behind", "RU ", 1},
        {"blank before", " RU", 1},    {"longer", "RUS", 1},
        {"half", "R", 1},              {"second line", "\nRU", 1},
        {"mark", "\xEF\xBB\xBFRU", 1}, {"zero byte", {"RU\0", 3}, 1},
        // clang-format on
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.what);
        Write("program/lang.ini", row.bytes);
        EXPECT_EQ(ReadLanguageFile(writable), row.language);
        EXPECT_EQ(Content("program/lang.ini"), row.bytes); // reading writes nothing
    }
}

TEST_F(LanguageFileTest, AMissingFileIsCreatedWithTheTwoLettersOnly) {
    EXPECT_EQ(ReadLanguageFile(writable), 1);
    EXPECT_EQ(Content("program/lang.ini"), "EN");
    EXPECT_FALSE(QFileInfo::exists(folder.filePath("settings")));
}

TEST_F(LanguageFileTest, IsWrittenWholeInEachLanguage) {
    Write("program/lang.ini", "something longer\r\n");
    const QByteArray codes[] = {"EN", "RU", "FR", "DE"};
    for (std::uint8_t language = 1; language <= 4; ++language) {
        EXPECT_TRUE(WriteLanguageFile(writable, language));
        EXPECT_EQ(Content("program/lang.ini"), codes[language - 1]);
        EXPECT_EQ(ReadLanguageFile(writable), language == 2 ? 2 : 1);
    }
    EXPECT_EQ(QDir(writable.programFolder).entryList(QDir::Files | QDir::Hidden), QStringList{"lang.ini"});
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
    EXPECT_FALSE(QFileInfo::exists(folder.filePath("settings/talmir/lang.ini")));

    const ProgramPlaces forAll{folder.filePath("program"), folder.filePath("settings/talmir"), true};
    EXPECT_TRUE(WriteLanguageFile(forAll, 2)); // as root, who could write there
    EXPECT_EQ(Content("program/lang.ini"), "EN");
    EXPECT_EQ(ReadLanguageFile(forAll), 2);

    const ProgramPlaces nowhere{folder.filePath("file/a"), folder.filePath("file/b")};
    EXPECT_EQ(ReadLanguageFile(nowhere), 1);
    EXPECT_FALSE(WriteLanguageFile(nowhere, 2));
}

TEST_F(LanguageFileTest, AFolderInItsPlaceGivesEnglishAndSendsTheFileElsewhere) {
    QDir(folder.path()).mkpath("program/lang.ini/inner");
    EXPECT_EQ(ReadLanguageFile(writable), 1);
    EXPECT_TRUE(WriteLanguageFile(writable, 2));
    EXPECT_EQ(Content("settings/talmir/lang.ini"), "RU");
    EXPECT_EQ(ReadLanguageFile(writable), 2);
    EXPECT_TRUE(QFileInfo(folder.filePath("program/lang.ini/inner")).isDir());
}

#ifdef Q_OS_UNIX
TEST(SystemFolder, IsWhereAllUsersFindTheirPrograms) {
    const std::pair<const char*, bool> cases[] = {{"/usr/bin", true},
                                                  {"/usr/local/bin", true},
                                                  {"/bin", true},
                                                  {"/home/a/usr/bin", false},
                                                  {"/opt/talmir", false},
                                                  {"/usr2/bin", false},
                                                  {"/home/a/../../usr/bin", true},
                                                  {"", false}};
    for (const auto& [folder, shared] : cases)
        EXPECT_EQ(IsSystemFolder(folder), shared) << folder;
}
#endif

} // namespace

} // namespace Hesperin
