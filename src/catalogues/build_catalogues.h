#pragma once

#include "engine/program.h"

namespace Hesperin {

/// Gives every check box the game's token as its caption, the same in every language.
void NameBoxes(MainForm& form);

/// Zeroes the charge counter and the flag of the click rules. The tables themselves are constants.
/// Runs at start-up and after each change of language; ticks stay as they are.
void BuildCatalogues(Program& program);

} // namespace Hesperin
