#pragma once

#include "reports/table_json.h"

namespace Hesperin {

/// The survey for a person, in lines of at most ReportWidth characters: the columns that tell most,
/// the tiers, what was refused, what is different in another version.
QString TableText(const Survey& survey, const TableSides& sides, const Messages& messages);

} // namespace Hesperin
