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

TEST(KilledSave, WhatDoesNotReachTheDiskIsTold) {
    const struct {
        const char* failing;
        const char* language;
        int code;
        const char* told;
    } cases[] = {
        {"file", "EN", 1, "was not saved. The system says: "},
        {"file", "RU", 1, "не сохранён. Система сообщает: "},
        {"folder", "EN", 0, "was saved. Its folder could not be written"},
        {"folder", "RU", 0, "сохранён. Папку ещё не удалось записать"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(testing::Message() << row.failing << ' ' << row.language);
        const TestProgram files;
        const QString path = files.Write("old.xdb", "precious");
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("LD_PRELOAD", TALMIR_FAILING_SYNC);
        environment.insert("TALMIR_FAILING_SYNC", row.failing);
        environment.insert("ASAN_OPTIONS", "verify_asan_link_order=0");
        process.setProcessEnvironment(environment);
        const QString script = files.Write("script", ScriptThatSaves(path, 1) + "state\n");
        process.start(TestedProgram("talmir-cli"), {"run", script, "--lang", row.language});
        const CliOutcome outcome = FinishCli(process);
        EXPECT_EQ(outcome.code, row.code) << outcome.err.toStdString();
        EXPECT_TRUE((outcome.out + outcome.err).contains(QString::fromUtf8(row.told))) << outcome.out.toStdString();
        EXPECT_EQ(ReadAll(path) == "precious", row.code == 1);
        EXPECT_EQ(QDir(files.folder.path()).entryList(QDir::Files | QDir::Hidden), (QStringList{"old.xdb", "script"}));
    }
}

TEST(KilledSave, ADiskThatTakesNothingKeepsTheOldFileAndIsNamed) {
    const TestProgram files;
    const QString disk = files.folder.path();
    if (QProcess::execute("mount", {"-t", "tmpfs", "-o", "size=16k", "tmpfs", disk}) != 0)
        GTEST_SKIP() << "no right to make a small disk";
    files.Write("old.xdb", "precious");
    files.Write("filler", QByteArray(3 * 4096, 'x')); // and old.xdb another 4096
    const std::pair<const char*, const char*> full{"The disk is full.", "На диске нет места."};
    const std::pair<const char*, const char*> readOnly{"The disk can only be read.", "С диска можно только читать."};
    for (const auto& [english, russian] : {full, readOnly}) {
        for (const auto& [language, reason] : {std::pair("EN", english), std::pair("RU", russian)})
            for (const char* name : {"old.xdb", "new.xdb"}) {
                const CliOutcome outcome = Play(ScriptThatSaves(files.Path(name), 1), {"--lang", language});
                EXPECT_EQ(outcome.code, 1);
                EXPECT_TRUE(outcome.err.contains(QString::fromUtf8(reason))) << outcome.err.toStdString();
            }
        EXPECT_EQ(ReadAll(files.Path("old.xdb")), "precious");
        EXPECT_EQ(QDir(disk).entryList(QDir::Files | QDir::Hidden).size(), 2) << "nothing is left behind";
        QProcess::execute("mount", {"-o", "remount,ro", disk});
    }
    QProcess::execute("umount", {disk});
}

} // namespace

} // namespace Hesperin
