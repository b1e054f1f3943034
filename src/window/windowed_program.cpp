#include "window/windowed_program.h"

#include "app/handlers/form_load.h"
#include "window/palette.h"
#include "window/program_style.h"

#include <QApplication>
#include <QScreen>

namespace Hesperin {

void WindowedProgram::DressApplication() {
    QApplication::setStyle(new ProgramStyle);
    // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks): the application owns the style
    QApplication::setPalette(ProgramPalette());
}

bool WindowedProgram::Start(const QString& creatureFile) {
    early.Await();
    if (!Form_Load(program, {std::nullopt, false})) // the texts follow the first picture
        return false;
    window =
        std::make_unique<MainWindow>(program, QGuiApplication::primaryScreen()->availableSize());
    early.platform.Attach(program, *window);
    window->move(0, 0);
    window->show();
    if (!creatureFile.isEmpty())
        window->OpenSoon(creatureFile);
    return true;
}

} // namespace Hesperin
