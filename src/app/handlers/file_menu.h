// The File menu, and what else makes or opens a creature. It knows no dialog: the platform shows
// it.
#pragma once

#include "app/program.h"
#include "creature_files/document.h"

namespace Hesperin {

/// Starts an empty creature and asks for its name (MsgEnterName, critical).
Failure mnuNew_Click(Program& program);

/// Asks for a creature file and opens it. A cancelled dialog leaves the window as it was.
Failure mnuOpen_Click(Program& program);

/// Opens the creature file `path`: fills the window from it and runs Calculate. A file that can't
/// be read, isn't a creature document or is too long is refused with one critical box
/// (MsgFileRefused) and leaves the window as it was. What the file lacks or what was limited is
/// told in one information box (MsgElementsMissing, MsgNumbersLimited).
Failure OpenCreatureFile(Program& program, const QString& path);

/// Shows a creature file that has been read: fills the window from it, runs Calculate, and starts
/// what an update in place goes out from. `path` names it.
void ShowDocument(Program& program, const CreatureDocument& document, const QString& path);

/// Asks MsgQuitQuestion. After a Yes the language is remembered and the process ends; after a No
/// nothing has happened. True for Yes.
bool ConfirmQuit(Program& program);

Failure mnuQuit_Click(Program& program);

/// The window is being closed by other means than mnuQuit. True: it may close.
bool Form_Unload(Program& program);

} // namespace Hesperin
