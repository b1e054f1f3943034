#pragma once

#include "reports/survey.h"

namespace Hesperin {

/// Takes the survey, and tells meanwhile how far it has come (cli/progress.h).
Survey TakeSurveyTold(const SurveyWish& wish);

} // namespace Hesperin
