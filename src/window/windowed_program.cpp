#include "window/windowed_program.h"

#include "ui/form_load.h"
#include "window/palette.h"

#include <QApplication>

namespace Hesperin {

void WindowedProgram::DressApplication() {
    QApplication::setApplicationName(QStringLiteral("talmir"));
    QApplication::setStyle(QStringLiteral("Fusion")); // the same look on every desktop
    QApplication::setPalette(ProgramPalette());
}

bool WindowedProgram::Start(const QString& creatureFile) {
    if (!Form_Load(program, {std::nullopt, false})) // the texts follow the first picture
        return false;
    window = std::make_unique<MainWindow>(program);
    platform.Attach(program, *window);
    window->move(0, 0);
    window->show();
    if (!creatureFile.isEmpty())
        window->OpenSoon(creatureFile);
    return true;
}

} // namespace Hesperin
