// Save, which writes a new creature file, and Update, which changes the opened one in place.
#pragma once

#include "app/program.h"

namespace Hesperin {

/// Asks for a place and saves the creature there, the whole file or nothing; the file's page shows
/// the text afterwards. Without a name: MsgEnterName (critical) and nothing else. Where a file is
/// replaced, a question tells what would be lost (MsgReplaceLoses) and offers to update instead
/// where it is the opened one. What can't be read back is not saved. A failure is told in a
/// critical box (MsgSaveFailed), what could not be kept of an old file in an information box
/// (MsgSavedBut). A cancelled dialog leaves the window as it was.
Failure mnuSave_Click(Program& program);

/// Writes into the opened or saved file what the user has changed since, and nothing else, after a
/// question that lists it (MsgUpdateChanges). MsgUpdateNothing (information) when there is nothing;
/// a critical box (MsgSaveFailed) for a file that can't be edited and for what someone else has
/// changed in the meantime (MsgUpdateConflicts).
Failure mnuUpdate_Click(Program& program);

/// The file of these bytes, named in the dialog, is what the window shows: an update starts from
/// here.
void SetBaseline(Program& program, const QByteArray& bytes);

/// The window shows no file any more that could be updated.
void ForgetBaseline(Program& program);

/// Shows the page of the file, named as in the dialog.
void ShowFilePage(MainForm& form);

} // namespace Hesperin
