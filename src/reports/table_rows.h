// The rows of a survey as its table shows them.
#pragma once

#include "reports/survey.h"

namespace Hesperin {

/// All that could not be read, with the reason: folders, archives and files, in that order.
std::vector<RefusedPlace> AllRefused(const Survey& survey);

/// Gives what was refused, and is no file of the mod, a row of its own behind the others.
void AddRefusedRows(Survey& survey);

struct RowOrder {
    Column column;
    bool falling = false;
};

/// The places of the rows, sorted: numbers as numbers, before words; empty cells last in both
/// directions. Rows of the same stay in their order.
std::vector<std::size_t> SortedPlaces(const std::vector<SurveyRow>& rows, const RowOrder& order,
                                      const Messages& messages);

/// Sorts the rows the same way.
void SortRows(std::vector<SurveyRow>& rows, const RowOrder& order, const Messages& messages);

/// Leaves the rows whose deviation is above so many percent, either way.
void KeepOutliers(std::vector<SurveyRow>& rows, double percent);

} // namespace Hesperin
