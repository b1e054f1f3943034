#pragma once

#include <QString>
#include <QStringList>

namespace Hesperin {

/// `text` with %1, %2 and so on replaced by `values` in that order; what a value holds is not
/// replaced again.
QString Fill(const QString& text, const QStringList& values);

} // namespace Hesperin
