#include "platform/save_file.h"

#include "platform/replacement_file.h"

#include <QFileInfo>

namespace Hesperin {

namespace {

using Kind = FileObstacle::Kind;

/// The place that symbolic links lead to, which need not exist yet.
QString BehindLinks(const QString& path) {
    constexpr int longestChain = 128;
    QFileInfo place(path);
    for (int links = 0; place.isSymLink() && links < longestChain; ++links)
        place.setFile(place.symLinkTarget());
    return place.filePath();
}

/// Makes the empty file beside `target`. Gives the obstacle when that can't be done.
std::optional<FileObstacle> Create(ReplacementFile& file, const QString& target) {
    const QFileInfo place(target);
    if (place.isDir())
        return FileObstacle{Kind::IsFolder, {}};
    if (place.exists() && !place.isFile()) // the finished file would be moved over a device
        return FileObstacle{Kind::NotAFile, {}};
    if (place.fileName().isEmpty())
        return FileObstacle{Kind::FolderMissing, {}};
    if (const int error = file.Refusal(); error != 0)
        return ObstacleOf(error);
    const int error = file.Create();
    if (error == 0)
        return std::nullopt;
    FileObstacle obstacle = ObstacleOf(error);
    if (obstacle.kind == Kind::Missing) // a new file always is
        obstacle.kind = Kind::FolderMissing;
    return obstacle;
}

} // namespace

SaveOutcome SaveFile(const QString& path, const QByteArray& bytes) {
    const QString target = BehindLinks(path);
    ReplacementFile file(target);
    if (auto obstacle = Create(file, target))
        return {std::move(obstacle), {}};
    SaveOutcome outcome;
    if (file.OldHasOtherNames())
        outcome.notes.push_back(SaveNote::OtherNamesKeepOld);
    if (!file.KeepOwnerAndRights())
        outcome.notes.push_back(SaveNote::OwnerNotKept);
    int error = file.Write(bytes);
    if (error == 0)
        error = file.Sync();
    if (error == 0)
        error = file.TakePlace();
    if (error != 0)
        return {ObstacleOf(error), {}};
    if (file.SyncFolder() != 0)
        outcome.notes.push_back(SaveNote::MayNotLast);
    return outcome;
}

std::optional<FileObstacle> SaveObstacle(const QString& path) {
    const QString target = BehindLinks(path);
    ReplacementFile file(target);
    return Create(file, target);
}

} // namespace Hesperin
