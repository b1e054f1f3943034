#pragma once

#include "catalogue/ability_index.h"
#include "system/program_places.h"

#include <QStringList>

#include <array>
#include <vector>

namespace Hesperin {

/// Names, without extension, of the two text files of an ability.
struct TextFiles {
    QString AbilityNameFile;
    QString AbilityDescFile;
};

/// Those of ability `index`, 1 to 174, some of which the game spells otherwise than their folder.
TextFiles AbilityTextFiles(int index);

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

/// What the game says of an ability.
struct AbilityWords {
    QString name;
    QString description;
};

/// Name and description of every ability, from 1, from the language's text trees in the user's
/// folder and beside the program; a text that lies in both is taken from the user's. A missing or
/// unreadable file gives an empty text; one line end at the end of a name is dropped.
/// `languageCode`: "EN", "RU", ...
std::array<AbilityWords, Ability::Count + 1> LoadAbilityTexts(const QString& languageCode,
                                                              const ProgramPlaces& places);

} // namespace Hesperin
