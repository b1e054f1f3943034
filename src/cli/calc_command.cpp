#include "cli/command.h"

#include "cli/output.h"
#include "creature_files/creature_folder.h"
#include "localisation/languages.h"
#include "reports/calc_report.h"
#include "reports/json.h"

namespace Hesperin {

namespace {

const QString JsonOfCalc = QStringLiteral("json");

void DescribeCalc(QCommandLineParser& parser) {
    parser.addPositionalArgument(
        QStringLiteral("FILE"),
        QStringLiteral("Creature files (.xdb); a folder stands for all below it."),
        QStringLiteral("FILE..."));
    parser.addOption(
        {JsonOfCalc, QStringLiteral("One JSON object a line and file instead of a table.")});
}

int Calc(const QCommandLineParser& parser) {
    const QStringList paths = parser.positionalArguments();
    const bool json = parser.isSet(JsonOfCalc);
    if (paths.isEmpty())
        return Misused("calc", QStringLiteral("at least one FILE is expected"));
    const FoundFiles found = CreatureFilesAt(paths);
    bool allOpened = found.refused.empty();
    for (const QString& file : found.files) {
        const CalcReport report = CalculateFile(file, English);
        allOpened = allOpened && !report.refusal;
        if (json)
            PrintLine(JsonLine(CalcJson(report)));
        else if (!report.refusal)
            PrintLine(CalcTable(report));
        else
            Complain(report.messages.front().text);
    }
    Complain(found, paths);
    return allOpened ? AllDone : SomethingFailed;
}

} // namespace

const Command CalcCommand{"calc", "Shows the balance figures of creature files.", DescribeCalc,
                          Calc};

} // namespace Hesperin
