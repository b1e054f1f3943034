// The Info menu, and the window that no menu opens.
#pragma once

#include "app/program.h"

namespace Hesperin {

/// Locks the main window and opens the about window.
Failure mnuAbout_Click(Program& program);

/// Locks the main window and opens the status window with these words. No command calls it.
void ShowStatus(Program& program, const QString& message);

} // namespace Hesperin
