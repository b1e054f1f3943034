#include "system/system_error.h"

#include <QtGlobal>

#include <cerrno>

namespace Hesperin {

namespace {

using enum Error::What;

struct SystemCode {
    int code;
    Error::What what;
};

#ifdef Q_OS_WIN
constexpr SystemCode Codes[] = {
    {2, FileMissing},   // ERROR_FILE_NOT_FOUND
    {3, FolderMissing}, // ERROR_PATH_NOT_FOUND
    {5, NotAllowed},    // ERROR_ACCESS_DENIED
    {19, DiskReadOnly}, // ERROR_WRITE_PROTECT
    {32, InUse},        // ERROR_SHARING_VIOLATION
    {33, InUse},        // ERROR_LOCK_VIOLATION
    {112, DiskFull},    // ERROR_DISK_FULL
    {206, NameTooLong}, // ERROR_FILENAME_EXCED_RANGE
};
#else
constexpr SystemCode Codes[] = {
    {ENOENT, FileMissing},
    {ENOTDIR, FolderMissing},
    {EISDIR, IsFolder},
    {EACCES, NotAllowed},
    {EPERM, NotAllowed},
    {EROFS, DiskReadOnly},
    {ETXTBSY, InUse},
    {EBUSY, InUse},
    {ENOSPC, DiskFull},
    {EDQUOT, DiskFull},
    {ENAMETOOLONG, NameTooLong},
};
#endif

} // namespace

Error ErrorOf(int systemCode) {
    for (const SystemCode& row : Codes)
        if (row.code == systemCode)
            return {row.what};
    return {SystemSays, qt_error_string(systemCode)};
}

Error ErrorOf(const QString& systemWords) {
    // The toolkit keeps the words of the error and not its number.
    for (const SystemCode& row : Codes)
        if (systemWords == qt_error_string(row.code))
            return {row.what};
    return {SystemSays, systemWords};
}

} // namespace Hesperin
