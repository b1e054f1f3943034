#pragma once

#include "platform/file_obstacle.h"

#include <QByteArray>

#include <variant>

namespace Hesperin {

/// The bytes of the file `path`. A file of more than `limit` bytes is refused without reading it
/// whole, also one that doesn't tell its size. Devices and pipes, which could keep the program
/// waiting, are refused unopened.
std::variant<QByteArray, FileObstacle> ReadFile(const QString& path, qint64 limit);

} // namespace Hesperin
