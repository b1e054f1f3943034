#pragma once

#include "creature_files/elements.h"
#include "model/creature.h"

namespace Hesperin {

struct CreatureText {
    QString text;
    bool plain; ///< every value consists of letters, digits, blanks, `_`, `-` and `.` alone, so
                ///< that it can't be read as anything else
};

/// The text of a new creature file, with a line feed between lines and none behind the last.
/// `fileName` names the shared map object and the visual that the file links to; `weeklyGrowth` is
/// the computed one. A value's `&` and `<` are escaped, in a reference `"` as well; all else stands
/// as it is.
CreatureText BuildCreatureText(const Creature& creature, const QString& fileName,
                               double weeklyGrowth);

/// The bytes of such a file on disk: the text as UTF-8 and one carriage return and line feed behind
/// it.
QByteArray CreatureFileBytes(const QString& text);

/// What an element says of a creature as it was entered; weekly growth as it stands in its field,
/// charges by the boxes. Empty for lists and references.
QString ContentFor(const Element& element, const Creature& creature);

/// Whether the ability stands in a file under its own name. CASTER goes by SpellPoints, FLYER by
/// Flying, LARGE_CREATURE by CombatSize, SHOOTER by Shots; FLESH_AND_BLOOD is inferred on reading.
bool IsWrittenAbility(int ability);

} // namespace Hesperin
