// What was computed goes into the fields.
#pragma once

#include "app/program.h"

namespace Hesperin {

/// Puts the four average figures of the last calculation into the fields for the file, whole also
/// where typing would find no room for them; calculates first where nothing is computed. With a
/// survey and the user's wish for it each is divided by its scale in the creature's tier. A Power
/// of 0 or a scale that is lacking is told, and changes nothing.
Failure TakeOverComputed(Program& program);

/// Puts a value into the field or list of a parameter as the user would, and calculates.
void TakeParameter(Program& program, Parameter which, std::int16_t value);

} // namespace Hesperin
