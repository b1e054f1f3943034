#include "platform/read_file.h"

#include <QFile>
#include <QFileInfo>

namespace Hesperin {

std::variant<QByteArray, FileObstacle> ReadFile(const QString& path, qint64 limit) {
    const FileObstacle tooLarge{FileObstacle::Kind::TooLarge, QString::number(limit)};
    const QFileInfo place(path);
    if (place.exists() && !place.isFile())
        return FileObstacle{
            place.isDir() ? FileObstacle::Kind::IsFolder : FileObstacle::Kind::NotAFile, {}};
    const qint64 told = place.size(); // 0 for a file that doesn't tell
    if (told > limit)
        return tooLarge;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return ObstacleOf(file.errorString());
    QByteArray bytes = file.read(told > 0 ? told + 1 : limit + 1);
    if (told > 0 && bytes.size() > told) // it grows
        bytes += file.read(limit + 1 - bytes.size());
    if (file.error() != QFileDevice::NoError)
        return ObstacleOf(file.errorString());
    if (bytes.size() > limit)
        return tooLarge;
    return bytes;
}

} // namespace Hesperin
