// talmir: the calculator in its window.
#include "creature_files/file_commands.h"
#include "engine/program.h"
#include "ui/form_load.h"
#include "window/main_window.h"
#include "window/palette.h"
#include "window/start_arguments.h"
#include "window/window_platform.h"

#include <QApplication>
#include <QIcon>
#include <QStyleFactory>
#include <QTimer>

#include <cstdio>

using namespace Hesperin;

namespace {

/// The answer to --help, --version or a misuse, which needs no display; -1 when the program is to start.
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

    QApplication::setStyle(QStringLiteral("Fusion"));
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("talmir"));
    QApplication::setPalette(ProgramPalette());
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/talmir.png")));
    const StartArguments start = ReadStartArguments(QCoreApplication::arguments().mid(1));
    if (const int code = AnswerWithoutWindow(start); code >= 0)
        return code;

    WindowPlatform platform;
    Program program(platform);
    if (!Form_Load(program))
        return 0;
    MainWindow window(program);
    platform.Attach(program, window);
    window.move(0, 0);
    window.show();
    if (!start.creatureFile.isEmpty())
        QTimer::singleShot(0, &window, [&] { OpenCreatureFile(program, start.creatureFile); });
    return QApplication::exec();
}
