#include "cli/command.h"

#include "cli/language_option.h"
#include "cli/output.h"
#include "cli/scale_option.h"
#include "localisation/error_text.h"
#include "reports/json.h"
#include "reports/solve_report.h"
#include "text/nearest.h"

#include <algorithm>
#include <variant>

namespace Hesperin {

namespace {

const QString JsonOfSolve = QStringLiteral("json");
const QString VaryOption = QStringLiteral("vary");

void DescribeSolve(QCommandLineParser& parser) {
    parser.setApplicationDescription(
        parser.applicationDescription() +
        QStringLiteral(
            " One parameter at\n"
            "a time is tried over its whole range, the others stay as they are. Without an\n"
            "exact value it shows the nearest Powers below and above.\n\n"
            "Goals:\n"
            "  Power=N  An average Power.\n"
            "  Tier=N   Any average Power for which tier N is recommended.\n\n"
            "Examples:\n"
            "  talmir-cli solve samples/swamp_archer.xdb Power=300\n"
            "  talmir-cli solve samples/swamp_archer.xdb Tier=4 --vary Attack,Health\n"
            "  talmir-cli solve samples/swamp_archer.xdb Power=700 --scale-of samples --json"));
    parser.addPositionalArgument(QStringLiteral("FILE"),
                                 QStringLiteral("The creature file (.xdb)."));
    parser.addPositionalArgument(QStringLiteral("GOAL"), QStringLiteral("What is looked for."));
    parser.addOption({VaryOption,
                      QStringLiteral("Parameters to try instead of all, parted by commas: Attack, "
                                     "Defence, MinDam, MaxDam, Health, Speed, Initiative, Tier."),
                      QStringLiteral("NAME,...")});
    parser.addOption({ScaleOption, QStringLiteral("Reckons in the figures of the mod there."),
                      QStringLiteral("PATH")});
    parser.addOption({JsonOfSolve, QStringLiteral("One JSON document instead of a table.")});
    AddLanguageOption(parser, QStringLiteral("Language of the table"));
}

QStringList ParameterNames() {
    QStringList names;
    for (const ParameterRange& range : ParameterRanges)
        names.append(range.name.toString());
    return names;
}

/// The parameters of a list of names, each once; the first name that is none where there is one.
std::variant<std::vector<Parameter>, QString> ReadVaried(const QString& list) {
    std::vector<Parameter> varied;
    for (const QString& name : list.split(u',')) {
        const auto parameter = ParameterByName(name);
        if (!parameter)
            return name;
        if (std::find(varied.begin(), varied.end(), *parameter) == varied.end())
            varied.push_back(*parameter);
    }
    return varied;
}

int RunSolve(const QCommandLineParser& parser) {
    const QStringList arguments = parser.positionalArguments();
    if (arguments.size() != 2)
        return Misused("solve", QStringLiteral("one FILE and one GOAL are expected"));
    const auto languageId = LanguageOf(parser);
    if (!languageId)
        return Misused("solve", QStringLiteral("--lang takes EN or RU"));
    const auto goal = ReadSolveGoal(arguments[1]);
    if (!goal)
        return Misused("solve",
                       QStringLiteral("'%1' is no GOAL; Power=N with a whole number from 1, or "
                                      "Tier=N with 1 to 8, is expected")
                           .arg(arguments[1]));
    SolveWish wish{*goal};
    if (parser.isSet(VaryOption)) {
        const auto varied = ReadVaried(parser.value(VaryOption));
        if (const QString* unknown = std::get_if<QString>(&varied))
            return Misused(
                "solve",
                unknown->isEmpty()
                    ? QStringLiteral("--vary: a name is expected before and behind each comma")
                    : QStringLiteral("--vary: there is no parameter '%1'; the nearest is %2")
                          .arg(*unknown, NearestTo(*unknown, ParameterNames())));
        wish.varied = std::get<std::vector<Parameter>>(varied);
    }
    const Messages& messages = MessagesIn(*languageId);
    std::optional<ModScale> scale;
    if (parser.isSet(ScaleOption)) {
        scale = ReadScale(parser.value(ScaleOption), messages);
        if (!scale)
            return SomethingFailed;
        wish.scale = &*scale;
    }
    const auto report = SolveFile(arguments[0], wish);
    if (!report) {
        const Error& why = report.Why();
        Complain(why.doing == Error::Doing::Nothing
                     ? QStringLiteral("%1: %2").arg(why.file, ErrorReason(messages, why))
                     : ErrorText(messages, why));
        return SomethingFailed;
    }
    if (parser.isSet(JsonOfSolve))
        PrintLine(JsonLine(SolveJson(*report)));
    else
        PrintLine(SolveText(*report, *languageId));
    return AllDone;
}

} // namespace

const Command SolveCommand{"solve", "Finds the values that give a creature a Power.", DescribeSolve,
                           RunSolve};

} // namespace Hesperin
