#pragma once

#include "engine/program.h"

namespace Hesperin {

/// Fills the cleared window from the text of a creature file in RTBData: every value found goes
/// into its field, selector or box as if the user had set it, so the click rules run. What the file
/// lacks keeps the cleared state. Ends with the name of the creature and shows one information box
/// (MsgElementsMissing, MsgNumbersLimited) if anything was missing or limited.
void ScanCreature(Program& program);

} // namespace Hesperin
