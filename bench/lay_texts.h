#pragma once

#include <QString>

namespace Hesperin {

/// Lays a text tree of English and Russian ability texts into `programFolder`.
void LayTexts(const QString& programFolder);

} // namespace Hesperin
