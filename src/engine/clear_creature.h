#pragma once

#include "engine/program.h"

namespace Hesperin {

/// Brings the selections, fields and result labels back to their empty state. Changes no stored
/// result and no check box.
void ClearCreature(Program& program);

} // namespace Hesperin
