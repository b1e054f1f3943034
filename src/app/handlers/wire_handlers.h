#pragma once

#include "app/program.h"

namespace Hesperin {

/// Ties every control of the main window to its handler, its rule and its key filter, and the
/// window to what its user does with files and its close button. Once for a program.
void WireHandlers(Program& program);

} // namespace Hesperin
