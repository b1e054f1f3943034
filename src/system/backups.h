#pragma once

#include "text/error.h"

#include <QByteArray>

namespace Hesperin {

/// Keeps the bytes that the file `path` had before it is replaced, in `folder`, under its name with
/// the time in front. Of all copies there the newest 200 stay.
Failure KeepBackup(const QString& folder, const QString& path, const QByteArray& bytes);

} // namespace Hesperin
