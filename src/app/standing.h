// The survey that is loaded, and where the creature of the window stands in it.
#pragma once

#include "app/program.h"

namespace Hesperin {

/// Loads a survey, or takes it away (null).
void LoadSurvey(Program& program, std::shared_ptr<const Survey> survey);

/// The row of the file that the window shows; none when it isn't in the survey.
std::optional<std::size_t> RowOfShownFile(const Program& program);

/// To be called when results, shown file, survey or language have changed. Tells in the middle of
/// the page of the parameters how the computed average Power stands to the entered one among the
/// surveyed creatures of the tier, and has the windows follow that show more of the results. The
/// frame that tells it is hidden without a survey.
void FollowResults(Program& program);

} // namespace Hesperin
