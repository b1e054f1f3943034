// Tables as spreadsheets write them.
#pragma once

#include "text/error.h"

#include <QByteArray>
#include <QStringList>

#include <vector>

namespace Hesperin {

struct CsvRow {
    qint64 number = 0; ///< as a spreadsheet counts, from 1
    QStringList cells;
};

/// The rows of a table; rows without any text are left out, but counted. UTF-8 and UTF-16 by their
/// byte-order mark, UTF-8 without one, else Windows-1251. A first line `sep=;` names the separator
/// and is no row; without it that of comma, semicolon and tab which the first line has most of
/// parts the cells. A line ends by CR, LF or both. A cell in quotes holds separators, line ends and
/// doubled quotes; quotes within a cell that doesn't begin with one are text. Refused are quotes
/// that nothing closes.
Result<std::vector<CsvRow>> ReadCsv(const QByteArray& bytes);

} // namespace Hesperin
