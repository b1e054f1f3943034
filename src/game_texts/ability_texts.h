#pragma once

#include "engine/program.h"

#include <QStringList>

namespace Hesperin {

/// Sets AbilityNameFile and AbilityDescFile to the names, without extension, of the two text files
/// of ability `index`, 1 to 174, some of which the game spells otherwise than their folder.
void AbilityTextFiles(SharedState& state, int index);

/// One of the 348 text files: where it lies in the game's text tree of its language.
struct AbilityText {
    QString folder; ///< "AcidBlood"
    QString file;   ///< "name.txt"
    int ability;    ///< 1 to 174
    bool isName;    ///< else the description
};

/// The text files of all abilities, in the order of the abilities, each with name before
/// description.
std::vector<AbilityText> AbilityTexts();

/// The folders, from the outermost, that the texts lie in below the data of the game.
QStringList AbilityTextLevels();

/// No text of the game comes near it, in bytes, and 348 of them fit into memory.
inline constexpr qint64 LargestAbilityText = 1 << 16;

/// Loads name and description of every ability from the language's text trees in the user's folder
/// and beside the program into utbN and utbD; a text that lies in both is taken from the user's. A
/// missing or unreadable file gives an empty text; one line end at the end of a name is dropped.
void LoadAbilityTexts(Program& program);

} // namespace Hesperin
