#pragma once

#include <QString>

namespace Hesperin {

/// Whether letter case tells files of this system apart.
#ifdef Q_OS_WIN
constexpr Qt::CaseSensitivity FileNameCase = Qt::CaseInsensitive;
#else
constexpr Qt::CaseSensitivity FileNameCase = Qt::CaseSensitive;
#endif

/// The same text for all paths that lead to one file, to be compared and not to be shown; empty
/// when there is no such file.
QString FilePlace(const QString& path);

} // namespace Hesperin
