#pragma once

#include <QByteArray>
#include <QString>

namespace Hesperin {

/// Writes `bytes` as the whole content of the file `path`, or leaves an old file as it was. Gives
/// the system's reason when it fails, the empty text when the file is complete on disk.
QString SaveFile(const QString& path, const QByteArray& bytes);

} // namespace Hesperin
