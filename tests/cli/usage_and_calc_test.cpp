#include "reports/calc_report.h"
#include "cli/run_cli.h"
#include "creature_files/creature_xml.h"
#include "support/test_program.h"
#include "app/handlers/form_load.h"

#include <gtest/gtest.h>

#include <QJsonArray>

namespace Hesperin {

namespace {

/// A creature whose figures can be worked out by hand: Power 129 and 146 at tier 2.
CreatureXml SmallCreature() {
    const std::pair<const char*, const char*> elements[] = {
        {"AttackSkill", "4"}, {"DefenceSkill", "3"}, {"MinDamage", "2"},    {"MaxDamage", "3"},  {"Health", "10"},
        {"Speed", "5"},       {"Initiative", "10"},  {"CreatureTier", "2"}, {"Upgrade", "false"}};
    CreatureXml creature;
    for (const auto& [element, content] : elements)
        creature.Set(element, content);
    return creature;
}

TEST(Cli, HelpAndVersionGoToStandardOutput) {
    const std::pair<QStringList, const char*> cases[] = {
        {{"--help"}, "talmir-cli COMMAND"}, {{"-h"}, "talmir-cli COMMAND"},          {{"--version"}, "TALMIR v0."},
        {{"run", "-v"}, "TALMIR v0."},      {{"calc", "--help"}, "talmir-cli calc"}, {{"run", "-h"}, "talmir-cli run"},
    };
    for (const auto& [arguments, piece] : cases) {
        SCOPED_TRACE(arguments.join(' ').toStdString());
        const CliOutcome outcome = RunCli(arguments);
        EXPECT_EQ(outcome.code, 0);
        EXPECT_EQ(outcome.err, "");
        EXPECT_TRUE(outcome.out.contains(piece)) << outcome.out.toStdString();
        EXPECT_FALSE(outcome.out.contains(TestedProgram("talmir-cli"))) << "a path on this machine helps nobody";
    }
}

TEST(Cli, WrongUsageIsCode2AndAComplaint) {
    for (const char* arguments : {"bogus", "--bogus", "calc", "calc --json", "calc --bogus a.xdb", "run", "run a b",
                                  "run - --lang FR", "run - --lang", "run - --lang ru", "run --json -"}) {
        SCOPED_TRACE(arguments);
        const CliOutcome outcome = RunCli(QString(arguments).split(' '));
        EXPECT_EQ(outcome.code, 2);
        EXPECT_EQ(outcome.out, "");
        EXPECT_TRUE(outcome.err.contains("talmir-cli")) << outcome.err.toStdString();
    }
    EXPECT_EQ(RunCli({}).code, 2);
}

TEST(Cli, OutputThatCannotBeWrittenIsAFailure) {
    if (!QFile::exists("/dev/full"))
        GTEST_SKIP() << "no full device here";
    QProcess process;
    process.setStandardOutputFile("/dev/full");
    process.start(TestedProgram("talmir-cli"), {"--version"});
    EXPECT_EQ(FinishCli(process).code, 1);
}

TEST(Calc, ShowsTheFiguresAsATableAndComplainsOfARefusedFile) {
    const TestProgram files;
    const QString path = files.Write("50%1.xdb", SmallCreature().Spell("SLOW", "EXPERT").Bytes());
    const CliOutcome outcome = RunCli({"calc", files.Path("nowhere.xdb"), path});
    EXPECT_EQ(outcome.code, 1);
    EXPECT_EQ(outcome.Complaints().size(), 1);
    EXPECT_TRUE(outcome.err.contains("nowhere.xdb"));
    QStringList rows;
    for (const QString& line : outcome.Lines())
        rows.append(line.simplified());
    EXPECT_EQ(rows.value(0), path + ": Bog_wyrm, tier 2");
    for (const char* row : {"Power 129 146 137 905", "Experience 11 13 12 61", "Growth 18 15 16 7", "Gold 54 63 58 420",
                            "Abilities: FLESH_AND_BLOOD"})
        EXPECT_TRUE(rows.contains(row)) << row << '\n' << outcome.out.toStdString();
    EXPECT_TRUE(outcome.out.contains("SLOW (3)"));
    EXPECT_TRUE(outcome.out.contains("It is recommended to lower tier from 2 to 1"));
    EXPECT_EQ(RunCli({"calc", path}).code, 0);
}

TEST(Calc, GivesOneJsonObjectALine) {
    const TestProgram files;
    const QString good = files.Write(QString::fromUtf8("дракон.xdb"), SmallCreature()
                                                                          .Set("SpellPoints", "9")
                                                                          .Spell("SLOW", "EXPERT")
                                                                          .Spell("ABILITY_DASH", "BASIC")
                                                                          .Remove("Gold")
                                                                          .Bytes());
    const QString bad = files.Write("bad.xdb", "<Monster/>");
    const CliOutcome outcome = RunCli({"calc", "--json", good, bad, good});
    EXPECT_EQ(outcome.code, 1);
    ASSERT_EQ(outcome.Lines().size(), 3);
    EXPECT_EQ(outcome.Lines()[0], outcome.Lines()[2]) << "nothing stays from the files before";

    const QStringList keys{"abilities",     "ability_product", "advised_tier", "figures", "file",
                           "in_file",       "messages",        "name",         "ok",      "parameters",
                           "specabilities", "spells",          "tier",         "title"};
    const QJsonObject object = outcome.Json();
    EXPECT_EQ(object.keys(), keys);
    EXPECT_EQ(object["file"].toString(), good);
    EXPECT_EQ(object["ok"].toBool(), true);
    EXPECT_EQ(object["name"].toString(), "Bog_wyrm");
    EXPECT_EQ(object["tier"].toInt(), 2);
    EXPECT_EQ(object["advised_tier"].toInt(), 1); // 143 and 153: 148, below 152
    const QJsonObject power = object["figures"]["power"].toObject();
    EXPECT_EQ(power, (QJsonObject{{"rolvane", 143}, {"hesperin", 154}, {"average", 148}})); // 129.04 * 1.11
    EXPECT_EQ(object["figures"].toObject().keys(), (QStringList{"cost", "experience", "growth", "power"}));
    EXPECT_EQ(object["in_file"].toObject(),
              (QJsonObject{{"power", 905}, {"experience", 61}, {"growth", 7}, {"gold", 0}}));
    EXPECT_EQ(object["parameters"].toObject(), (QJsonObject{{"Attack", 4},
                                                            {"Defence", 3},
                                                            {"MinDam", 2},
                                                            {"MaxDam", 3},
                                                            {"Health", 10},
                                                            {"Speed", 5},
                                                            {"Initiative", 10},
                                                            {"Tier", 2},
                                                            {"Upgrade", false},
                                                            {"Shooter", false}}));
    EXPECT_EQ(object["ability_product"].toDouble(), 1.11);
    EXPECT_EQ(object["abilities"].toArray(), (QJsonArray{"CASTER", "DASH", "FLESH_AND_BLOOD"}));
    EXPECT_EQ(object["spells"].toArray(), (QJsonArray{QJsonObject{{"token", "SLOW"}, {"mastery", 3}}}));
    EXPECT_EQ(object["specabilities"].toArray(), (QJsonArray{QJsonObject{{"token", "DASH"}, {"mastery", 1}}}));
    EXPECT_EQ(object["messages"].toArray().size(), 2);
    EXPECT_EQ(object["messages"][0].toObject(), (QJsonObject{{"icon", "information"},
                                                             {"title", "Warning!"},
                                                             {"text", "Missing in the file, so left empty: Gold."}}));
    EXPECT_TRUE(object["title"].toString().contains("[Creature: Bog_wyrm, Power=905{148}"));

    const QJsonObject refused = outcome.Json(1);
    EXPECT_EQ(refused.keys(), (keys.mid(0, 3) + QStringList{"error"} + keys.mid(3)));
    EXPECT_EQ(refused["ok"], false);
    EXPECT_TRUE(refused["error"].toString().contains(bad));
    EXPECT_EQ(refused["messages"].toArray().size(), 1);
    for (const char* key : {"ability_product", "advised_tier", "name", "tier", "title"})
        EXPECT_TRUE(refused[key].isNull()) << key;
    for (const char* key : {"power", "experience", "growth", "cost"})
        EXPECT_EQ(refused["figures"][key].toObject(),
                  (QJsonObject{{"rolvane", QJsonValue()}, {"hesperin", QJsonValue()}, {"average", QJsonValue()}}));
    for (const char* key : {"power", "experience", "growth", "gold"})
        EXPECT_TRUE(refused["in_file"].toObject().contains(key) && refused["in_file"][key].isNull()) << key;
}

TEST(Calc, AFolderStandsForTheCreatureFilesBelowIt) {
    const TestProgram files;
    const QByteArray creature = SmallCreature().Bytes();
    for (const auto& [name, bytes] : {std::pair<const char*, QByteArray>{"mod/b/2.xdb", creature},
                                      {"mod/a/3.XDB", creature},
                                      {"mod/1.xdb", "<Creature>"},
                                      {"mod/a/other.xdb", "<!-- no creature --><AttackPattern/>"},
                                      {"mod/a/readme.txt", creature}})
        files.Write(name, bytes);
    const CliOutcome outcome = RunCli({"calc", "--json", files.Path("mod")});
    EXPECT_EQ(outcome.code, 1) << "one can't be read";
    QStringList found;
    for (qsizetype line = 0; line < outcome.Lines().size(); ++line)
        found.append(outcome.Json(line)["file"].toString().mid(files.folder.path().size() + 1));
    EXPECT_EQ(found, (QStringList{"mod/1.xdb", "mod/a/3.XDB", "mod/b/2.xdb"}));
}

TEST(Calc, AZeroPowerLeavesOutWhatWasNotReached) {
    CliPlatform platform;
    Program program(platform);
    Form_Load(program, {English, false});
    program.state.powers.PowerHesperin = 11;
    program.state.figures.PowerAverage = program.state.figures.CostAverage = program.state.advice.AdvisedTier = 7; // of the creature before
    const QJsonObject object = CalcJson("a.xdb", true, program, platform);
    const QJsonObject none{{"rolvane", QJsonValue()}, {"hesperin", QJsonValue()}, {"average", QJsonValue()}};
    const QJsonObject power{{"rolvane", 0}, {"hesperin", 11}, {"average", QJsonValue()}};
    EXPECT_EQ(object["figures"].toObject(),
              (QJsonObject{{"power", power}, {"experience", none}, {"growth", none}, {"cost", none}}));
    EXPECT_TRUE(object["advised_tier"].isNull());
    const QString table = CalcTable("a.xdb", program, platform).simplified();
    EXPECT_TRUE(table.contains("Power 0 11 - 0 Experience - - - 0 Growth - - - 0 Gold - - - 0")) << table.toStdString();
}

} // namespace

} // namespace Hesperin
