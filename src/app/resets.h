// The resets. Every box is cleared through its own rule, never by writing the state behind it.
#pragma once

#include "app/program.h"

namespace Hesperin {

void Reset_Abilities(Program& program);
void Reset_Spells(Program& program);

/// Leaves the inert Specabilities(0) alone; the flag of the box rules becomes 0.
void Reset_Specabilities(Program& program);

/// The spells page goes off and the creature is cleared; ticks stay.
void Reset_Parametres(Program& program);

/// Brings the selections, fields and result labels back to their empty state. Changes no stored
/// result and no check box.
void ClearCreature(Program& program);

} // namespace Hesperin
