#include "cli/command.h"

#include "cli/calc_report.h"
#include "cli/output.h"
#include "creature_files/file_commands.h"
#include "engine/languages.h"
#include "ui/form_load.h"

namespace Hesperin {

namespace {

const QString JsonOption = QStringLiteral("json");

void DescribeCalc(QCommandLineParser& parser) {
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("Creature files (.xdb)."),
                                 QStringLiteral("FILE..."));
    parser.addOption(
        {JsonOption, QStringLiteral("One JSON object a line and file instead of a table.")});
}

int Calc(const QCommandLineParser& parser) {
    const QStringList files = parser.positionalArguments();
    const bool json = parser.isSet(JsonOption);
    if (files.isEmpty()) {
        Complain(QStringLiteral("talmir-cli calc: at least one FILE is expected"));
        return WrongUsage;
    }
    CliPlatform platform;
    Program program(platform);
    Form_Load(program, {English, false});
    bool allOpened = true;
    for (const QString& file : files) {
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
