#pragma once

#include "app/program.h"

namespace Hesperin {

/// Whether the user would miss something of the window's creature in its file, or has entered
/// anything where there is none. What a change of language takes away is none of it: what the lists
/// that follow it show, and the state of the box rules. A field that a rule has emptied is as
/// good as 0.
bool HasUnsaved(const Program& program);

} // namespace Hesperin
