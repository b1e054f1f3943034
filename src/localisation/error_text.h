#pragma once

#include "localisation/messages.h"
#include "system/save_file.h"

namespace Hesperin {

/// What went wrong, and where, as a sentence in the current language.
QString ErrorReason(const Messages& messages, const Error& error);

/// The same for one that the program met while it was about to open or save a file: with the file's
/// name and what became of it.
QString ErrorText(const Messages& messages, const Error& error);

/// The notes of a save as sentences, parted by blanks; empty when there are none.
QString NotesText(const Messages& messages, const std::vector<SaveNote>& notes);

} // namespace Hesperin
