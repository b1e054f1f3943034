#include "app/handlers/balance_menu.h"

namespace Hesperin {

Failure mnuSurvey_Click(Program& program) {
    program.platform.Open(SecondaryWindow::Survey);
    return {};
}

} // namespace Hesperin
