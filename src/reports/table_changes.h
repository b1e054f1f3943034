// A table of creatures becomes changes of their files.
#pragma once

#include "reports/change_report.h"
#include "reports/table_cells.h"

namespace Hesperin {

/// What a row of a table asks of a file.
struct TableRow {
    qint64 number = 0; ///< as a spreadsheet counts
    QString file;      ///< on disk; where there is none, as the row has it
    Failure refusal;   ///< why the row changes nothing
    std::vector<TableCell> cells;
};

struct TableChanges {
    std::vector<Error> refusals; ///< of columns, and of rows that name no file
    std::vector<TableRow> rows;
};

/// Reads a table as spreadsheets write it, the files of its rows being those below the folder
/// `path`, or the one file that it names. Refused is a table without a column `file`.
Result<TableChanges> ReadTableChanges(const QByteArray& table, const QString& path);

/// What the row does to its file; nothing is written. A cell that says what the file or its row in
/// a survey says is no change.
ChangeReport TryRow(const TableRow& row);

} // namespace Hesperin
