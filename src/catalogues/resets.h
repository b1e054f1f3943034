// The resets. Every box is cleared through its own click rules, never by writing the state behind
// it.
#pragma once

#include "engine/program.h"

namespace Hesperin {

void Reset_Abilities(Program& program);
void Reset_Spells(Program& program);

/// Leaves the inert Specabilities(0) alone; the flag of the click rules becomes 0.
void Reset_Specabilities(Program& program);

/// The spells page goes off and the creature is cleared; ticks stay.
void Reset_Parametres(Program& program);

/// The four reset buttons.
void cmdRAP_Click(Program& program);
void cmdRAA_Click(Program& program);
void cmdRAS_Click(Program& program);

/// Parameters, abilities and spells; special abilities that no ability reaches keep their ticks.
void cmdResetAll_Click(Program& program);

} // namespace Hesperin
