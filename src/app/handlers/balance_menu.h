// The Balance menu.
#pragma once

#include "app/program.h"

namespace Hesperin {

/// Opens the window of the survey beside the main one, which it doesn't lock, or brings it forward.
Failure mnuSurvey_Click(Program& program);

/// The same with the window that tells how the figures were computed, at the figure asked for last.
Failure mnuExplain_Click(Program& program);

/// The same with the window that finds values for a wanted Power.
Failure mnuSolve_Click(Program& program);

Failure mnuTakeOver_Click(Program& program);

/// Whether computed figures are taken over by the scale of the mod that is surveyed.
Failure mnuTakeOverByScale_Click(Program& program);

/// Tells how that result was computed.
void ExplainResult(Program& program, ResultKey result);

} // namespace Hesperin
