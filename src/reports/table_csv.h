#pragma once

#include "reports/survey.h"

namespace Hesperin {

/// The table of all columns as CSV (RFC 4180) in UTF-8, numbers with a full stop; words that a
/// spreadsheet would take for a formula are guarded (text/csv.h).
QByteArray TableCsv(const Survey& survey, const Messages& messages);

/// Its lines one by one, each with its line end.
QByteArray CsvHeading();
QByteArray CsvLine(const SurveyRow& row, const Messages& messages);

} // namespace Hesperin
