// The program's version record: the one place for title, product name, numbers and legal notice.
#pragma once

#include <QString>

namespace Hesperin::VersionRecord {

inline constexpr const char16_t* Title = u"TALMIR";
inline constexpr const char16_t* ProductName = u"TALMIR";
inline constexpr int Major = 0;
inline constexpr int Minor = 0;
inline constexpr int Revision = 44;
inline constexpr const char16_t* LegalNotice = u"\u00A9 2026 The TALMIR developers, MIT License";

/// Title and version as the main window shows them: "TALMIR v0.0.0.44".
inline const QString& TitleAndVersion() {
    static const QString text = QString::fromUtf16(Title) +
                                QStringLiteral(" v0.%1.%2.%3").arg(Major).arg(Minor).arg(Revision);
    return text;
}

} // namespace Hesperin::VersionRecord
