#include "localisation/language_file.h"

#include "platform/read_file.h"
#include "platform/save_file.h"

#include <QDir>
#include <QFileInfo>

#include <array>

namespace Hesperin {

namespace {

constexpr std::array<const char*, 5> Codes{"", "EN", "RU", "FR", "DE"};
constexpr std::uint8_t English = 1;
constexpr std::uint8_t Russian = 2;

QString FileIn(const QString& folder) {
    return folder + QLatin1String("/lang.ini");
}

QByteArray FirstLine(const QByteArray& content) {
    const auto end = std::find_if(content.begin(), content.end(),
                                  [](char byte) { return byte == '\r' || byte == '\n'; });
    return content.left(end - content.begin());
}

} // namespace

std::uint8_t ReadLanguageFile(const LanguageFilePlaces& places) {
    constexpr qint64 enough = 4096; // a file of any greater size holds something else
    const QString users = FileIn(places.settingsFolder);
    const QString path = QFileInfo(users).isFile() ? users : FileIn(places.programFolder);
    if (!QFileInfo::exists(path)) {
        WriteLanguageFile(places, English);
        return English;
    }
    const auto content = ReadFile(path, enough);
    const auto* bytes = std::get_if<QByteArray>(&content);
    return bytes != nullptr && FirstLine(*bytes) == Codes[Russian] ? Russian : English;
}

bool WriteLanguageFile(const LanguageFilePlaces& places, std::uint8_t languageId) {
    const QByteArray code = Codes.at(languageId);
    const QString users = FileIn(places.settingsFolder);
    if (SaveFile(FileIn(places.programFolder), code).isEmpty()) {
        QFile::remove(users); // or it would win at the next start
        return true;
    }
    QDir().mkpath(places.settingsFolder);
    return SaveFile(users, code).isEmpty();
}

} // namespace Hesperin
