#include "system/setting_file.h"

#include "system/save_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace Hesperin {

std::optional<QByteArray> ReadSetting(const ProgramPlaces& places, const QString& name) {
    constexpr qint64 longEnough = 16; // for any line that is a value, and to tell one that isn't
    const QString users = places.settingsFolder + u'/' + name;
    const QString path =
        QFileInfo(users).isFile() ? users : QString(places.programFolder + u'/' + name);
    const QFileInfo found(path);
    if (!found.exists())
        return std::nullopt;
    QFile file(path);
    const bool opened = found.isFile() && file.open(QIODevice::ReadOnly);
    const QByteArray start = opened ? file.read(longEnough) : QByteArray();
    const auto end = std::find_if(start.begin(), start.end(),
                                  [](char byte) { return byte == '\r' || byte == '\n'; });
    return start.left(end - start.begin());
}

bool SaveSetting(const ProgramPlaces& places, const QString& name, const QByteArray& value) {
    const QString users = places.settingsFolder + u'/' + name;
    if (!places.installedForAll && !SaveFile(places.programFolder + u'/' + name, value).failure) {
        QFile::remove(users); // or it would win at the next start
        return true;
    }
    QDir().mkpath(places.settingsFolder);
    return !SaveFile(users, value).failure;
}

} // namespace Hesperin
