#pragma once

#include <QString>
#include <QStringList>

namespace Hesperin {

/// The one of `known` that takes the fewest changes of a letter to become `word`, letter case not
/// counting; the first of several. Empty when nothing is known.
QString NearestTo(const QString& word, const QStringList& known);

} // namespace Hesperin
