#include "window/windowed_program.h"

#include "app/handlers/form_load.h"
#include "system/hand_over.h"
#include "window/palette.h"
#include "window/program_style.h"

#include <QApplication>
#include <QScreen>
#include <QThread>

namespace Hesperin {

namespace {

/// Whether another instance, which runs here, opens the file. It is given some time to take it, for
/// it may just be ending.
bool IsTakenByOther(WindowPlatform& platform, const QString& file) {
    constexpr unsigned long pause = 20; // milliseconds
    constexpr int pauses = 100;
    const QString folder = platform.SettingsFolder();
    const auto otherRunsHere = [&] {
        const auto other = platform.OtherInstance();
        return other && other->otherHost.isEmpty();
    };
    if (!otherRunsHere() || !HandOver(folder, file))
        return false;
    for (int i = 0; i < pauses && IsHandedOver(folder); ++i) {
        QThread::msleep(pause);
        if (!otherRunsHere()) {
            TakeHandedOver(folder);
            return false; // this one is the running instance now
        }
    }
    return true;
}

} // namespace

void WindowedProgram::DressApplication() {
    QApplication::setStyle(new ProgramStyle);
    // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks): the application owns the style
    QApplication::setPalette(ProgramPalette());
}

bool WindowedProgram::Start(const QString& creatureFile) {
    early.Await();
    if (!creatureFile.isEmpty() && IsTakenByOther(early.platform, creatureFile))
        return false;
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
