#include "platform/save_file.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace Hesperin {

namespace {

/// Opens `file` for writing beside its place. Gives the obstacle when that can't be done.
std::optional<FileObstacle> Open(QSaveFile& file) {
    const QFileInfo place(file.fileName());
    if (place.exists()) {
        if (place.isDir())
            return FileObstacle{FileObstacle::Kind::IsFolder, {}};
        if (!place.isFile()) // the finished file would be moved over a device
            return FileObstacle{FileObstacle::Kind::NotAFile, {}};
        if (!place.isWritable()) // and the new one over a file that its owner protects
            return FileObstacle{FileObstacle::Kind::NotAllowed, {}};
    }
    if (file.open(QIODevice::WriteOnly))
        return std::nullopt;
    FileObstacle obstacle = ObstacleOf(file.errorString());
    if (obstacle.kind == FileObstacle::Kind::Missing) // a new file always is
        obstacle.kind = FileObstacle::Kind::FolderMissing;
    return obstacle;
}

} // namespace

std::optional<FileObstacle> SaveFile(const QString& path, const QByteArray& bytes) {
    QSaveFile file(path);
    if (auto obstacle = Open(file))
        return obstacle;
    // commit() alone doesn't notice that its last write failed: on a full disk it would replace the
    // old file by half of the new one.
    if (file.write(bytes) == bytes.size() && file.flush() && file.commit())
        return std::nullopt;
    const FileObstacle obstacle = ObstacleOf(file.errorString());
    // Windows denies to move over a file that is held, and tells the reason only at its opening.
    QFile old(path);
    if (obstacle.kind == FileObstacle::Kind::NotAllowed && old.exists() &&
        !old.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        return ObstacleOf(old.errorString());
    return obstacle;
}

std::optional<FileObstacle> SaveObstacle(const QString& path) {
    QSaveFile file(path);
    auto obstacle = Open(file);
    file.cancelWriting();
    return obstacle;
}

} // namespace Hesperin
