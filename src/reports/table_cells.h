// A cell of a table against what a creature file has.
#pragma once

#include "creature_files/edited_file.h"

namespace Hesperin {

/// A cell that tells what an element holds.
struct TableCell {
    const Element* element;
    QString heading; ///< as the table spells it
    QString text;    ///< without guard and white space around it
};

/// The element that a column of that heading tells of: its last name or its path, letter case not
/// counting. Null when there is none, or a cell can't tell what the element holds.
const Element* ElementOfHeading(const QString& heading);

/// Whether the cell says what `text` says: numbers by their value, words without regard to letter
/// case, abilities as a set.
bool SaysTheSame(const TableCell& cell, const QString& text);

/// What the element of the cell holds, of Abilities its items with a blank between; empty when the
/// file lacks it.
Result<QString> ContentFor(const TableCell& cell, const EditedFile& file);

/// Makes the element hold what the cell says, `now` being what it holds.
Failure ApplyCell(const TableCell& cell, const QString& now, EditedFile& file,
                  std::vector<Error>& notes);

} // namespace Hesperin
