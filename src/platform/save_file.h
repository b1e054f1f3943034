#pragma once

#include "platform/file_obstacle.h"

#include <QByteArray>

#include <optional>

namespace Hesperin {

/// Writes `bytes` as the whole content of the file `path`, or leaves an old file as it was. Gives
/// the obstacle when it fails, none when the file is complete on disk. Refuses a place that holds
/// anything but a file: a folder, a device.
std::optional<FileObstacle> SaveFile(const QString& path, const QByteArray& bytes);

/// Why SaveFile could not write there, found out without changing anything; none when it could.
std::optional<FileObstacle> SaveObstacle(const QString& path);

} // namespace Hesperin
