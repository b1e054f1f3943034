// What ticking or unticking a box does to other boxes, counters and fields. The box, partner box
// and their rules run nested; a box that already has the wanted state runs nothing, and that alone
// ends the recursion.
#pragma once

#include "engine/program.h"

namespace Hesperin {

/// Runs whenever Abilities(i), i from 1 to 174, has changed state.
void Abilities_Click(Program& program, int i);

/// Runs whenever Specabilities(j), j from 0 to 54, has changed state.
void Specabilities_Click(Program& program, int j);

/// Runs whenever Spells(i), i from 1 to 91, has changed state.
void Spells_Click(Program& program, int i);

/// Moves the charge counter by one, up for a tick and down for an untick, and lets the flag take
/// its sense.
void StepSpellPoints1(SharedState& state, bool ticked);

/// Enables a mastery selector and keeps its level, or disables it and returns it to 0.
void OpenSelector(MultiOption& selector, bool open);

} // namespace Hesperin
