#include "cli/command.h"

#include "cli/language_option.h"
#include "cli/output.h"
#include "cli/script_actions.h"
#include "ui/form_load.h"

#include <QFile>

#include <cstdio>

namespace Hesperin {

namespace {

/// Of a script, in bytes: a file that is no script must not fill the memory.
constexpr qint64 LongestLine = 1 << 20;

void DescribeRun(QCommandLineParser& parser) {
    parser.setApplicationDescription(parser.applicationDescription() +
                                     QStringLiteral(" Message boxes are answered with OK; 'state' "
                                                    "lists them. What can't be done is told as\n"
                                                    "SCRIPT:LINE: reason, and the run goes on.\n\n"
                                                    "Actions, one a line; # starts a comment:\n") +
                                     ActionsHelp().trimmed().prepend(QLatin1String("  ")));
    parser.addPositionalArgument(
        QStringLiteral("SCRIPT"),
        QStringLiteral("File of user actions, one a line; - reads standard input."));
    AddLanguageOption(parser, QStringLiteral("Language at the start"));
}

QString WithoutLineEnd(QByteArray line) {
    if (line.endsWith('\n'))
        line.chop(1);
    if (line.endsWith('\r'))
        line.chop(1);
    return QString::fromUtf8(line);
}

bool IsAction(const QString& line) {
    return !line.trimmed().isEmpty() && !line.startsWith(u'#');
}

/// Plays every line; true when all could be done.
bool Play(QFile& script, const QString& name, ScriptStage& stage) {
    bool allDone = true;
    for (int number = 1; !script.atEnd(); ++number) {
        QByteArray bytes = script.readLine(LongestLine + 2); // counts a null that it ends with
        if (bytes.size() > LongestLine) {
            Complain(QStringLiteral("%1:%2: the line is longer than %3 bytes; the run ends here")
                         .arg(name, QString::number(number), QString::number(LongestLine)));
            return false;
        }
        if (number == 1 && bytes.startsWith("\xEF\xBB\xBF"))
            bytes.remove(0, 3);
        const QString line = WithoutLineEnd(bytes);
        if (!IsAction(line))
            continue;
        const QString reason = PlayLine(stage, line);
        if (reason.isEmpty())
            continue;
        allDone = false;
        Complain(QStringLiteral("%1:%2: %3").arg(name, QString::number(number), reason));
    }
    if (script.error() == QFileDevice::NoError)
        return allDone;
    Complain(QStringLiteral("%1: %2").arg(name, script.errorString()));
    return false;
}

int RunScript(const QCommandLineParser& parser) {
    const QStringList names = parser.positionalArguments();
    const auto language = LanguageOf(parser);
    if (names.size() != 1 || !language) {
        Complain(
            QStringLiteral("talmir-cli run: one SCRIPT (or -) is expected, and --lang EN or RU"));
        return WrongUsage;
    }
    const QString& name = names.constFirst();
    QFile script(name);
    const bool opened = name == QLatin1String("-") ? script.open(stdin, QIODevice::ReadOnly)
                                                   : script.open(QIODevice::ReadOnly);
    if (!opened) {
        Complain(QStringLiteral("%1: %2").arg(name, script.errorString()));
        return SomethingFailed;
    }
    CliPlatform platform;
    Program program(platform);
    Form_Load(program, {language});
    ScriptStage stage{program, platform};
    return Play(script, name, stage) ? AllDone : SomethingFailed;
}

} // namespace

const Command RunCommand{"run", "Plays a script of user actions.", DescribeRun, RunScript};

} // namespace Hesperin
