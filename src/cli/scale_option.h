#pragma once

#include "localisation/messages.h"
#include "reports/mod_scale.h"

#include <optional>

namespace Hesperin {

/// The option of the commands that divide by a mod's scale.
inline const QString ScaleOption = QStringLiteral("scale-of");

/// The scale of the mod at `path`, a file, folder or archive. What of it can't be read has no part
/// in it and is told on standard error, as is that nothing lies there, which gives none.
std::optional<ModScale> ReadScale(const QString& path, const Messages& messages);

} // namespace Hesperin
