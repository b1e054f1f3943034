#pragma once

#include "engine/program.h"

namespace Hesperin {

/// Sets AbilityNameFile and AbilityDescFile to the names, without extension, of the two text files
/// of ability `index`, 1 to 174, some of which the game spells otherwise than their folder.
void AbilityTextFiles(SharedState& state, int index);

/// Folder of the texts of ability `index`, 1 to 174, below the program's folder: one per language
/// and ability.
QString AbilityTextFolder(const QString& languageCode, int index);

/// Loads name and description of every ability from the language's folder of the text tree beside
/// the program into utbN and utbD. A missing or unreadable file gives an empty text; one line end
/// at the end of a name is dropped.
void LoadAbilityTexts(Program& program);

} // namespace Hesperin
