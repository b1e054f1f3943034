#pragma once

#include "engine/program.h"

namespace Hesperin {

/// Reads mana (for a caster), shots (for a shooter), the creature's parameters and its tier from
/// their fields into the state. A value of 0 or below becomes 1, one above its limit becomes the
/// limit, and a minimum damage above the maximum becomes the maximum; the field is rewritten, and a
/// critical box names it by the caption of the moment.
void ValidateParameters(Program& program);

} // namespace Hesperin
