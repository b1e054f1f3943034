// `talmir-cli explain` and `talmir-cli solve`, apart from what they tell.
#include "cli/run_cli.h"

#include <gtest/gtest.h>

#include <QJsonDocument>
#include <QRegularExpression>

namespace Hesperin {

namespace {

TEST(ExplainAndSolve, TheExamplesOfTheirHelpWorkFromTheTop) {
    for (const char* command : {"explain", "solve"}) {
        const QRegularExpression example(QString("^  talmir-cli %1 .*").arg(command));
        const QStringList examples = RunCli({command, "--help"}).Lines().filter(example);
        EXPECT_GE(examples.size(), 2);
        for (const QString& line : examples) {
            const CliOutcome outcome = RunCli(line.simplified().split(' ').mid(1), {}, TALMIR_SOURCE_DIR);
            EXPECT_EQ(outcome.code, 0) << line.toStdString() << outcome.err.toStdString();
            EXPECT_EQ(QJsonDocument::fromJson(outcome.out.toUtf8()).isObject(), line.contains("--json"));
        }
    }
}

TEST(ExplainAndSolve, TellWhyAFileCantBeRead) {
    const std::pair<const char*, const char*> cases[] = {
        {"explain nowhere.xdb", "The file \"nowhere.xdb\" was not opened. There is no such file.\n"},
        {"explain --json nowhere.xdb", "The file \"nowhere.xdb\" was not opened. There is no such file.\n"},
        {"solve nowhere.xdb Power=3", "The file \"nowhere.xdb\" was not opened. There is no such file.\n"},
        {"solve hill_peasant.xdb Power=3 --scale-of nowhere", "nowhere: There is no such file.\n"},
        {"solve hill_peasant.xdb Power=3 --scale-of ash_wyvern.xdb",
         "hill_peasant.xdb: There is no scale of \"Power\" for tier 1.\n"},
        {"solve hill_peasant.xdb Power=3.5",
         "talmir-cli solve: 'Power=3.5' is no GOAL; Power=N with a whole number from 1, or Tier=N with 1 to 8, is "
         "expected\n"},
    };
    for (const auto& [arguments, complaint] : cases) {
        const CliOutcome outcome = RunCli(QString(arguments).split(' '), {}, TALMIR_SOURCE_DIR "/samples");
        EXPECT_EQ(outcome.code, QString(complaint).startsWith("talmir-cli") ? 2 : 1) << arguments;
        EXPECT_EQ(outcome.err, complaint);
        EXPECT_EQ(outcome.out, "");
    }
}

TEST(Solve, TriesTheParametersThatAreNamedEachOnce) {
    const CliOutcome outcome = RunCli({"solve", "hill_peasant.xdb", "Power=96", "--vary", "Tier,Speed,Tier"}, {},
                                      TALMIR_SOURCE_DIR "/samples");
    EXPECT_EQ(outcome.out, "hill_peasant.xdb: Hill_peasant, average Power 96\n"
                           "Wanted: Power 96\n"
                           "  Tier 1   exactly with 1–8\n"
                           "  Speed 4  exactly with 4\n");
    EXPECT_TRUE(
        RunCli({"solve", "hill_peasant.xdb", "Tier=2", "--vary", "Attack", "--scale-of", "."}, {},
               TALMIR_SOURCE_DIR "/samples")
            .out.contains("\nWanted: tier 2, average Power 152 to 259, as computed, without the scale of the mod\n"));
}

} // namespace

} // namespace Hesperin
