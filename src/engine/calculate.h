#pragma once

#include "engine/program.h"

namespace Hesperin {

/// The whole engine in one run: forms AbilityProduct, reads and corrects the fields (each
/// correction is written back and then shown as a critical box: MsgValueFor with MsgOutOfRange or
/// MsgCannotBeLess, or a fixed English text for speed, initiative and tier), computes the figures
/// into state and labels, advises on the tier, allows saving when the creature has a name, and
/// writes the summary title. Only a zero PowerRolvane stops it, with MsgZeroPower; all that it
/// didn't reach stays as it was.
void Calculate(Program& program);

/// The button that runs it.
void cmdCalc_Click(Program& program);

} // namespace Hesperin
