// The row of buttons under the pages.
#pragma once

#include "app/program.h"

namespace Hesperin {

/// Runs Calculate.
Failure cmdCalc_Click(Program& program);

/// Reset all parametres, abilities (with the special abilities), spells.
Failure cmdRAP_Click(Program& program);
Failure cmdRAA_Click(Program& program);
Failure cmdRAS_Click(Program& program);

/// Parameters, abilities and spells; special abilities that no ability reaches keep their ticks.
Failure cmdResetAll_Click(Program& program);

} // namespace Hesperin
