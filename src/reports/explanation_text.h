#pragma once

#include "reports/explanation.h"

namespace Hesperin {

/// The explanation for a person, in the language of that number: chapters with a line a step.
/// `only` as in ChaptersOf.
QString ExplanationText(const Explanation& explanation, std::uint8_t languageId,
                        std::optional<ResultKey> only = {});

/// The same in Markdown, with a table a chapter.
QString ExplanationMarkdown(const Explanation& explanation, std::uint8_t languageId,
                            std::optional<ResultKey> only = {});

/// Whose explanation it is: "Bog_wyrm, tier 2".
QString ExplanationHead(const Explanation& explanation, std::uint8_t languageId);

} // namespace Hesperin
