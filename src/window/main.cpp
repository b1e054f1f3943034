// talmir: the calculator in its window.
#include "window/early_start.h"
#include "window/start_arguments.h"
#include "window/windowed_program.h"

#include <QApplication>

#include <cstdio>

using namespace Hesperin;

int main(int argc, char** argv) {
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const StartArguments start = ReadStartArguments(arguments);
    if (!start.answer.isEmpty()) { // needs no display
        std::fputs((start.answer + u'\n').toUtf8().constData(), start.misused ? stderr : stdout);
        return start.misused ? 2 : 0;
    }

    EarlyStart early;
    const QApplication application(argc, argv);
    WindowedProgram::DressApplication();
    WindowedProgram program(early);
    if (!program.Start(start.creatureFile))
        return 0;
    return QApplication::exec();
}
