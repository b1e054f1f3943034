// What a new selection in a list of the parameters page does. Each runs when the selection has
// really changed.
#pragma once

#include "app/program.h"

namespace Hesperin {

/// The game's word for the faction chosen goes into the text of ComboAlias.
void ComboFaction_Click(Program& program);

/// The game's number for the range chosen goes into the text of ComboDiapazon.
void ComboRange_Click(Program& program);

/// No element but None may stand in both lists: the list just changed falls back to None.
void ComboFME_Click(Program& program);
void ComboSME_Click(Program& program);

/// UpgradeFactor becomes 1.0 for "False", 1.6 for any other text.
void ComboUpgrade_Click(Program& program);

} // namespace Hesperin
