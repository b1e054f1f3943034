// What ticking or unticking a box does to other boxes, fields, the charge counter and the flag. The
// counter goes up by one for each tick of a box that counts as a charge and down for each untick;
// the flag becomes -1 after the tick and 0 after the untick of such a box or of any special
// ability. The rule of a partner box runs nested inside the setter; a box that already has the
// wanted state runs nothing, and that alone ends the recursion.
#pragma once

#include "app/program.h"

namespace Hesperin {

/// The rule of Abilities(i), i from 1 to 174.
void Abilities_Click(Program& program, int i);

/// The rule of Specabilities(j), j from 0 to 54.
void Specabilities_Click(Program& program, int j);

/// The rule of Spells(i), i from 1 to 91.
void Spells_Click(Program& program, int i);

/// Enables a mastery selector and keeps its level, or disables it and returns it to 0.
void OpenSelector(MultiOption& selector, bool open);

/// A right click on the ability box `index`, 1 to 174: locks the main window and opens the
/// ability's information window. The tick stays as it is.
void Abilities_RightClick(Program& program, int index);

} // namespace Hesperin
