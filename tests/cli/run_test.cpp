#include "cli/run_cli.h"
#include "creature_files/creature_xml.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QThread>

namespace Hesperin {

namespace {

TEST(Run, PlaysEveryAction) {
    const TestProgram files;
    const QByteArray out = files.Path("out.xdb").toUtf8();
    const struct {
        const char* what;
        QByteArray script;
        QStringList shown;
    } cases[] = {
        {"set keeps blanks", "set txtNC  a b  \nshow txtNC\n", {" a b  "}},
        {"set without text", "set txtNC abc\nset txtNC\nshow txtNC", {""}},
        {"set passes no filter and no limit", "set txtAttack -12345\nshow txtAttack", {"-12345"}},
        {"set takes UTF-8", "set txtNC Дракон\nshow txtNC", {QString::fromUtf8("Дракон")}},
        {"keys are filtered and limited", "set txtHealth\nkeys txtHealth 1a-2b.3c4\nshow txtHealth", {"123"}},
        {"keys are typed at the end", "set txtNC ab\nkeys txtNC c 1_D\nshow txtNC", {"abc_D"}},
        {"a backspace is a key", "set txtNC abc\nkeys txtNC \b\bX\nshow txtNC", {"aX"}},
        {"choose", "choose ComboFaction 1\nshow ComboFaction\nshow ComboAlias", {"Inferno", "INFERNO"}},
        {"tick and untick",
         "tick Abilities(38)\nshow Specabilities(9)\nuntick Specabilities(9)\nshow Abilities(38)",
         {"1", "0"}},
        {"tick twice", "tick Abilities(66)\ntick Abilities(66)\nshow Abilities(66)", {"1"}},
        {"mastery", "tick Abilities(29)\ntick Spells(46)\nmastery soq(46) 4\nshow soq(46)", {"4"}},
        {"press", "set txtAttack 51\npress cmdCalc\nshow txtAttack\npress cmdRAP\nshow txtAttack", {"50", "0"}},
        {"the alternative method is off", "show frmAM\nshow mnuEnglish", {"Alternative method", "English"}},
        {"save and open",
         "set txtNC wyrm\npress cmdCalc\nmenu mnuSave " + out + "\nmenu mnuNew\nmenu mnuOpen " + out +
             "\nshow txtNC\nshow Tablus.Tab(4)",
         {"Wyrm", files.Path("out.xdb")}},
        {"dialogs without a path are cancelled",
         "set txtNC wyrm\npress cmdCalc\nmenu mnuSave " + out +
             "\nset txtNC other\nmenu mnuOpen\nmenu mnuSave\nshow txtNC",
         {"other"}},
        {"languages",
         "menu mnuRussian\nshow FrameAttack\nmenu mnuEnglish\nshow FrameAttack",
         {QString::fromUtf8("Нападение"), "Attack"}},
        {"long line ends, comments, empty lines", "\r\n# comment\r\nset txtNC a \r\n  \r\n#\r\nshow txtNC\r\n", {"a "}},
        {"a byte-order mark", "\xEF\xBB\xBFshow lblMin", {"min"}},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.what);
        const CliOutcome outcome = Play(test.script);
        EXPECT_EQ(outcome.err, "");
        EXPECT_EQ(outcome.code, 0);
        EXPECT_EQ(outcome.out.chopped(outcome.out.endsWith('\n') ? 1 : 0).split('\n'), test.shown);
    }
}

TEST(Run, WhatTheUserCouldNotDoChangesNothingAndIsNamed) {
    const TestProgram files;
    files.Write("bad.xdb", "<Monster/>");
    const QByteArray bad = files.Path("bad.xdb").toUtf8();
    const QByteArrayList lines{"jump txtNC",
                               "Set txtNC x",
                               "set",
                               "set nothing x",
                               "set ComboTier 3",
                               "set txtMana 5",
                               "set txtIDC 5",
                               "set txtnc x",
                               "keys txtShots 5",
                               "keys cmdCalc 5",
                               "choose txtNC 1",
                               "choose ComboTier",
                               "choose ComboTier 8",
                               "choose ComboTier -1",
                               "choose ComboTier x",
                               "choose ComboRange 1",
                               "choose ComboAlias 1",
                               "tick Abilities(0)",
                               "tick Abilities(175)",
                               "tick Abilities",
                               "tick Abilities(066)",
                               "tick Spells(46)",
                               "tick Specabilities(0)",
                               "untick Spells(1)",
                               "mastery soq(46) 1",
                               "mastery saz(8) 1",
                               "mastery saz(9)",
                               "mastery saz(9) 5",
                               "mastery saz(9) -1",
                               "mastery Abilities(9) 1",
                               "press cmdRAS",
                               "press mnuNew",
                               "press",
                               "menu mnuSave " + bad,
                               "menu mnuFrench",
                               "menu mnuAlternativeMethod",
                               "menu mnuQuit",
                               "menu mnuAbout",
                               "menu",
                               "menu mnuOpen " + bad,
                               "menu mnuOpen " + bad + "x",
                               "show nothing",
                               "show",
                               "choose ComboTier %1"};
    const QByteArray start = "tick Specabilities(9)\nmastery saz(9) 3\nstate\n";
    const CliOutcome outcome = Play(start + lines.join('\n') + "\nstate\n", {"--keep-going"});
    EXPECT_EQ(outcome.code, 1);
    ASSERT_EQ(outcome.Complaints().size(), lines.size()) << outcome.err.toStdString();
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QString place = QString("-:%1: ").arg(i + 1 + start.count('\n'));
        const QString complaint = outcome.Complaints()[i];
        EXPECT_TRUE(complaint.startsWith(place) && complaint.size() > place.size() + 5)
            << lines[i].toStdString() << " gave " << complaint.toStdString();
    }
    EXPECT_TRUE(outcome.Complaints().last().contains("'%1'")) << outcome.Complaints().last().toStdString();
    ASSERT_EQ(outcome.Lines().size(), 2);
    QJsonObject after = outcome.Json(1);
    EXPECT_EQ(after["messages"].toArray().size(), 2) << "the two refused files";
    after["messages"] = QJsonArray();
    EXPECT_EQ(after, outcome.Json(0));
}

TEST(Run, AnErrorEndsItUnlessItIsToKeepGoing) {
    const TestProgram files;
    const QByteArray nowhere = files.Path("nowhere/a.xdb").toUtf8();
    const struct {
        QByteArray actions;
        int failsAtLine; // 0: it is no error
    } cases[] = {
        {"bogus %2", 3},
        {"\r\npress cmdRAS", 4},
        {"menu mnuOpen " + nowhere, 3},
        {"menu mnuSave " + nowhere, 3},
        {"menu mnuNew", 0},
        {"set txtNC\nmenu mnuSave " + nowhere, 0}, // asks for the name
        {"set txtAttack 999\npress cmdCalc", 0},   // warns
    };
    for (const auto& test : cases)
        for (const bool keepGoing : {false, true}) {
            SCOPED_TRACE(testing::Message() << test.actions.data() << keepGoing);
            const QString path =
                files.Write("50%1.txt", "set txtNC a\r\npress cmdCalc\r\n" + test.actions + "\r\nshow lblMin");
            const CliOutcome outcome = RunCli(QStringList{"run", path} + QStringList(keepGoing, "--keep-going"));
            const bool fails = test.failsAtLine != 0;
            EXPECT_EQ(outcome.code, fails ? 1 : 0);
            EXPECT_EQ(outcome.out, fails && !keepGoing ? "" : "min\n");
            EXPECT_EQ(outcome.Complaints().size(), fails ? 1 : 0);
            EXPECT_TRUE(!fails ||
                        outcome.err.startsWith(QString("%1:%2: ").arg(path, QString::number(test.failsAtLine))))
                << outcome.err.toStdString();
        }
}

TEST(Run, InputThatCannotBeReadEndsIt) {
    const TestProgram files;
    for (const QString& script : {files.Path("nowhere"), files.folder.path()}) {
        const CliOutcome outcome = RunCli({"run", script});
        EXPECT_EQ(outcome.code, 1);
        EXPECT_TRUE(outcome.err.startsWith(script + ": ")) << outcome.err.toStdString();
    }
    if (!OnLinux)
        GTEST_SKIP() << "the rest takes a shell";
    const std::pair<const char*, const char*> cases[] = {{"- <&-", "-: Bad file descriptor\n"},
                                                         {"- </", "-: Is a directory\n"},
                                                         {"/proc/self/mem", "/proc/self/mem: Input/output error\n"}};
    for (const auto& [script, complaint] : cases) {
        QProcess process;
        process.start("sh",
                      {"-c", QString("LC_ALL=C exec \"$0\" run --keep-going ") + script, TestedProgram("talmir-cli")});
        const CliOutcome outcome = FinishCli(process);
        EXPECT_EQ(outcome.code, 1);
        EXPECT_EQ(outcome.err, complaint);
    }
}

TEST(Run, WaitsForInputThatComesInPieces) {
    QProcess process;
    process.start(TestedProgram("talmir-cli"), {"run", "-"});
    for (const char* piece : {"set txtNC a", "b\nshow tx", "tNC"}) {
        process.write(piece);
        process.waitForBytesWritten();
        QThread::msleep(50);
    }
    process.closeWriteChannel();
    EXPECT_EQ(FinishCli(process).out, "ab\n");
}

TEST(Run, StartsInTheLanguageAskedFor) {
    const QByteArray script = "show FrameAttack\nmenu mnuNew\nstate\n";
    const CliOutcome russian = Play(script, {"--lang", "RU"});
    EXPECT_EQ(russian.Lines().value(0), QString::fromUtf8("Нападение"));
    EXPECT_EQ(russian.Json(1)["language"].toInt(), 2);
    EXPECT_EQ(russian.Json(1)["messages"][0]["title"].toString(), QString::fromUtf8("Внимание!"));
    EXPECT_EQ(Play(script, {"--lang", "EN"}).Lines().value(0), "Attack");
    EXPECT_EQ(Play(script).Lines().value(0), "Attack");
}

TEST(Run, StateTellsEverything) {
    const TestProgram files;
    const QByteArray path =
        files
            .Write("Creature_200.xdb",
                   CreatureXml().Set("SpellPoints", "8").Spell("SLOW", "EXPERT").Spell("ABILITY_DASH", "BASIC").Bytes())
            .toUtf8();
    const CliOutcome outcome =
        Play("menu mnuOpen " + path + "\nmenu mnuNew\nmenu mnuOpen " + path + "\nstate\nstate\n");
    ASSERT_EQ(outcome.Lines().size(), 2);
    const QJsonObject state = outcome.Json();
    EXPECT_EQ(state.keys(), (QStringList{"abilities", "calculate_tooltip", "counter", "creature", "enabled", "file",
                                         "flag", "focus", "labels", "language", "lists", "loaded", "messages",
                                         "page_captions", "pages", "specabilities", "spells", "texts", "title"}));
    EXPECT_EQ(state["texts"].toObject().keys(),
              (QStringList{"txtAttack", "txtCrystalf", "txtDefence", "txtExp", "txtGemf", "txtGoldf", "txtGrowthf",
                           "txtHealth", "txtIDC", "txtMana", "txtMaxDam", "txtMercuryf", "txtMinDam", "txtNC",
                           "txtOref", "txtPower", "txtShots", "txtSulfurf", "txtWoodf"}));
    EXPECT_EQ(state["texts"]["txtIDC"].toString(), "200");
    EXPECT_EQ(state["lists"].toObject().keys(),
              (QStringList{"ComboAlias", "ComboDiapazon", "ComboFME", "ComboFaction", "ComboInitiative", "ComboRange",
                           "ComboSME", "ComboSpeed", "ComboTTC", "ComboTier", "ComboUpgrade"}));
    EXPECT_EQ(state["lists"]["ComboAlias"].toObject(), (QJsonObject{{"index", 5}, {"text", "ACADEMY"}}));
    EXPECT_EQ(state["labels"].toObject().keys(),
              (QStringList{"lblCostAverage", "lblCostHesperin", "lblCostRolvane", "lblExpAverage", "lblExpHesperin",
                           "lblExpRolvane", "lblGrowthAverage", "lblGrowthHesperin", "lblGrowthRolvane",
                           "lblPowerAverage", "lblPowerHesperin", "lblPowerRolvane"}));
    EXPECT_EQ(state["abilities"].toArray(), (QJsonArray{29, 38, 65}));
    EXPECT_EQ(state["spells"].toObject(), (QJsonObject{{"75", 3}}));
    EXPECT_EQ(state["specabilities"].toObject(), (QJsonObject{{"9", 1}}));
    EXPECT_EQ(state["enabled"].toObject(), (QJsonObject{{"mnuSave", true},
                                                        {"cmdRAS", true},
                                                        {"txtMana", true},
                                                        {"FrameMana", true},
                                                        {"txtShots", false},
                                                        {"FrameShots", false},
                                                        {"ComboRange", false},
                                                        {"FrameRange", false}}));
    EXPECT_EQ(state["pages"].toArray(), (QJsonArray{true, true, true, true, true}));
    EXPECT_EQ(state["page_captions"].toArray(),
              (QJsonArray{"Parametres", "Abilities", "Spells", "Specabilities", QString::fromUtf8(path)}));
    EXPECT_EQ(state["calculate_tooltip"].toString(), "Average value for all abilities is 1.11");
    EXPECT_EQ(state["counter"].toInt(), 2);
    EXPECT_EQ(state["flag"].toInt(), -1);
    EXPECT_EQ(state["creature"].toString(), "Bog_wyrm");
    EXPECT_EQ(state["loaded"], true);
    EXPECT_EQ(state["file"].toObject(),
              (QJsonObject{{"power", 905}, {"experience", 61}, {"growth", 7}, {"gold", 420}}));
    EXPECT_EQ(state["focus"].toString(), "cmdCalc");
    EXPECT_TRUE(state["title"].toString().contains("Power=905{"));
    EXPECT_FALSE(state["messages"].toArray().isEmpty());
    EXPECT_EQ(state["messages"].toArray().first().toObject().keys(), (QStringList{"icon", "text", "title"}));
    EXPECT_EQ(outcome.Json(1)["messages"].toArray(), QJsonArray()) << "told once";
}

TEST(Run, EndsAtALineThatIsLongerThanAnyScriptHas) {
    const CliOutcome outcome = Play("set txtNC wyrm\nset txtNC " + QByteArray(2 << 20, 'x') + "\nshow txtNC\n");
    EXPECT_EQ(outcome.code, 1);
    EXPECT_EQ(outcome.err, "-:2: the line is longer than 1048576 bytes; the run ends here\n");
    EXPECT_EQ(outcome.out, "");
}

} // namespace

} // namespace Hesperin
