#pragma once

#include "reports/survey.h"

namespace Hesperin {

/// Puts what the elements hold into the row's texts, trimmed: of several of one path the first.
/// `normalised` is the text of a creature document.
void ReadElementTexts(const QString& normalised, SurveyRow& row);

} // namespace Hesperin
