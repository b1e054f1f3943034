// The cells of a table that spreadsheets read, as they are written.
#pragma once

#include <QByteArray>
#include <QString>

namespace Hesperin {

/// Whether the cell, numbers apart, would be run as a formula: it begins with = + - @, a tab or a
/// carriage return; apostrophes in front count for nothing.
bool LooksLikeAFormula(QStringView cell);

/// A text as a cell that no spreadsheet takes for a formula: with one apostrophe more in front
/// where it looks like one, also where it begins with apostrophes, so that taking one off gives it
/// back.
QString Guarded(const QString& text);

/// Appends the cell to a line: in quotes, with its own doubled, where it needs them.
void AppendCsvCell(const QString& cell, QByteArray& line);

} // namespace Hesperin
