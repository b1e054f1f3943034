// The Balance menu.
#pragma once

#include "app/program.h"

namespace Hesperin {

/// Opens the window of the survey beside the main one, which it doesn't lock, or brings it forward.
Failure mnuSurvey_Click(Program& program);

} // namespace Hesperin
