#include "system/system_error.h"

#include <QtGlobal>

#include <cerrno>

namespace Hesperin {

namespace {

using What = Error::What;

struct SystemCode {
    int code;
    What what;
};

#ifdef Q_OS_WIN
constexpr SystemCode Codes[] = {
    {2, What::FileMissing},       // ERROR_FILE_NOT_FOUND
    {3, What::FolderMissing}, // ERROR_PATH_NOT_FOUND
    {5, What::NotAllowed},    // ERROR_ACCESS_DENIED
    {19, What::DiskReadOnly}, // ERROR_WRITE_PROTECT
    {32, What::InUse},        // ERROR_SHARING_VIOLATION
    {33, What::InUse},        // ERROR_LOCK_VIOLATION
    {112, What::DiskFull},    // ERROR_DISK_FULL
    {206, What::NameTooLong}, // ERROR_FILENAME_EXCED_RANGE
};
#else
constexpr SystemCode Codes[] = {
    {ENOENT, What::FileMissing},
    {ENOTDIR, What::FolderMissing},
    {EISDIR, What::IsFolder},
    {EACCES, What::NotAllowed},
    {EPERM, What::NotAllowed},
    {EROFS, What::DiskReadOnly},
    {ETXTBSY, What::InUse},
    {EBUSY, What::InUse},
    {ENOSPC, What::DiskFull},
    {EDQUOT, What::DiskFull},
    {ENAMETOOLONG, What::NameTooLong},
};
#endif

} // namespace

Error ErrorOf(int systemCode) {
    for (const SystemCode& row : Codes)
        if (row.code == systemCode)
            return {row.what};
    return {What::SystemSays, qt_error_string(systemCode)};
}

Error ErrorOf(const QString& systemWords) {
    // The toolkit keeps the words of the error and not its number.
    for (const SystemCode& row : Codes)
        if (systemWords == qt_error_string(row.code))
            return {row.what};
    return {What::SystemSays, systemWords};
}

} // namespace Hesperin
