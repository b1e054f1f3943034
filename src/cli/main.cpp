// talmir-cli: the calculator without a window.
#include "cli/command.h"
#include "cli/output.h"
#include "system/console.h"
#include "system/version_record.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Hesperin;

namespace {

const Command* const Commands[] = {&CalcCommand,  &SetCommand,     &TableCommand, &ApplyCommand,
                                   &CheckCommand, &ExplainCommand, &SolveCommand, &FindCommand,
                                   &RunCommand,   &TextsCommand};

QString Overview() {
    QString text = QStringLiteral("Usage: talmir-cli COMMAND [ARGUMENTS]\n"
                                  "Balance figures and creature files without a window.\n\n"
                                  "Commands:\n");
    for (const Command* command : Commands)
        text += QStringLiteral("  %1  %2\n")
                    .arg(QLatin1String(command->name), -7)
                    .arg(QLatin1String(command->summary));
    text += QLatin1String("\nOptions:\n"
                          "  -h, --help     Shows this help, or that of a command.\n"
                          "  -v, --version  Shows the version.\n\n"
                          "Exit code 0: all done; 1: something could not be done; 2: wrong usage.");
    return text;
}

int Misused(const QString& reason) {
    Complain(QLatin1String("talmir-cli: ") + reason + QLatin1String("\nTry 'talmir-cli --help'."));
    return WrongUsage;
}

int RunCommandWith(const Command& command, QStringList arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(QLatin1String(command.summary));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Shows this help."));
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")},
                                     QStringLiteral("Shows the version."));
    parser.addOption(help);
    parser.addOption(version);
    command.describe(parser);
    arguments.prepend(QLatin1String("talmir-cli ") + QLatin1String(command.name));
    if (!parser.parse(arguments))
        return Misused(parser.errorText());
    if (parser.isSet(help)) {
        QString text = parser.helpText();
        text.replace(QCoreApplication::arguments().constFirst(), arguments.constFirst());
        PrintLine(text.trimmed());
        return AllDone;
    }
    if (parser.isSet(version)) {
        PrintLine(VersionRecord::TitleAndVersion());
        return AllDone;
    }
    return command.run(parser);
}

int Run(QStringList arguments) {
    arguments.removeFirst();
    if (arguments.isEmpty())
        return Misused(QStringLiteral("a command is missing"));
    const QString first = arguments.takeFirst();
    if (first == QLatin1String("--help") || first == QLatin1String("-h")) {
        PrintLine(Overview());
        return AllDone;
    }
    if (first == QLatin1String("--version") || first == QLatin1String("-v")) {
        PrintLine(VersionRecord::TitleAndVersion());
        return AllDone;
    }
    for (const Command* command : Commands)
        if (first == QLatin1String(command->name))
            return RunCommandWith(*command, arguments);
    return Misused(QStringLiteral("there is no command '%1'").arg(first));
}

} // namespace

int main(int argc, char** argv) {
    PrepareConsole();
    const QCoreApplication application(argc, argv);
    const int code = Run(QCoreApplication::arguments());
    if (FlushOutput())
        return code;
    Complain(QStringLiteral("talmir-cli: the output could not be written"));
    return std::max<int>(code, SomethingFailed);
}
