// The Options menu.
#pragma once

#include "app/program.h"

namespace Hesperin {

/// The four languages: set LanguageId, apply the language, then load the ability texts in it.
/// Fields, ticks and results stay; the charge counter and the flag become 0, and nothing is
/// selected in ComboFaction and ComboRange after English and Russian.
Failure mnuEnglish_Click(Program& program);
Failure mnuRussian_Click(Program& program);
Failure mnuFrench_Click(Program& program);
Failure mnuGerman_Click(Program& program);

/// Shows or hides the panel of the alternative method, with a check mark while it is shown.
Failure mnuAlternativeMethod_Click(Program& program);

/// Starts the system's calculator and doesn't wait for it; a critical box with MsgNoCalculator if
/// none starts.
Failure mnuCalculator_Click(Program& program);

/// Has the window show all with high contrast, or as given, and remembers it.
Failure mnuHighContrast_Click(Program& program);

/// For the start of a window: sets the check mark of mnuHighContrast as it was left the last time.
void RestoreHighContrast(Program& program);

} // namespace Hesperin
