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

} // namespace Hesperin
