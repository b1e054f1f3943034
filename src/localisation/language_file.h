// The small file lang.ini that remembers the language: the two letters of its code and nothing
// else.
#pragma once

#include <QString>

#include <cstdint>

namespace Hesperin {

/// Where lang.ini may lie. The one in the user's settings folder is used where the program's folder
/// can't be written, and it wins as long as it is there.
struct LanguageFilePlaces {
    QString programFolder;
    QString settingsFolder;
};

/// The language, 1 or 2, that the file asks for: "RU" gives 2, anything else 1, and so does a file
/// that is empty or can't be read. A missing file is created with the English code.
std::uint8_t ReadLanguageFile(const LanguageFilePlaces& places);

/// Writes the code of the language, 1 to 4, as the whole content of the file. False when neither
/// place can be written.
bool WriteLanguageFile(const LanguageFilePlaces& places, std::uint8_t languageId);

} // namespace Hesperin
