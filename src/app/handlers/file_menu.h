// The File menu, and what else makes or opens a creature. It knows no dialog: the platform shows
// it.
#pragma once

#include "app/program.h"

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

/// The part of opening behind the refusals: fills the window from the normalised text of the
/// creature file `path` and runs Calculate.
void FillFromDocument(Program& program, const QString& document, const QString& path);

/// Asks MsgQuitQuestion. After a Yes the language is remembered and the process ends; after a No
/// nothing has happened. True for Yes.
bool ConfirmQuit(Program& program);

Failure mnuQuit_Click(Program& program);

/// The window is being closed by other means than mnuQuit. True: it may close.
bool Form_Unload(Program& program);

} // namespace Hesperin
