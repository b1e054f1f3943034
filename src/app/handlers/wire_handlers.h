#pragma once

#include "engine/program.h"

namespace Hesperin {

/// Ties every control of the main window to its handler and its key filter. Once for a program.
void WireHandlers(Program& program);

} // namespace Hesperin
