#pragma once

#include "app/program.h"

namespace Hesperin {

/// The whole calculation in one run: forms the product of the abilities' values, reads and corrects
/// the fields (each correction is written back and then shown as a critical box: MsgValueFor with
/// MsgOutOfRange or MsgCannotBeLess, or a fixed English text for speed, initiative and tier), puts
/// the figures into state and labels, advises on the tier (MsgIncreaseTier or MsgLowerTier,
/// information), allows saving when the creature has a name, and writes the summary title. Only a
/// zero PowerRolvane stops it, with MsgZeroPower; all that it didn't reach stays as it was.
void Calculate(Program& program);

} // namespace Hesperin
