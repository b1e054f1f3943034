#include "platform/save_file.h"

#include <QFileInfo>
#include <QSaveFile>

namespace Hesperin {

namespace {

/// Opens `file` for writing beside its place. Gives the reason when that can't be done.
QString Open(QSaveFile& file) {
    const QFileInfo place(file.fileName());
    if (place.exists() && !place.isFile()) // the finished file would be moved over a device
        return place.isDir() ? QStringLiteral("Is a directory")
                             : QStringLiteral("Not a regular file");
    return file.open(QIODevice::WriteOnly) ? QString() : file.errorString();
}

} // namespace

QString SaveFile(const QString& path, const QByteArray& bytes) {
    QSaveFile file(path);
    QString obstacle = Open(file);
    if (!obstacle.isEmpty())
        return obstacle;
    // commit() alone doesn't notice that its last write failed: on a full disk it would replace the
    // old file by half of the new one.
    const bool complete = file.write(bytes) == bytes.size() && file.flush() && file.commit();
    return complete ? QString() : file.errorString();
}

QString SaveObstacle(const QString& path) {
    QSaveFile file(path);
    QString obstacle = Open(file);
    file.cancelWriting();
    return obstacle;
}

} // namespace Hesperin
