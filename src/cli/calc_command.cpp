#include "cli/command.h"

#include "cli/calc_report.h"
#include "cli/output.h"
#include "creature_files/creature_folder.h"
#include "creature_files/file_commands.h"
#include "engine/languages.h"
#include "ui/form_load.h"

#include <QFileInfo>

namespace Hesperin {

namespace {

const QString JsonOption = QStringLiteral("json");

void DescribeCalc(QCommandLineParser& parser) {
    parser.addPositionalArgument(
        QStringLiteral("FILE"),
        QStringLiteral("Creature files (.xdb); a folder stands for all below it."),
        QStringLiteral("FILE..."));
    parser.addOption(
        {JsonOption, QStringLiteral("One JSON object a line and file instead of a table.")});
}

/// Folders replaced by the creature files below them.
QStringList FilesOf(const QStringList& paths) {
    QStringList files;
    for (const QString& path : paths)
        files += QFileInfo(path).isDir() ? CreatureFilesBelow(path) : QStringList(path);
    return files;
}

int Calc(const QCommandLineParser& parser) {
    const QStringList paths = parser.positionalArguments();
    const bool json = parser.isSet(JsonOption);
    if (paths.isEmpty()) {
        Complain(QStringLiteral("talmir-cli calc: at least one FILE is expected"));
        return WrongUsage;
    }
    CliPlatform platform;
    Program program(platform);
    Form_Load(program, {English, false});
    bool allOpened = true;
    for (const QString& file : FilesOf(paths)) {
        platform.messages.clear();
        const bool opened = OpenCreatureFile(program, file);
        allOpened = allOpened && opened;
        if (json)
            PrintLine(JsonLine(CalcJson(file, opened, program, platform)));
        else if (opened)
            PrintLine(CalcTable(file, program, platform));
        else
            Complain(program.failure);
    }
    return allOpened ? AllDone : SomethingFailed;
}

} // namespace

const Command CalcCommand{"calc", "Shows the balance figures of creature files.", DescribeCalc,
                          Calc};

} // namespace Hesperin
