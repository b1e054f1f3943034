// talmir: the calculator in its window.
#include "window/start_arguments.h"
#include "window/windowed_program.h"

#include <QApplication>

#include <cstdio>

using namespace Hesperin;

namespace {

/// The answer to --help, --version or a misuse, which needs no display; -1 when the program is to
/// start.
int AnswerWithoutWindow(const StartArguments& start) {
    if (start.answer.isEmpty())
        return -1;
    std::fputs((start.answer + u'\n').toUtf8().constData(), start.misused ? stderr : stdout);
    return start.misused ? 2 : 0;
}

StartArguments ArgumentsBeforeToolkit(int argc, char** argv) {
    QStringList asked;
    for (int i = 1; i < argc; ++i)
        if (const QString argument = QString::fromLocal8Bit(argv[i]);
            argument == QLatin1String("-h") || argument == QLatin1String("--help") ||
            argument == QLatin1String("-v") || argument == QLatin1String("--version"))
            asked.append(argument);
    return ReadStartArguments(asked);
}

} // namespace

int main(int argc, char** argv) {
    if (const int code = AnswerWithoutWindow(ArgumentsBeforeToolkit(argc, argv)); code >= 0)
        return code;

    const QApplication application(argc, argv);
    const StartArguments start = ReadStartArguments(QCoreApplication::arguments().mid(1));
    if (const int code = AnswerWithoutWindow(start); code >= 0)
        return code;

    WindowedProgram::DressApplication();
    WindowedProgram program;
    if (!program.Start(start.creatureFile))
        return 0;
    return QApplication::exec();
}
