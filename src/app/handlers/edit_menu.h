// The Edit menu.
#pragma once

#include "app/program.h"

namespace Hesperin {

/// Takes back what the user did last.
Failure mnuUndo_Click(Program& program);

/// Does again what was taken back last.
Failure mnuRedo_Click(Program& program);

/// Has the platform ask for an ability and show where it stands.
Failure mnuFindAbility_Click(Program& program);

} // namespace Hesperin
