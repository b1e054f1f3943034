#pragma once

#include "reports/table_json.h"

namespace Hesperin {

/// The survey for a person, in lines of at most ReportWidth characters: the columns that tell most,
/// the tiers, what was refused, what is different in another version.
QString TableText(const Survey& survey, const TableSides& sides, const Messages& messages);

/// The column under a heading of that text, letter case not counting; none where there is none.
std::optional<Column> ColumnShownAs(const QString& heading);

} // namespace Hesperin
