// The process may end at any moment of a save, and the disk may fill up in it.
#include "cli/run_cli.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QThread>

#include <random>

namespace Hesperin {

namespace {

/// Saves into a.xdb, another creature each second time.
QByteArray ScriptThatSaves(int times) {
    QByteArray script = "set txtNC wyrm\npress cmdCalc\n";
    for (int time = 0; time < times; ++time)
        script += (time % 2 == 0 ? "set txtAttack 7\n" : "set txtAttack 12\n") + QByteArray("menu mnuSave a.xdb\n");
    return script;
}

struct KilledSave : testing::Test {
    KilledSave() { WriteFile(path, "old"); }

    /// Starts a program that saves once, with what the shell is to do before.
    CliOutcome SaveAfter(const QString& command, const char* language = "EN") const {
        WriteFile(folder.filePath("script"), ScriptThatSaves(1) + "state\n");
        return RunShell(command + "\"$0\" run script --lang " + language, folder.path());
    }

    /// The names of the files.
    QStringList Files() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden); }

    const QTemporaryDir folder;
    const QString path = folder.filePath("a.xdb");
};

TEST_F(KilledSave, TheFileIsTheOldOneOrTheWholeNewOne) {
    constexpr int kills = 100;
    QList<QByteArray> whole{"old"}; // then after an odd and after an even number of saves
    QElapsedTimer clock;
    clock.start();
    for (const int times : {1, 2}) {
        EXPECT_EQ(RunCli({"run", "-"}, ScriptThatSaves(times), folder.path()).code, 0);
        whole.append(ReadAll(path));
    }
    const auto oneRun = static_cast<unsigned long>(clock.nsecsElapsed() / 2000); // microseconds
    ASSERT_NE(whole[1], whole[2]);
    WriteFile(path, "old");
    WriteFile(folder.filePath("script"), ScriptThatSaves(20'000));
    std::mt19937 random(7);
    int saved = 0;
    for (int kill = 0; kill < kills; ++kill) {
        QProcess process;
        process.setWorkingDirectory(folder.path());
        process.start(TestedProgram("talmir-cli"), {"run", "script"});
        ASSERT_TRUE(process.waitForStarted());
        QThread::usleep(oneRun / 2 + random() % (2 * oneRun));
        process.kill();
        ASSERT_EQ(FinishCli(process).code, -1) << "it ended by itself";
        const QByteArray now = ReadAll(path);
        ASSERT_TRUE(whole.contains(now)) << now.toStdString();
        saved += now == "old" ? 0 : 1;
    }
    EXPECT_GT(saved, kills / 2) << "most were killed before their first save";
}

TEST_F(KilledSave, AFileThatMayNotGrowKeepsTheOldContent) {
    const CliOutcome outcome = SaveAfter("trap '' XFSZ; ulimit -f 1; exec ");
    EXPECT_EQ(outcome.code, 1);
    EXPECT_EQ(ReadAll(path), "old");
    EXPECT_TRUE(outcome.err.contains("a.xdb")) << outcome.err.toStdString();
}

TEST_F(KilledSave, WhatDoesNotReachTheDiskIsTold) {
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
    const QString preload =
        "TALMIR_FAILING_SYNC=%1 LD_PRELOAD=" TALMIR_FAILING_SYNC " ASAN_OPTIONS=verify_asan_link_order=0 ";
    for (const auto& row : cases) {
        SCOPED_TRACE(row.told);
        WriteFile(path, "old");
        const CliOutcome outcome = SaveAfter(preload.arg(row.failing), row.language);
        EXPECT_EQ(outcome.code, row.code) << outcome.err.toStdString();
        EXPECT_TRUE((outcome.out + outcome.err).contains(row.told)) << outcome.out.toStdString();
        EXPECT_EQ(ReadAll(path) == "old", row.code == 1);
        EXPECT_EQ(Files(), (QStringList{"a.xdb", "script"}));
    }
}

TEST_F(KilledSave, ADiskThatTakesNothingKeepsTheOldFileAndIsNamed) {
    if (RunShell("mount -t tmpfs -o size=16k tmpfs " + folder.path()).code != 0)
        GTEST_SKIP() << "no right to make a small disk";
    WriteFile(path, "old");
    WriteFile(folder.filePath("filler"), QByteArray(3 * 4096, 'x')); // and a.xdb another 4096
    const char* reasons[][2] = {{"The disk is full.", "На диске нет места."},
                                {"The disk can only be read.", "С диска можно только читать."}};
    for (const auto& [english, russian] : reasons) {
        for (const auto& [language, reason] : {std::pair("EN", english), std::pair("RU", russian)})
            for (const char* name : {"a.xdb", "new.xdb"}) {
                const CliOutcome outcome =
                    RunCli({"run", "-", "--lang", language}, ScriptThatSaves(1).replace("a.xdb", name), folder.path());
                EXPECT_EQ(outcome.code, 1);
                EXPECT_TRUE(outcome.err.contains(reason)) << outcome.err.toStdString();
            }
        EXPECT_EQ(ReadAll(path), "old");
        EXPECT_EQ(Files(), (QStringList{"a.xdb", "filler"})) << "nothing is left behind";
        RunShell("mount -o remount,ro " + folder.path());
    }
    RunShell("umount " + folder.path());
}

} // namespace

} // namespace Hesperin
