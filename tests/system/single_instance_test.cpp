#include "system/files.h"
#include "system/single_instance.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDeadlineTimer>
#include <QProcess>

namespace Hesperin {

namespace {

struct SingleInstanceTest : Files {
    /// The lines of a lock that this process holds.
    QList<QByteArray> OwnLock() const {
        SingleInstance holder(Path("own"));
        EXPECT_FALSE(holder.Other());
        return ReadAll(Path("own/talmir.lock")).split('\n');
    }
};

TEST_F(SingleInstanceTest, TheSecondSeesTheFirstUntilItEnds) {
    SingleInstance second(Path("settings/deep"));
    {
        SingleInstance first(Path("settings/deep"));
        EXPECT_FALSE(first.Other());
        EXPECT_FALSE(first.Other()) << "asked again, it is still the only one";
        EXPECT_TRUE(second.Other());
        EXPECT_FALSE(SingleInstance(Path("elsewhere")).Other());
    }
    EXPECT_FALSE(second.Other());
}

TEST_F(SingleInstanceTest, TakesOverTheLockOfAProcessThatNoLongerRuns) {
    QProcess ended;
    ended.start(TestedProgram("talmir-cli"), {"--version"});
    const qint64 endedId = ended.processId();
    ASSERT_TRUE(ended.waitForFinished());
    ASSERT_GT(endedId, 0);

    QList<QByteArray> lock = OwnLock();
    ASSERT_EQ(lock.first(), QByteArray::number(QCoreApplication::applicationPid()));
    Write("b/talmir.lock", lock.join('\n'));
    EXPECT_TRUE(SingleInstance(Path("b")).Other()) << "the process of this lock does run";
    lock.first() = QByteArray::number(endedId);
    Write("c/talmir.lock", lock.join('\n'));
    EXPECT_FALSE(SingleInstance(Path("c")).Other());
}

TEST_F(SingleInstanceTest, TakesOverTheLockOfAProcessThatHadItsNumber) {
    QFile left(Write("b/talmir.lock", OwnLock().join('\n')));
    ASSERT_TRUE(left.open(QIODevice::ReadWrite));
    ASSERT_TRUE(left.setFileTime(QDateTime::currentDateTime().addDays(-1), QFileDevice::FileModificationTime));
    left.close();
    EXPECT_FALSE(SingleInstance(Path("b")).Other());
}

TEST_F(SingleInstanceTest, TellsTheLockOfAnotherComputerByItsNumberOrElseItsName) {
    const QString here = QSysInfo::machineHostName();
    const QByteArray number = QSysInfo::machineUniqueId();
    struct Case {
        QString host;
        QByteArray number;
        QString otherHost;
    };
    QList<Case> cases{{"attic", "", "attic"}, {here, "", ""}};
    if (!number.isEmpty())
        cases += {{"attic", "another", "attic"}, {here, "another", here}, {"its old name", number, ""}};
    for (const Case& test : cases) {
        SCOPED_TRACE(test.host.toStdString() + ' ' + test.number.toStdString());
        QByteArrayList lock = OwnLock();
        lock[2] = test.host.toUtf8();
        lock[3] = test.number;
        const QString path = Write("b/talmir.lock", lock.join('\n'));
        const auto other = SingleInstance(Path("b")).Other();
        ASSERT_TRUE(other);
        EXPECT_EQ(other->otherHost, test.otherHost);
        EXPECT_EQ(other->lockFile, path);
        EXPECT_EQ(ReadAll(path), lock.join('\n')) << "it is left alone";
    }
}

TEST_F(SingleInstanceTest, TakesOverALockThatCannotBeRead) {
    const char* const damaged[] = {"", "not a lock", "12\n"};
    for (const char* content : damaged) {
        SCOPED_TRACE(content);
        Write("d/talmir.lock", content);
        SingleInstance first(Path("d"));
        EXPECT_FALSE(first.Other());
        EXPECT_TRUE(SingleInstance(Path("d")).Other()) << "it holds the lock now";
    }
    ASSERT_TRUE(QFile::resize(Write("f/talmir.lock", ""), 1 << 28)); // nothing to read through
    SingleInstance first(Path("f"));
    const QDeadlineTimer soon(2000);
    EXPECT_FALSE(first.Other());
    EXPECT_FALSE(soon.hasExpired());
    EXPECT_TRUE(SingleInstance(Path("f")).Other());
}

TEST_F(SingleInstanceTest, TheProgramStartsWhereNoLockCanBeHad) {
    Write("file", "no folder");
    EXPECT_FALSE(SingleInstance(Path("file/settings")).Other());
    Write("e/talmir.lock/inside", "a folder in its place");
    EXPECT_FALSE(SingleInstance(Path("e")).Other());
}

} // namespace

} // namespace Hesperin
