#pragma once

#include <QStringList>

namespace Hesperin {

/// Writes so many creature files into the folder, copies of the samples with other values, and
/// gives their paths.
QStringList MakeMod(const QString& folder, int count);

} // namespace Hesperin
