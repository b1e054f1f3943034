// The process may end at any moment of a save, and the disk may fill up in it.
#include "cli/run_cli.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QThread>

#include <random>

namespace Hesperin {

namespace {

QByteArray ScriptThatSaves(const QString& path, int times) {
    const QByteArray save = "menu mnuSave " + path.toUtf8() + "\n";
    QByteArray script = "set txtNC wyrm\npress cmdCalc\n";
    for (int time = 0; time < times; ++time)
        script += (time % 2 == 0 ? "set txtAttack 7\n" : "set txtAttack 12\n") + save;
    return script;
}

/// What the file holds after an odd and after an even number of saves.
QList<QByteArray> Results(const TestProgram& files) {
    QList<QByteArray> results;
    for (const int times : {1, 2}) {
        EXPECT_EQ(Play(ScriptThatSaves(files.Path("whole.xdb"), times)).code, 0);
        results.append(ReadAll(files.Path("whole.xdb")));
    }
    return results;
}

TEST(KilledSave, TheFileIsTheOldOneOrTheWholeNewOne) {
    constexpr int kills = 100;
    const TestProgram files;
    const QString path = files.Write("a.xdb", "old");
    QElapsedTimer clock;
    clock.start();
    const QList<QByteArray> whole = Results(files);
    const auto oneRun = static_cast<unsigned long>(clock.nsecsElapsed() / 2000); // microseconds
    ASSERT_NE(whole[0], whole[1]);
    const QString script = files.Write("script", ScriptThatSaves(path, 20'000));
    std::mt19937 random(7);
    int saved = 0;
    for (int kill = 0; kill < kills; ++kill) {
        QProcess process;
        process.start(TestedProgram("talmir-cli"), {"run", script});
        ASSERT_TRUE(process.waitForStarted());
        QThread::usleep(oneRun / 2 + random() % (2 * oneRun));
        process.kill();
        ASSERT_TRUE(process.waitForFinished());
        ASSERT_EQ(static_cast<int>(process.exitStatus()), static_cast<int>(QProcess::CrashExit))
            << "it ended by itself";
        const QByteArray now = ReadAll(path);
        ASSERT_TRUE(now == "old" || whole.contains(now)) << now.toStdString();
        saved += now == "old" ? 0 : 1;
    }
    EXPECT_GT(saved, kills / 2) << "most were killed before their first save";
}

TEST(KilledSave, AFileThatMayNotGrowKeepsTheOldContent) {
    if (!QFile::exists("/bin/sh"))
        GTEST_SKIP() << "no shell to limit the size of files with";
    const TestProgram files;
    files.Write("old.xdb", "precious");
    const QString script = files.Write("script", ScriptThatSaves(files.Path("old.xdb"), 1));
    QProcess process;
    process.start("/bin/sh",
                  {"-c", "trap '' XFSZ; ulimit -f 1; exec \"$0\" run \"$1\"", TestedProgram("talmir-cli"), script});
    const CliOutcome outcome = FinishCli(process);
    EXPECT_EQ(outcome.code, 1);
    EXPECT_EQ(ReadAll(files.Path("old.xdb")), "precious");
    EXPECT_TRUE(outcome.err.contains("old.xdb")) << outcome.err.toStdString();
}

TEST(KilledSave, AFullDiskKeepsTheOldFileAndIsNamed) {
    const TestProgram files;
    QProcess mount;
    mount.start("mount", {"-t", "tmpfs", "-o", "size=16k", "tmpfs", files.folder.path()});
    if (!mount.waitForFinished() || mount.exitCode() != 0)
        GTEST_SKIP() << "no right to make a small disk";
    files.Write("old.xdb", "precious");
    for (const char* language : {"EN", "RU"}) {
        files.Write("filler", QByteArray(3 * 4096, 'x')); // and old.xdb another 4096
        const CliOutcome outcome = Play(ScriptThatSaves(files.Path("old.xdb"), 1), {"--lang", language});
        EXPECT_EQ(outcome.code, 1);
        EXPECT_EQ(ReadAll(files.Path("old.xdb")), "precious");
        const QString reason = QString::fromUtf8(*language == 'E' ? "The disk is full." : "На диске нет места.");
        EXPECT_TRUE(outcome.err.contains(reason)) << outcome.err.toStdString();
        EXPECT_EQ(QDir(files.folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 2)
            << "nothing is left behind";
    }
    QProcess::execute("umount", {files.folder.path()});
}

} // namespace

} // namespace Hesperin
