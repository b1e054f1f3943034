// The columns of the survey as a person reads them. Files keep HeadingOf.
#pragma once

#include "reports/survey.h"

namespace Hesperin {

/// The heading in a language, 1 to 4; English where that has none.
QString ColumnWords(Column column, std::uint8_t languageId);

} // namespace Hesperin
