#include "system/save_file.h"
#include "system/system_error.h"

#include "support/without_rights.h"
#include "system/files.h"
#include "system/read_file.h"

#include <cerrno>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace Hesperin {

namespace {

using SaveFileTest = Files;

TEST_F(SaveFileTest, WritesTheWholeContentAndNothingElse) {
    EXPECT_FALSE(SaveFile(Path("new"), "first\n").failure);
    EXPECT_EQ(Content("new"), "first\n");
    EXPECT_FALSE(SaveFile(Path("new"), "2").failure) << "over a longer old one";
    EXPECT_EQ(Content("new"), "2");
    EXPECT_EQ(Names(), QStringList{"new"}) << "no temporary file stays";
}

TEST_F(SaveFileTest, LeavesNothingBehindWhereItCannotWrite) {
    Write("taken/inside", "old");
    const std::pair<QString, const char*> refused[] = {
        {Path("missing/new"), "FolderMissing"}, {Path("taken"), "IsFolder"}, {{}, "FolderMissing"}};
    for (const auto& [path, why] : refused) {
        EXPECT_EQ(NameOf(SaveRefusal(path)), why);
        EXPECT_EQ(NameOf(SaveFile(path, "x").failure), why);
    }
    EXPECT_EQ(NameOf(SaveRefusal(Path("taken/inside"))) + NameOf(SaveRefusal(Path("new"))), "donedone");
    EXPECT_EQ(Content("taken/inside"), "old");
    EXPECT_EQ(Names(), QStringList{"taken"});
}

TEST(ErrorOf, KnowsTheNumbersOfTheSystem) {
    const std::pair<int, const char*> cases[] = {
#ifdef Q_OS_WIN
        {ERROR_WRITE_PROTECT, "DiskReadOnly"},
        {ERROR_ACCESS_DENIED, "NotAllowed"},
        {ERROR_DISK_FULL, "DiskFull"},
        {ERROR_CRC, "SystemSays"},
#else
        {EROFS, "DiskReadOnly"}, {EACCES, "NotAllowed"},        {ENOSPC, "DiskFull"},
        {EDQUOT, "DiskFull"},    {ENAMETOOLONG, "NameTooLong"}, {EIO, "SystemSays"},
#endif
    };
    for (const auto& [code, name] : cases) {
        EXPECT_EQ(NameOf(ErrorOf(code).what), name) << code;
        EXPECT_EQ(ErrorOf(qt_error_string(code)), ErrorOf(code)) << "by its words";
    }
}

TEST_F(SaveFileTest, WritesThroughASymbolicLink) {
    const QString target = Write("target", "old");
    if (!QFile::link(target, Path("link")) || !QFileInfo(Path("link")).isSymLink())
        GTEST_SKIP() << "no symbolic links here";
    EXPECT_FALSE(SaveFile(Path("link"), "new").failure);
    EXPECT_TRUE(QFileInfo(Path("link")).isSymLink());
    EXPECT_EQ(ReadAll(target), "new");
}

#ifdef Q_OS_UNIX
TEST_F(SaveFileTest, KeepsOwnerAndRightsAndTellsWhatItCannotKeep) {
    constexpr uid_t someone = 4711;
    const bool root = getuid() == 0;
    ASSERT_EQ(chmod(QFile::encodeName(folder.path()), 0777), 0);
    using Notes = std::vector<SaveNote>;
    const struct {
        mode_t mode;
        bool others; ///< belongs to someone else
        bool linked; ///< has a second name
        bool asNobody;
        mode_t modeAfter;
        Notes notes;
    } cases[] = {
        {0640, false, false, false, 0640, {}},
        {0604, root, false, false, 0604, {}},
        {0600, false, true, false, 0600, {SaveNote::OtherNamesKeepOld}},
        {0666, root, false, true, 0666, {SaveNote::OwnerNotKept}},
        {0662, root, true, true, 0622, {SaveNote::OtherNamesKeepOld, SaveNote::OwnerNotKept}},
    };
    int number = 0;
    for (const auto& row : cases) {
        SCOPED_TRACE(++number);
        if (row.asNobody && !root)
            continue;
        const QString path = Write(QString::number(number), "old");
        const QByteArray name = QFile::encodeName(path);
        ASSERT_EQ(chmod(name, row.mode), 0);
        ASSERT_TRUE(!row.others || chown(name, someone, someone) == 0);
        ASSERT_TRUE(!row.linked || link(name, QByteArray(name + "b")) == 0);
        std::optional<WithoutRights> nobody;
        if (row.asNobody)
            nobody.emplace();
        const SaveOutcome outcome = SaveFile(path, "new");
        nobody.reset();
        struct stat now {};
        ASSERT_EQ(stat(name, &now), 0);
        EXPECT_FALSE(outcome.failure);
        EXPECT_EQ(outcome.notes, row.notes);
        EXPECT_EQ(now.st_mode & 07777U, row.modeAfter);
        EXPECT_EQ(now.st_uid == someone, row.others && !row.asNobody);
        EXPECT_EQ(ReadAll(path), "new");
        EXPECT_EQ(ReadAll(path + 'b'), row.linked ? "old" : "");
    }
}
#endif

#ifdef Q_OS_WIN
TEST_F(SaveFileTest, TellsThatAnotherProgramHoldsTheFile) {
    const QString path = Write("held", "old");
    const HANDLE holder = CreateFileW(QDir::toNativeSeparators(path).toStdWString().c_str(), GENERIC_READ, 0, nullptr,
                                      OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(holder, INVALID_HANDLE_VALUE);
    const auto save = SaveFile(path, "new").failure;
    const auto read = ReadFile(path, 100);
    CloseHandle(holder);
    EXPECT_EQ(NameOf(save) + NameOf(read), "InUseInUse");
    EXPECT_EQ(ReadAll(path), "old");
    EXPECT_EQ(Names(), QStringList{"held"});
}
#endif

} // namespace

} // namespace Hesperin
