#pragma once

#include "text/error.h"

#include <QByteArray>

#include <vector>

namespace Hesperin {

/// What the user should know of a save that stands.
enum class SaveNote : std::uint8_t {
    OtherNamesKeepOld, ///< other names of the old file (hard links) keep its content
    OwnerNotKept,      ///< owner or rights are not those of the old file
    MayNotLast,        ///< the folder was not synced: a power cut may bring the old file back
};

struct SaveOutcome {
    Failure failure; ///< why nothing was changed; none: the save stands
    std::vector<SaveNote> notes;
};

/// Writes `bytes` as the whole content of the file `path`, or leaves an old file as it was: the one
/// way in which the program writes files. A save that stands is on the disk. Behind a symbolic link
/// the target is replaced. Refuses a place that holds anything but a file: a folder, a device.
SaveOutcome SaveFile(const QString& path, const QByteArray& bytes);

/// The same for one of many files: SyncFolder is to be called for its folder when all are saved.
/// Until then a power cut may bring the old file back, whole.
SaveOutcome SaveFileOfMany(const QString& path, const QByteArray& bytes);

/// Waits until the files saved in that folder last. False where the system can't say so.
bool SyncFolder(const QString& folder);

/// Why SaveFile could not write there, found out without changing anything; none when it could.
Failure SaveRefusal(const QString& path);

} // namespace Hesperin
