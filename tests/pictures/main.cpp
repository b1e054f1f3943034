// Takes pictures of every page and window in both languages, to be looked at and for the guide:
//   talmir-pictures FOLDER
#include "app/handlers/file_menu.h"
#include "app/handlers/form_load.h"
#include "support/scripted_platform.h"
#include "window/ability_window.h"
#include "window/about_window.h"
#include "window/faces.h"
#include "window/main_window.h"
#include "window/status_window.h"
#include "window/windowed_program.h"

#include <QApplication>
#include <QDir>
#include <QTabBar>

using namespace Hesperin;

namespace {

/// A program in its window, in one language, that takes pictures of itself.
class Studio {
public:
    Studio(std::uint8_t language, const QString& folder) : prefix(folder + (language == 1 ? "/en-" : "/ru-")) {
        platform.programFolder = QCoreApplication::applicationDirPath();
        platform.settingsFolder = platform.programFolder;
        Form_Load(program, {language, true});
        window = std::make_unique<MainWindow>(program, QSize(1920, 1080)); // whatever the screen
        window->show();
        QCoreApplication::processEvents();
    }

    void TakeMainWindow() {
        Take(*window, "0-start");
        OpenCreatureFile(program, QStringLiteral(TALMIR_SOURCE_DIR "/samples/frost_witch.xdb"));
        program.form.Tablus.Tab(4).SetCaption(QStringLiteral("frost_witch.xdb"));
        program.form.ComboRange.Select(1);
        for (int page = 0; page < TabControl::PageCount; ++page) {
            window->findChild<QTabBar*>(QStringLiteral("Tablus.Bar"))->setCurrentIndex(page);
            Take(*window, QStringLiteral("page%1").arg(page));
        }
        window->findChild<QTabBar*>(QStringLiteral("Tablus.Bar"))->setCurrentIndex(0);
        program.form.frmAM.SetVisible(true);
        program.form.Abilities(Ability::Shooter).SetTicked(true);
        Take(*window, "alternative");
    }

    void TakeSecondaryWindows() {
        if (program.form.utbN(68).Text().isEmpty()) {
            program.form.utbN(68).SetText(QStringLiteral("Frightful Presence"));
            program.form.utbD(68).SetText(
                QStringLiteral("Enemies next to the creature are so frightened that they may flee "
                               "at the start of their turn, "
                               "and never strike back on the turn after."));
        }
        program.state.AbilityInfoIndex = 68;
        Take(*new AbilityWindow(program, window.get()), "ability");
        Take(*new AboutWindow(program, window.get()), "about");
        Take(*new StatusWindow(program, window.get(), program.state.messages.MsgNoCalculator), "status");
    }

private:
    void Take(QWidget& widget, const QString& name) {
        QCoreApplication::processEvents();
        widget.grab().save(prefix + name + QStringLiteral(".png"));
        if (&widget != window.get())
            widget.close();
    }

    QString prefix;
    ScriptedPlatform platform;
    Program program{platform};
    std::unique_ptr<MainWindow> window;
};

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    WindowedProgram::DressApplication();
    const QString folder = QCoreApplication::arguments().value(1, QStringLiteral("."));
    QDir().mkpath(folder);
    for (const std::uint8_t language : {std::uint8_t{1}, std::uint8_t{2}}) {
        Studio studio(language, folder);
        studio.TakeMainWindow();
        studio.TakeSecondaryWindows();
    }
    return 0;
}
