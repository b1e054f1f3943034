// A change of a creature file as a person writes it: "Health*=1.1", "Abilities+=ABILITY_FLYER".
#pragma once

#include "catalogue/results.h"
#include "creature_files/edited_file.h"

namespace Hesperin {

struct Change {
    enum class Does : std::uint8_t { Set, Add, Subtract, Multiply };
    QString name;
    Does does;
    QString operand;
};

/// The change that `text` says: name, "=", "+=", "-=" or "*=", operand. The first "=" ends the
/// name. None when there is no "=" or no name.
std::optional<Change> ReadChange(const QString& text);

/// A figure that an element is to get when all other changes have been made.
struct ComputedChange {
    QString name;
    Method method;
    Figure figure;
};

/// The figure that the change asks for ("Power=average"); none for any other change.
std::optional<ComputedChange> ReadComputed(const Change& change);

/// Makes the change. `anyWord`: items need not be in the catalogue. Gives what is told of a change
/// that was made (a town that the game doesn't know) in `notes`.
Failure Apply(const Change& change, bool anyWord, EditedFile& file, std::vector<Error>& notes);

/// Why `text` can't stand in the number element `element`, which takes what ReadWhole reads.
Error NoContentForNumber(const QString& text, const QString& element);

/// Whether an element of the format takes a whole number, or true or false.
bool TakesNumber(const Element& element);
bool TakesFlag(const Element& element);

} // namespace Hesperin
