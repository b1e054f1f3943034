#pragma once

#include "engine/shared_state.h"
#include "platform/file_obstacle.h"

namespace Hesperin {

/// The obstacle as a sentence in the language of the moment.
QString ObstacleText(const SharedState& state, const FileObstacle& obstacle);

} // namespace Hesperin
