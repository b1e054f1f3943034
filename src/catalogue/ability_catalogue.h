// The 174 abilities: the game's token, the stem of the game's text files, the value by which the
// ability multiplies Power.
#pragma once

#include "catalogue/ability_index.h"

#include <QStringView>

#include <array>

namespace Hesperin {

/// What stands before an ability's token in the game's files.
inline constexpr QStringView AbilityPrefix = u"ABILITY_";

/// How the game names the two text files of an ability; eight of them have names of their own, see
/// AbilityTextFiles.
enum class TextFileNames : unsigned char {
    Stem,  ///< the stem followed by "_name" and "_desc"
    Plain, ///< "name" and "description"
};

struct AbilityRow {
    const char16_t* token; ///< as in creature files, without AbilityPrefix
    const char16_t* stem;  ///< in the game's own spelling
    float value;
    TextFileNames files;
};

extern const std::array<AbilityRow, Ability::Count + 1> AbilityCatalogue; ///< from 1

} // namespace Hesperin
