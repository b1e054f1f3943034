#pragma once

#include "localisation/explanation_words.h"
#include "reports/explanation.h"

namespace Hesperin {

/// One step in words: what it is, and how it comes about.
struct ExplainedStep {
    QString what;
    QString working; ///< empty: `what` tells it all
};

struct ExplainedChapter {
    Chapter chapter;
    QString heading;
    std::vector<ExplainedStep> steps; ///< never none
};

/// The explanation as chapters for a person.
std::vector<ExplainedChapter> ChaptersOf(const Explanation& explanation, std::uint8_t languageId);

} // namespace Hesperin
