#pragma once

#include "engine/shared_state.h"
#include "platform/save_file.h"

namespace Hesperin {

/// The obstacle as a sentence in the current language.
QString ObstacleText(const SharedState& state, const FileObstacle& obstacle);

/// The notes of a save as sentences, parted by blanks; empty when there are none.
QString NotesText(const SharedState& state, const std::vector<SaveNote>& notes);

} // namespace Hesperin
