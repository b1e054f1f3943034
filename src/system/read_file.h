#pragma once

#include "text/error.h"

#include <QByteArray>

namespace Hesperin {

/// The bytes of the file `path`. A file of more than `limit` bytes is refused without reading it
/// whole, also one that doesn't tell its size. Devices and pipes, which could keep the program
/// waiting, are refused unopened.
Result<QByteArray> ReadFile(const QString& path, qint64 limit);

/// Its first bytes, `count` at most; of a file that ReadFile has looked at.
Result<QByteArray> ReadFileStart(const QString& path, qint64 count);

} // namespace Hesperin
