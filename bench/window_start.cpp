// Starts the program in its window and ends after the first complete picture. Run by the start
// benchmark.
#include "window/windowed_program.h"

#include "end_after_first_picture.h"

#include <QApplication>

int main(int argc, char** argv) {
    Hesperin::EarlyStart early;
    const QApplication application(argc, argv);
    Hesperin::WindowedProgram::DressApplication();
    Hesperin::WindowedProgram program(early);
    if (!program.Start({}))
        return 1;
    QWidget* shown = nullptr; // menus are windows too
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible())
            shown = window;
    if (shown == nullptr)
        return 1;
    const EndAfterFirstPicture end(*shown);
    return QApplication::exec();
}
