#pragma once

#include <QStringList>

namespace Hesperin {

/// The creature files in `folder` and in all folders below it, as paths that begin with `folder`,
/// in the order of their names: every .xdb whose root is Creature, and those that can't be read far
/// enough to tell. Links to folders are not followed.
QStringList CreatureFilesBelow(const QString& folder);

/// The paths, with each folder replaced by the creature files below it.
QStringList CreatureFilesAt(const QStringList& paths);

} // namespace Hesperin
