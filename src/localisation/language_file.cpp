#include "localisation/language_file.h"

#include "localisation/languages.h"
#include "system/setting_file.h"

#include <array>

namespace Hesperin {

namespace {

constexpr std::array<const char*, 5> Codes{"", "EN", "RU", "FR", "DE"};

constexpr QLatin1String FileName("lang.ini");

} // namespace

std::uint8_t ReadLanguageFile(const ProgramPlaces& places) {
    const std::optional<QByteArray> code = ReadSetting(places, FileName);
    if (!code)
        WriteLanguageFile(places, English);
    return code == QByteArray(Codes[Russian]) ? Russian : English;
}

bool WriteLanguageFile(const ProgramPlaces& places, std::uint8_t languageId) {
    return SaveSetting(places, FileName, Codes.at(languageId));
}

} // namespace Hesperin
