#include "app/handlers/edit_menu.h"

namespace Hesperin {

Failure mnuUndo_Click(Program& program) {
    program.history.Undo();
    return {};
}

Failure mnuRedo_Click(Program& program) {
    program.history.Redo();
    return {};
}

Failure mnuFindAbility_Click(Program& program) {
    program.platform.FindAbility();
    return {};
}

} // namespace Hesperin
