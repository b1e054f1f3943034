#include "platform/file_obstacle.h"

#include <QtGlobal>

#include <cerrno>

namespace Hesperin {

namespace {

struct SystemCode {
    int code;
    FileObstacle::Kind kind;
};

using Kind = FileObstacle::Kind;

#ifdef Q_OS_WIN
constexpr SystemCode Codes[] = {
    {2, Kind::Missing},       // ERROR_FILE_NOT_FOUND
    {3, Kind::FolderMissing}, // ERROR_PATH_NOT_FOUND
    {5, Kind::NotAllowed},    // ERROR_ACCESS_DENIED
    {19, Kind::DiskReadOnly}, // ERROR_WRITE_PROTECT
    {32, Kind::InUse},        // ERROR_SHARING_VIOLATION
    {33, Kind::InUse},        // ERROR_LOCK_VIOLATION
    {112, Kind::DiskFull},    // ERROR_DISK_FULL
    {206, Kind::NameTooLong}, // ERROR_FILENAME_EXCED_RANGE
};
#else
constexpr SystemCode Codes[] = {
    {ENOENT, Kind::Missing},
    {ENOTDIR, Kind::FolderMissing},
    {EISDIR, Kind::IsFolder},
    {EACCES, Kind::NotAllowed},
    {EPERM, Kind::NotAllowed},
    {EROFS, Kind::DiskReadOnly},
    {ETXTBSY, Kind::InUse},
    {EBUSY, Kind::InUse},
    {ENOSPC, Kind::DiskFull},
    {EDQUOT, Kind::DiskFull},
    {ENAMETOOLONG, Kind::NameTooLong},
};
#endif

} // namespace

FileObstacle ObstacleOf(int systemCode) {
    for (const SystemCode& row : Codes)
        if (row.code == systemCode)
            return {row.kind, {}};
    return {Kind::Other, qt_error_string(systemCode)};
}

FileObstacle ObstacleOf(const QString& systemWords) {
    // The toolkit keeps the words of the error and not its number.
    for (const SystemCode& row : Codes)
        if (systemWords == qt_error_string(row.code))
            return {row.kind, {}};
    return {Kind::Other, systemWords};
}

} // namespace Hesperin
