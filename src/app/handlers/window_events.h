// The commands of the main window that belong to no other subject.
#pragma once

#include "engine/program.h"

namespace Hesperin {

/// Asks MsgQuitQuestion. After a Yes the language is remembered and the process ends; after a No
/// nothing has happened. True for Yes.
bool ConfirmQuit(Program& program);

void mnuQuit_Click(Program& program);

/// The window is being closed by other means than mnuQuit. True: it may close.
bool Form_Unload(Program& program);

/// Locks the main window and opens the about window.
void mnuAbout_Click(Program& program);

/// Shows or hides the panel of the alternative method, with a check mark while it is shown.
void mnuAlternativeMethod_Click(Program& program);

/// Starts the system's calculator and doesn't wait for it; a critical box with MsgNoCalculator if
/// none starts.
void mnuCalculator_Click(Program& program);

/// Has the window show all with high contrast, or as given, and remembers it.
void mnuHighContrast_Click(Program& program);

/// For the start of a window: sets the check mark of mnuHighContrast as it was left the last time.
void RestoreHighContrast(Program& program);

/// A right click on the ability box `index`, 1 to 174: locks the main window and opens the
/// ability's information window. The tick stays as it is.
void Abilities_RightClick(Program& program, std::int16_t index);

} // namespace Hesperin
