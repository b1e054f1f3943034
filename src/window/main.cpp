// talmir: the calculator in its window.
#include "window/early_start.h"
#include "window/start_arguments.h"
#include "window/windowed_program.h"

#include <QApplication>
#include <QMessageBox>

#include <cstdio>

using namespace Hesperin;

namespace {

/// Tells what was asked for, or what was wrong, and gives the exit code.
int Answer(const StartArguments& start, [[maybe_unused]] int argc, [[maybe_unused]] char** argv) {
#ifdef Q_OS_WIN // where a program with a window has no console
    const QApplication application(argc, argv);
    QMessageBox(start.misused ? QMessageBox::Critical : QMessageBox::Information,
                QStringLiteral("TALMIR"), start.answer)
        .exec();
#else
    std::fputs((start.answer + u'\n').toUtf8().constData(), start.misused ? stderr : stdout);
#endif
    return start.misused ? 2 : 0;
}

} // namespace

int main(int argc, char** argv) {
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const StartArguments start = ReadStartArguments(arguments);
    if (!start.answer.isEmpty()) // needs no display, except on Windows
        return Answer(start, argc, argv);

    EarlyStart early;
    const QApplication application(argc, argv);
    WindowedProgram::DressApplication();
    WindowedProgram program(early);
    if (!program.Start(start.creatureFile))
        return 0;
    return QApplication::exec();
}
