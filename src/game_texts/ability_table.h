#pragma once

#include "text/error.h"

#include <QByteArray>
#include <QHash>
#include <QStringList>

namespace Hesperin {

/// Folders and file of the game's table of abilities, below the game's data.
QStringList AbilityTableLevels();

/// In bytes; the game's own has a tenth of it.
inline constexpr qint64 LargestAbilityTable = 1 << 22;

/// Where the table says that the texts of an ability lie: folders and file below the game's data;
/// empty where it says nothing, or a place outside.
struct AbilityReferences {
    QStringList name;
    QStringList description;
};

/// By the ability's token in capital letters, without "ABILITY_".
using AbilityTable = QHash<QString, AbilityReferences>;

/// Reads the game's table of abilities: of each item the ID, and what its first elements for a name
/// and a description refer to. Whatever else is in there is passed over. Refuses one that isn't
/// well-formed.
Result<AbilityTable> ReadAbilityTable(const QByteArray& bytes);

} // namespace Hesperin
