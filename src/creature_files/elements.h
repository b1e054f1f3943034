// The elements of a creature file, each with what it says of a creature: the one list of them. Its
// order is that of the writer.
#pragma once

#include "catalogue/parameters.h"

#include <QString>

#include <optional>
#include <span>

namespace Hesperin {

/// What an element says of a creature, and so how it is written and read.
enum class Says : std::uint8_t {
    Number,      ///< the text of the number field `field`
    Supply,      ///< the same; above 0 it makes a caster or a shooter, and an empty field is 0
    ListNumber,  ///< a number; the text of the list `list`
    ListEntry,   ///< the entry of the list `list` in capital letters, behind `text`
    ListFlag,    ///< true or false; the list Upgrade
    Flyer,       ///< true or false; the ability FLYER
    Size,        ///< 2 or 1; the ability LARGE_CREATURE
    KnownSpells, ///< the special abilities and spells, each with its mastery
    Charges,     ///< the charge counter; not read
    Inferno,     ///< 1 for the town INFERNO, else 0; not read
    Growth,      ///< weekly growth: written as computed, read into the field `field`
    Shared,      ///< a reference to the shared object that bears the creature's name
    Visual,      ///< a reference to the creature's looks; not read
    Abilities,   ///< the abilities that no other element stands for
    FixedFlag,   ///< `text` in every file of ours; not read. The same for the two that follow
    FixedWord,
    FixedEmpty, ///< no content at all
};

struct Element {
    QStringView name;
    QStringView parent; ///< the element around it; empty for Creature itself
    Says says;
    std::int8_t readAs = 0; ///< place in the order of reading, from 1; 0: not read
    NumberField field = NumberField::Count;
    ListField list = ListField::Count;
    QStringView text{};
};

extern const std::span<const Element> Elements;

/// The element's path below Creature: "Cost/Gold".
QString PathOf(const Element& element);

/// The element of the format that has the path; null when none has.
const Element* ElementAt(QStringView path);

/// The element that holds a parameter, and the other way round.
QStringView ElementOf(Parameter parameter);
std::optional<Parameter> ParameterIn(QStringView element);

/// Every element that is read, in the order of reading.
std::span<const Element* const> ElementsToRead();

} // namespace Hesperin
