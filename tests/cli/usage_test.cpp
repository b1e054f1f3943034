// The command line apart from what its commands do: usage, odd input, output that can't be written.
#include "cli/run_cli.h"

#include <gtest/gtest.h>

#include <QThread>

namespace Hesperin {

namespace {

TEST(Usage, HelpAndVersionGoToStandardOutputAndWrongUsageIsCode2) {
    const struct {
        const char* arguments;
        const char* piece; ///< of the output; null: wrong usage
    } cases[] = {
        {"--help", "talmir-cli COMMAND"},
        {"-h", "talmir-cli COMMAND"},
        {"--version", "TALMIR v0."},
        {"run -v", "TALMIR v0."},
        {"calc --help", "talmir-cli calc"},
        {"run -h", "talmir-cli run"},
        {"check --help", "talmir-cli check"},
        {"", nullptr},
        {"bogus", nullptr},
        {"--bogus", nullptr},
        {"calc", nullptr},
        {"calc --json", nullptr},
        {"calc --bogus a.xdb", nullptr},
        {"explain --help", "talmir-cli explain"},
        {"explain", nullptr},
        {"explain a b", nullptr},
        {"explain a --lang FR", nullptr},
        {"solve --help", "talmir-cli solve"},
        {"solve a", nullptr},
        {"solve a Power=0", nullptr},
        {"solve a Power=1 --vary Atack", nullptr},
        {"solve a Power=1 --vary Attack,", nullptr},
        {"solve a Power=1 --lang FR", nullptr},
        {"run", nullptr},
        {"run a b", nullptr},
        {"run - --lang FR", nullptr},
        {"run - --lang", nullptr},
        {"run - --lang ru", nullptr},
        {"run --json -", nullptr},
        {"check", nullptr},
        {"check --game a", nullptr},
        {"check --bogus a", nullptr},
        {"apply --help", "talmir-cli apply"},
        {"apply a.csv", nullptr},
        {"apply a.csv b c", nullptr},
        {"apply a.csv b --diff --json", nullptr},
        {"table --help", "talmir-cli table"},
        {"table", nullptr},
        {"table --json --html page.html .", nullptr},
        {"texts", nullptr},
        {"texts a --lang FR", nullptr},
        {"find --help", "talmir-cli find --lang RU"},
        {"find", nullptr},
        {"find shot --lang FR", nullptr},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.arguments);
        const CliOutcome outcome = RunCli(QString(row.arguments).split(' ', Qt::SkipEmptyParts));
        const bool helps = row.piece != nullptr;
        EXPECT_EQ(outcome.code, helps ? 0 : 2);
        EXPECT_EQ((helps ? outcome.err : outcome.out), "");
        EXPECT_TRUE((helps ? outcome.out : outcome.err).contains(helps ? row.piece : "talmir-cli"));
        EXPECT_FALSE(outcome.out.contains(TestedProgram("talmir-cli"))) << "a path on this machine helps nobody";
    }
}

TEST(Input, LineEndsOfEachKindAByteOrderMarkAndALineThatIsNoScripts) {
    const QByteArray longLine = "set txtNC " + QByteArray(1 << 20, 'x');
    const struct {
        QByteArray script;
        const char* out;
        const char* complaint = "";
    } cases[] = {
        {"\r\n# comment\r\nset txtNC a \r\n  \r\n#\r\nshow txtNC\r\n", "a \n"},
        {"set txtNC a\nset txtNC\nshow txtNC", "\n"},
        {"\xEF\xBB\xBFshow lblMin", "min\n"},
        {"set txtNC a\n" + longLine + "\nshow lblMin\n", "",
         "-:2: the line is longer than 1048576 bytes; the run ends here\n"},
    };
    for (const auto& row : cases) {
        const CliOutcome outcome = RunCli({"run", "-"}, row.script);
        EXPECT_EQ(outcome.out, row.out);
        EXPECT_EQ(outcome.err, row.complaint);
        EXPECT_EQ(outcome.code, *row.complaint == '\0' ? 0 : 1);
    }
}

TEST(Input, IsWaitedForWhenItComesInPieces) {
    QProcess process;
    process.start(TestedProgram("talmir-cli"), {"run", "-"});
    for (const char* piece : {"set txtNC a", "b\nshow tx", "tNC"}) {
        process.write(piece);
        process.waitForBytesWritten();
        QThread::msleep(50);
    }
    EXPECT_EQ(FinishCli(process).out, "ab\n");
}

TEST(Input, AndOutputThatFailEndTheRunWithAComplaint) {
    if (!OnLinux)
        GTEST_SKIP() << "it takes a shell";
    const std::pair<const char*, const char*> cases[] = {
        {"run nowhere", "nowhere: There is no such file.\n"},
        {"run nowhere --lang RU", "nowhere: Такого файла нет.\n"},
        {"run /", "/: It is a folder; a file was expected.\n"},
        {"run --keep-going - <&-", "-: The system says: Bad file descriptor.\n"},
        {"run --keep-going - </", "-: It is a folder; a file was expected.\n"},
        {"run --keep-going /proc/self/mem", "/proc/self/mem: The system says: Input/output error.\n"},
        {"--version >/dev/full", "talmir-cli: the output could not be written\n"}};
    for (const auto& [arguments, complaint] : cases) {
        const CliOutcome outcome = RunShell(QString("LC_ALL=C exec \"$0\" ") + arguments);
        EXPECT_EQ(outcome.code, 1);
        EXPECT_TRUE(outcome.err.startsWith(complaint)) << outcome.err.toStdString();
    }
}

} // namespace

} // namespace Hesperin
