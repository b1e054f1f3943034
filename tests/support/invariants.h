#pragma once

#include "app/program.h"

namespace Hesperin {

/// What must hold whenever no handler runs: the ranges of the parameters, the nature rule, the link
/// between boxes and selectors and between linked boxes. Empty when it does, else the rule broken.
QString BrokenInvariant(const Program& program);

} // namespace Hesperin
