#pragma once

#include "reports/explanation.h"

namespace Hesperin {

/// The explanation for a person, in the language of that number: chapters with a line a step.
QString ExplanationText(const Explanation& explanation, std::uint8_t languageId);

/// The same in Markdown, with a table a chapter.
QString ExplanationMarkdown(const Explanation& explanation, std::uint8_t languageId);

} // namespace Hesperin
