#pragma once

#include <QByteArray>
#include <QString>

namespace Hesperin {

/// Writes `bytes` as the whole content of the file `path`, or leaves an old file as it was. Gives
/// the system's reason when it fails, the empty text when the file is complete on disk. Refuses a
/// place that holds anything but a file: a folder, a device.
QString SaveFile(const QString& path, const QByteArray& bytes);

/// Why SaveFile could not write there, found out without changing anything; empty when it could.
QString SaveObstacle(const QString& path);

} // namespace Hesperin
