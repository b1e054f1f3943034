#pragma once

#include "creature_files/reader.h"
#include "localisation/messages.h"

namespace Hesperin {

/// What was odd about a file that was read, in the current language: what it lacks, and numbers
/// that were limited; empty when nothing was.
QString ReadingText(const Messages& messages, const ReadCreature& read);

} // namespace Hesperin
