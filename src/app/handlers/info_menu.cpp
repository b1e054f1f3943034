#include "app/handlers/info_menu.h"

namespace Hesperin {

Failure mnuAbout_Click(Program& program) {
    program.form.frmMain.SetEnabled(false);
    program.platform.Open(SecondaryWindow::About);
    return {};
}

void ShowStatus(Program& program, const QString& message) {
    program.form.frmMain.SetEnabled(false);
    program.platform.ShowStatus(message);
}

} // namespace Hesperin
