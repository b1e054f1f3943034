// Sessions with `talmir-cli set` and `apply`: tests/data/set, tests/data/apply.
#include "cli/run_cli.h"
#include "reports/line_diff.h"
#include "support/cases_file.h"

#include <QRegularExpression>
#include <QThread>

#include <random>

namespace Hesperin {

namespace {

/// Runs commands of the shell in the folder, in which `set` and `apply` are the program's, and `file NAME ELEMENTS`
/// makes a file.
QString EditOutcome(const QTemporaryDir& folder, QString commands) {
    commands.replace(QRegularExpression("(^|; )(set|apply)\\b"), "\\1\"$0\" \\2");
    const QString words = "file() { printf \"<Creature>\\n\\t$2\\n</Creature>\\n\" >\"$1\"; }\n";
    const CliOutcome outcome = RunShell(words + commands, folder.path());
    return outcome.out.trimmed() + '\n' + outcome.err.trimmed() +
           (outcome.code == 0 ? "" : "\nexit code " + QString::number(outcome.code));
}

void ExpectSessions(const char* cases) {
    if (!OnLinux)
        GTEST_SKIP() << "no shell";
    const QTemporaryDir folder;
    for (const char* name : {"swamp_archer.xdb", "hill_peasant.xdb"})
        WriteFile(folder.filePath(name), ReadAll(QString(TALMIR_SOURCE_DIR "/samples/") + name).replace("\r\n", "\n"));
    ExpectCases(cases, [&](const QString& line) { return EditOutcome(folder, line); });
}

TEST(Set, GoesAsTold) { ExpectSessions("set/sessions.txt"); }

TEST(Apply, GoesAsTold) { ExpectSessions("apply/sessions.txt"); }

TEST(Set, FollowsLinksToFiles) { ExpectSessions("set/links.txt"); }

TEST(Apply, KnowsAFileByAnyName) { ExpectSessions("apply/links.txt"); }

TEST(Set, TheExamplesOfItsHelpWorkFromTheTop) {
    if (!OnLinux)
        GTEST_SKIP() << "no shell";
    const QStringList examples = RunCli({"set", "--help"}).Lines().filter(QRegularExpression("^  talmir-cli set "));
    ASSERT_EQ(examples.size(), 3);
    for (QString example : examples) {
        const CliOutcome outcome = RunShell(example.replace("talmir-cli", "\"$0\""), TALMIR_SOURCE_DIR);
        EXPECT_TRUE(outcome.code == 0 && outcome.err.isEmpty()) << example.toStdString() << outcome.err.toStdString();
        EXPECT_TRUE(outcome.out.contains(QRegularExpression("->|\n\\+|new"))) << outcome.out.toStdString();
    }
}

TEST(Set, ADiffIsTakenByPatch) {
    if (!OnLinux || RunShell("patch --version").code != 0)
        GTEST_SKIP() << "no patch";
    const QTemporaryDir folder;
    std::mt19937 random(5);
    for (int round = 0; round < 60; ++round) {
        QList<QByteArray> lines;
        for (int i = 0; i < 40; ++i)
            lines.append("line " + QByteArray::number(static_cast<int>(random() % 9)) +
                         (i == 39 && round % 2 ? "" : "\n"));
        const QByteArray before = lines.join();
        for (int change = 0; change < round / 4; ++change) {
            const auto at = static_cast<qsizetype>(random() % static_cast<unsigned>(lines.size()));
            if (random() % 2 == 0)
                lines.removeAt(at);
            else
                lines.insert(at, "new\n");
        }
        const QByteArray after = lines.join();
        WriteFile(folder.filePath("a"), before);
        WriteFile(folder.filePath("d"), "--- a\n+++ a\n" + LineDiff(before, after));
        const QString command = before == after ? "true" : "patch --binary -s a d";
        ASSERT_EQ(RunShell(command, folder.path()).code, 0) << before.toStdString();
        ASSERT_EQ(ReadAll(folder.filePath("a")).toStdString(), after.toStdString());
    }
    const QByteArray many = QByteArray("\n").repeated(300'000);
    EXPECT_EQ(LineDiff("a" + many + "b", "c" + many + "d").count('\n'), 14) << "and needs no endless memory";
}

TEST(Set, AKilledRunLeavesEachFileOldOrNew) {
    const QTemporaryDir folder;
    const QByteArray before = ReadAll(TALMIR_SOURCE_DIR "/samples/hill_peasant.xdb");
    QByteArray after = before;
    after.replace("<Health>8<", "<Health>33<");
    ASSERT_NE(before, after);
    std::mt19937 random(7);
    int mixed = 0;
    for (int kill = 0; kill < 20; ++kill) {
        for (int i = 0; i < 60; ++i)
            WriteFile(folder.filePath(QString::number(i) + ".xdb"), before);
        QProcess process;
        process.start(TestedProgram("talmir-cli"), {"set", "Health=33", folder.path(), "--write"});
        ASSERT_TRUE(process.waitForStarted());
        const QString one = folder.filePath(QString::number(random() % 20) + ".xdb"); // when it is written, or soon
        while (ReadAll(one) == before && !process.waitForFinished(0))
            QThread::usleep(100);
        QThread::usleep(random() % 2000);
        process.kill();
        process.waitForFinished();
        int changed = 0;
        const QStringList names = QDir(folder.path()).entryList(QDir::Files);
        for (const QString& name : names) {
            const QByteArray now = ReadAll(folder.filePath(name));
            ASSERT_TRUE(!name.endsWith(".xdb") || now == before || now == after) << name.toStdString();
            changed += now == after ? 1 : 0;
        }
        mixed += changed > 0 && changed < 60 ? 1 : 0;
    }
    EXPECT_GT(mixed, 3) << "most were killed before or behind the work";
}

} // namespace

} // namespace Hesperin
