#include "system/save_file.h"

#include "system/files.h"
#include "system/read_file.h"
#include "support/without_rights.h"

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
    EXPECT_FALSE(SaveFile(Path("new"), "first\n").obstacle);
    EXPECT_EQ(ReadAll(Path("new")), "first\n");
    EXPECT_FALSE(SaveFile(Path("new"), "2").obstacle) << "over a longer old one";
    EXPECT_EQ(ReadAll(Path("new")), "2");
    EXPECT_EQ(Names(), QStringList{"new"}) << "no temporary file stays";
}

TEST_F(SaveFileTest, LeavesNothingBehindWhereItCannotWrite) {
    EXPECT_TRUE(SaveFile(Path("missing/new"), "x").obstacle);
    EXPECT_EQ(Names(), QStringList());

    Write("taken/inside", "old");
    EXPECT_TRUE(SaveFile(Path("taken"), "x").obstacle) << "a folder stands there";
    EXPECT_EQ(ReadAll(Path("taken/inside")), "old");
    EXPECT_EQ(Names(), QStringList{"taken"});
    EXPECT_TRUE(SaveFile({}, "x").obstacle);
}

TEST(ObstacleOf, KnowsTheNumbersOfTheSystem) {
    using Kind = FileObstacle::Kind;
    const std::pair<int, Kind> cases[] = {
#ifdef Q_OS_WIN
        {ERROR_WRITE_PROTECT, Kind::DiskReadOnly},
        {ERROR_ACCESS_DENIED, Kind::NotAllowed},
        {ERROR_DISK_FULL, Kind::DiskFull},
        {ERROR_CRC, Kind::Other},
#else
        {EROFS, Kind::DiskReadOnly}, {EACCES, Kind::NotAllowed},        {ENOSPC, Kind::DiskFull},
        {EDQUOT, Kind::DiskFull},    {ENAMETOOLONG, Kind::NameTooLong}, {EIO, Kind::Other},
#endif
    };
    for (const auto& [code, kind] : cases)
        EXPECT_EQ(static_cast<int>(ObstacleOf(code).kind), static_cast<int>(kind)) << code;
}

TEST_F(SaveFileTest, WritesThroughASymbolicLink) {
    const QString target = Write("target", "old");
    if (!QFile::link(target, Path("link")) || !QFileInfo(Path("link")).isSymLink())
        GTEST_SKIP() << "no symbolic links here";
    EXPECT_FALSE(SaveFile(Path("link"), "new").obstacle);
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
        EXPECT_FALSE(outcome.obstacle);
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
    const auto save = SaveFile(path, "new").obstacle;
    const auto read = ReadFile(path, 100);
    CloseHandle(holder);
    ASSERT_TRUE(save && std::holds_alternative<FileObstacle>(read));
    EXPECT_EQ(static_cast<int>(save->kind), static_cast<int>(FileObstacle::Kind::InUse));
    EXPECT_EQ(static_cast<int>(std::get<FileObstacle>(read).kind), static_cast<int>(FileObstacle::Kind::InUse));
    EXPECT_EQ(ReadAll(path), "old");
    EXPECT_EQ(Names(), QStringList{"held"});
}
#endif

} // namespace

} // namespace Hesperin
