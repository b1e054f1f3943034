// The commands of the File menu that make, open and save a creature. They know no dialog: the
// platform shows it.
#pragma once

#include "engine/program.h"

namespace Hesperin {

/// Starts an empty creature and asks for its name (MsgEnterName, critical).
void mnuNew_Click(Program& program);

/// Asks for a creature file and opens it. A cancelled dialog leaves the window as it was.
void mnuOpen_Click(Program& program);

/// Opens the creature file `path`: fills the window from it and runs Calculate. A file that can't
/// be read, isn't a creature document or is too long is refused with one critical box
/// (MsgFileRefused) and leaves the window as it was. True: opened.
bool OpenCreatureFile(Program& program, const QString& path);

/// The part of opening behind the refusals: fills the window from the normalised text of the
/// creature file `path` and runs Calculate.
void FillFromDocument(Program& program, const QString& document, const QString& path);

/// Asks for a place and saves the creature there, the whole file or nothing; page 4 shows the text
/// afterwards. Without a name: MsgEnterName (critical) and nothing else. What could not be opened
/// again, or not with this name, isn't written. A failure is told by a critical box
/// (MsgSaveFailed), what the user should know of a save that stands by an information box
/// (MsgSavedBut), both at the end of the command. A cancelled dialog leaves the window as it was.
void mnuSave_Click(Program& program);

} // namespace Hesperin
