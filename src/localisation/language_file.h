// The small file lang.ini that remembers the language: the two letters of its code and nothing
// else.
#pragma once

#include "system/program_places.h"

#include <cstdint>

namespace Hesperin {

/// The language, 1 or 2, that the file asks for: "RU" gives 2, anything else 1, and so does a file
/// that is empty or can't be read. A missing file is created with the English code.
std::uint8_t ReadLanguageFile(const ProgramPlaces& places);

/// Writes the code of the language, 1 to 4, as the whole content of the file. False when neither
/// place can be written.
bool WriteLanguageFile(const ProgramPlaces& places, std::uint8_t languageId);

} // namespace Hesperin
