#include "system/save_file.h"

#include "system/replacement_file.h"
#include "system/system_error.h"

#include <QFileInfo>

namespace Hesperin {

namespace {

/// The place that symbolic links lead to, which need not exist yet.
QString BehindLinks(const QString& path) {
    constexpr int longestChain = 128;
    QFileInfo place(path);
    for (int links = 0; place.isSymLink() && links < longestChain; ++links)
        place.setFile(place.symLinkTarget());
    return place.filePath();
}

/// Makes the empty file beside `target`. Gives the error when that can't be done.
Failure Create(ReplacementFile& file, const QString& target) {
    const QFileInfo place(target);
    if (place.isDir())
        return Error{Error::What::IsFolder};
    if (place.exists() && !place.isFile()) // the finished file would be moved over a device
        return Error{Error::What::NotAFile};
    if (place.fileName().isEmpty())
        return Error{Error::What::FolderMissing};
    if (const int error = file.Refusal(); error != 0)
        return ErrorOf(error);
    const int error = file.Create();
    if (error == 0)
        return std::nullopt;
    Error refusal = ErrorOf(error);
    if (refusal.what == Error::What::FileMissing) // a new file always is
        refusal.what = Error::What::FolderMissing;
    return refusal;
}

} // namespace

SaveOutcome SaveFileOfMany(const QString& path, const QByteArray& bytes) {
    const QString target = BehindLinks(path);
    ReplacementFile file(target);
    if (auto refusal = Create(file, target))
        return {std::move(refusal), {}};
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
        return {ErrorOf(error), {}};
    return outcome;
}

SaveOutcome SaveFile(const QString& path, const QByteArray& bytes) {
    SaveOutcome outcome = SaveFileOfMany(path, bytes);
    if (!outcome.failure && !SyncFolder(QFileInfo(BehindLinks(path)).path()))
        outcome.notes.push_back(SaveNote::MayNotLast);
    return outcome;
}

bool SyncFolder(const QString& folder) {
    return ReplacementFile(folder + QLatin1String("/any")).SyncFolder() == 0;
}

Failure SaveRefusal(const QString& path) {
    const QString target = BehindLinks(path);
    ReplacementFile file(target);
    return Create(file, target);
}

} // namespace Hesperin
