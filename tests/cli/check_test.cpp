// Sessions with `talmir-cli check`: tests/data/check.
#include "cli/run_cli.h"
#include "support/cases_file.h"

#include <QRegularExpression>

namespace Hesperin {

namespace {

/// Runs commands of the shell in the folder, in which `check` is the program's, and `made FILE SCRIPT` makes a
/// creature's file out of the sample of an archer by a script for sed.
QString CheckOutcome(const QTemporaryDir& folder, QString commands) {
    commands.replace(QRegularExpression("(^|; )check\\b"), "\\1\"$0\" check");
    const QString words = "made() { mkdir -p \"$(dirname \"$1\")\"; sed \"$2\" swamp_archer.xdb >\"$1\"; }\n";
    const CliOutcome outcome = RunShell(words + commands, folder.path());
    return outcome.out + outcome.err + (outcome.code == 0 ? "" : "\nexit code " + QString::number(outcome.code));
}

TEST(Check, GoesAsTold) {
    if (!OnLinux)
        GTEST_SKIP() << "no shell";
    const QTemporaryDir folder;
    for (const char* name : {"swamp_archer.xdb", "hill_peasant.xdb"})
        WriteFile(folder.filePath(name), ReadAll(QString(TALMIR_SOURCE_DIR "/samples/") + name).replace("\r\n", "\n"));
    ExpectCases("check/sessions.txt", [&](const QString& line) { return CheckOutcome(folder, line); });
}

} // namespace

} // namespace Hesperin
