#pragma once

#include <QString>

namespace Hesperin {

/// Why a file can't be read or written.
struct FileObstacle {
    enum class Kind : std::uint8_t {
        Missing,
        FolderMissing,
        IsFolder,
        NotAFile, ///< a device, a pipe, a socket
        NotAllowed,
        InUse, ///< another program holds it
        DiskFull,
        DiskReadOnly,
        NameTooLong,
        TooLarge, ///< `detail` is the limit in bytes
        Other,    ///< `detail` is what the system says, in the system's language
    };
    Kind kind;
    QString detail;
};

/// The obstacle behind the system's number of an error.
FileObstacle ObstacleOf(int systemCode);

/// The obstacle behind a failed operation of the toolkit, from the words that the system gave for
/// it.
FileObstacle ObstacleOf(const QString& systemWords);

} // namespace Hesperin
