#include "cli/command.h"

#include "app/handlers/form_load.h"
#include "cli/language_option.h"
#include "cli/output.h"
#include "cli/script_actions.h"
#include "localisation/error_text.h"
#include "system/system_error.h"

#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace Hesperin {

namespace {

/// Of a script, in bytes: a file that is no script must not fill the memory.
constexpr qint64 LongestLine = 1 << 20;

const QString KeepGoing = QStringLiteral("keep-going");

void DescribeRun(QCommandLineParser& parser) {
    parser.setApplicationDescription(
        parser.applicationDescription() +
        QStringLiteral(" Message boxes are answered with OK; 'state' "
                       "lists them. What can't be done is told as\n"
                       "SCRIPT:LINE: reason, changes nothing, and ends "
                       "the run.\n\n"
                       "Actions, one a line; # starts a comment:\n") +
        ActionsHelp().trimmed().prepend(QLatin1String("  ")));
    parser.addPositionalArgument(
        QStringLiteral("SCRIPT"),
        QStringLiteral("File of user actions, one a line; - reads standard input."));
    parser.addOption(
        {KeepGoing, QStringLiteral("Goes on behind what can't be done; the exit code is 1 then.")});
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

bool OpenInput(QFile& script) {
    return script.open(stdin, QIODevice::ReadOnly | QIODevice::Unbuffered); // line by line
}

/// The next line with its end; empty at the end of the script. Where it can't be read any further
/// the script has an error, which its own way to read a line would keep to itself.
QByteArray NextLine(QFile& script) {
    QByteArray line;
    for (char next = 0; line.size() <= LongestLine && next != '\n' && script.getChar(&next);)
        line += next;
    return line;
}

/// Why the script can't be read.
void ComplainOf(const QFile& script, const QString& name, const Messages& messages) {
    const Error error =
        QFileInfo(name).isDir() ? Error{Error::What::IsFolder} : ErrorOf(script.errorString());
    Complain(QStringLiteral("%1: %2").arg(name, ErrorReason(messages, error)));
}

/// Plays the lines up to the end, or to the first that fails unless the run is to keep going. True
/// when all could be done.
bool Play(QFile& script, const QString& name, ScriptStage& stage, bool keepGoing) {
    const Messages& messages = stage.program.state.messages;
    bool allDone = true;
    for (int number = 1; allDone || keepGoing; ++number) {
        QByteArray bytes = NextLine(script);
        if (script.error() != QFileDevice::NoError) {
            ComplainOf(script, name, messages);
            return false;
        }
        if (bytes.isEmpty())
            return allDone;
        if (bytes.size() > LongestLine) {
            Complain(QStringLiteral("%1:%2: the line is longer than %3 bytes; the run ends here")
                         .arg(name, QString::number(number), QString::number(LongestLine)));
            return false;
        }
        const QString line = WithoutLineEnd(bytes);
        if (!IsAction(line))
            continue;
        const QString reason = PlayLine(stage, line);
        if (reason.isEmpty())
            continue;
        allDone = false;
        Complain(QStringLiteral("%1:%2: %3").arg(name, QString::number(number), reason));
    }
    return false;
}

int RunScript(const QCommandLineParser& parser) {
    const QStringList names = parser.positionalArguments();
    const auto language = LanguageOf(parser);
    if (names.size() != 1 || !language)
        return Misused("run", QStringLiteral("one SCRIPT (or -) is expected, and --lang EN or RU"));
    const QString& name = names.constFirst();
    QFile script(name);
    const bool opened =
        name == QLatin1String("-") ? OpenInput(script) : script.open(QIODevice::ReadOnly);
    if (!opened) {
        ComplainOf(script, name, MessagesIn(*language));
        return SomethingFailed;
    }
    CliPlatform platform;
    Program program(platform);
    Form_Load(program, {language});
    ScriptStage stage{program, platform};
    return Play(script, name, stage, parser.isSet(KeepGoing)) ? AllDone : SomethingFailed;
}

} // namespace

const Command RunCommand{"run", "Plays a script of user actions.", DescribeRun, RunScript};

} // namespace Hesperin
