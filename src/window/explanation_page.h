#pragma once

#include "reports/explanation_chapters.h"

namespace Hesperin {

/// Chapters as a page of rich text in the current colours: a table a chapter, whose columns
/// stand under one another from table to table.
QString ExplanationPage(const QString& head, const std::vector<ExplainedChapter>& chapters);

} // namespace Hesperin
