#pragma once

#include "reports/survey.h"

namespace Hesperin {

/// The survey as one HTML page without any reference outside: the picture of deviation, the tiers,
/// the table of all columns, which is sorted by a click on a heading and filtered by typing, and
/// the places that were refused. Nothing that stands in the mod's files runs there.
QByteArray TableHtml(const Survey& survey, const Messages& messages);

} // namespace Hesperin
