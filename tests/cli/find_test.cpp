#include "cli/run_cli.h"

#include <gtest/gtest.h>

namespace Hesperin {

namespace {

TEST(Find, TellsWhatTheGameSaysInThatLanguage) {
    const QTemporaryDir settings;
    const auto write = [&](const char* language, const char* file, const QByteArray& text) {
        WriteFile(settings.filePath(language) + "/Text/Game/Creatures/Creature_abilities/Bash/" + file, text);
    };
    const QString program = settings.filePath(QFileInfo(TestedProgram("talmir-cli")).fileName());
    ASSERT_TRUE(QFile::copy(TestedProgram("talmir-cli"), program)); // beside which lie its texts alone
    const auto find = [&](const QStringList& words) { return RunCli(QStringList{"find"} + words, {}, {}, program); };
    qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
    const CliOutcome without = find({"stuns"});
    write("EN", "Bash_name.txt", "Bash\r\n");
    write("EN", "Bash_desc.txt", "Stuns the enemy");
    write("RU", "Bash_name.txt", "Оглушение");
    const struct {
        QStringList arguments;
        int code;
        const char* out;
        const char* err = "";
    } cases[] = {
        {{"stuns"}, 0, " 16  BASH  1.08   Bash\n"},
        {{"enemy", "STUNS"}, 0, " 16  BASH  1.08   Bash\n"},
        {{"--lang", "RU", "оглуш"}, 0, " 16  BASH  1.08   Оглушение\n"},
        {{"оглуш"}, 1, "", "talmir-cli find: no ability matches 'оглуш'\n"},
        {{"chain", "shot"}, 0, " 30  CHAIN_SHOT  1.22\n"},
        {{"--json", "stuns"},
         0,
         R"({"description":"Stuns the enemy","index":16,"name":"Bash","token":"BASH","value":1.08})"
         "\n"},
    };
    for (const auto& row : cases) {
        const CliOutcome outcome = find(row.arguments);
        EXPECT_EQ(outcome.code, row.code);
        EXPECT_EQ(outcome.out, row.out);
        EXPECT_EQ(outcome.err, row.err);
    }
    qunsetenv("XDG_CONFIG_HOME");
    EXPECT_EQ(without.code, 1);
    EXPECT_TRUE(without.err.contains("talmir-cli texts")) << without.err.toStdString();
}

} // namespace

} // namespace Hesperin
