// What is in the window and in no file yet, as a text that outlives the process.
#pragma once

#include "app/program.h"

namespace Hesperin {

/// What is to be kept of the window at this moment: the creature, and the file that it came from.
/// Empty when the file holds all of it, or nothing has been entered.
QByteArray RecoveryText(const Program& program);

/// Shows again what was kept, as one step of the user. The file is taken up where it still has the
/// bytes that it had; else a box tells that it isn't (MsgRecoveredAlone). False: the text is
/// damaged or of another version, and the window is as it was.
bool Recover(Program& program, const QByteArray& text);

} // namespace Hesperin
