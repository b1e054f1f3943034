#pragma once

#include "creature_files/mod.h"

namespace Hesperin {

struct FoundFiles {
    QStringList files;
    std::vector<RefusedPlace> refused; ///< what could not be looked into
};

/// The paths, with each folder replaced by the creature files in it and in all folders below it, in
/// the order of their names: every .xdb whose root is Creature, and those that can't be read far
/// enough to tell. Links to folders are not followed.
FoundFiles CreatureFilesAt(const QStringList& paths);

} // namespace Hesperin
