#include "system/read_file.h"

#include "system/system_error.h"

#include <QFile>
#include <QFileInfo>

namespace Hesperin {

Result<QByteArray> ReadFile(const QString& path, qint64 limit) {
    const Error tooLarge{Error::What::FileTooLarge, {}, QString::number(limit)};
    const QFileInfo place(path);
    if (!place.isFile() && place.exists()) // in this order a file is looked up once
        return Error{place.isDir() ? Error::What::IsFolder : Error::What::NotAFile};
    const qint64 told = place.size(); // 0 for a file that doesn't tell
    if (told > limit)
        return tooLarge;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return ErrorOf(file.errorString());
    QByteArray bytes = file.read(told > 0 ? told + 1 : limit + 1);
    if (told > 0 && bytes.size() > told) // it grows
        bytes += file.read(limit + 1 - bytes.size());
    if (file.error() != QFileDevice::NoError)
        return ErrorOf(file.errorString());
    if (bytes.size() > limit)
        return tooLarge;
    return bytes;
}

Result<QByteArray> ReadFileStart(const QString& path, qint64 count) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return ErrorOf(file.errorString());
    return file.read(count);
}

} // namespace Hesperin
