// Text for a terminal of fixed width.
#pragma once

#include <QString>

namespace Hesperin {

/// The width that reports keep to, in characters.
inline constexpr qsizetype ReportWidth = 100;

/// Control characters, which could steer a terminal, become "?"; line ends and tabs a blank.
QString Printable(QString text);

/// At most `width` characters of it; of a longer one the start, with "…" behind, or the end, behind
/// one.
QString StartOf(const QString& text, qsizetype width);
QString EndOf(const QString& text, qsizetype width);

/// The text in lines of at most ReportWidth characters, each behind `indent` blanks, with a line
/// end behind each. Breaks between words, within one only where it must.
QString Wrapped(const QString& text, qsizetype indent);

} // namespace Hesperin
