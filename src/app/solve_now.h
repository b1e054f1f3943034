#pragma once

#include "app/program.h"
#include "reports/solve_report.h"

namespace Hesperin {

/// Which values give what is wanted to the creature of the window as its fields are now. By the
/// scale of the survey, which must be there, it fails where the creature's tier has none.
Result<SolveReport> SolveNow(const Program& program, const SolveGoal& goal, bool byScale);

} // namespace Hesperin
