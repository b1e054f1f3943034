#pragma once

#include "localisation/explanation_words.h"
#include "reports/explanation.h"

namespace Hesperin {

/// One step in words: what it is, and how it comes about.
struct ExplainedStep {
    QString what;
    QString numbers;       ///< what is reckoned; empty where nothing is
    QString value;         ///< empty: `what` tells it all
    bool isResult = false; ///< that was asked for
    double share = 0;      ///< of one more of a parameter: its part of the strongest, 0 to 1

    /// "2 + 3 = 5"
    QString Working() const {
        return numbers.isEmpty() ? value : numbers + QLatin1String(" = ") + value;
    }
};

struct ExplainedChapter {
    Chapter chapter;
    QString heading;
    std::vector<ExplainedStep> steps; ///< never none
};

/// The explanation as chapters for a person: all of it, or what the result `only` rests on with the
/// band of its tier and what one more adds.
std::vector<ExplainedChapter> ChaptersOf(const Explanation& explanation, std::uint8_t languageId,
                                         std::optional<ResultKey> only = {});

} // namespace Hesperin
