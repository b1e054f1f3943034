#include "localisation/language_file.h"

#include "engine/languages.h"
#include "platform/save_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>

namespace Hesperin {

namespace {

constexpr std::array<const char*, 5> Codes{"", "EN", "RU", "FR", "DE"};

QString FileIn(const QString& folder) {
    return folder + QLatin1String("/lang.ini");
}

/// The first line of a file without its line end; empty when it can't be read.
QByteArray FirstLine(const QString& path) {
    constexpr qint64 longEnough = 16; // for any line that is a code, and to tell one that isn't
    QFile file(path);
    const bool opened = QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly);
    const QByteArray start = opened ? file.read(longEnough) : QByteArray();
    const auto end = std::find_if(start.begin(), start.end(),
                                  [](char byte) { return byte == '\r' || byte == '\n'; });
    return start.left(end - start.begin());
}

} // namespace

std::uint8_t ReadLanguageFile(const ProgramPlaces& places) {
    const QString users = FileIn(places.settingsFolder);
    const QString path = QFileInfo(users).isFile() ? users : FileIn(places.programFolder);
    if (!QFileInfo::exists(path)) {
        WriteLanguageFile(places, English);
        return English;
    }
    return FirstLine(path) == Codes[Russian] ? Russian : English;
}

bool WriteLanguageFile(const ProgramPlaces& places, std::uint8_t languageId) {
    const QByteArray code = Codes.at(languageId);
    const QString users = FileIn(places.settingsFolder);
    if (!places.installedForAll && !SaveFile(FileIn(places.programFolder), code).obstacle) {
        QFile::remove(users); // or it would win at the next start
        return true;
    }
    QDir().mkpath(places.settingsFolder);
    return !SaveFile(users, code).obstacle;
}

} // namespace Hesperin
