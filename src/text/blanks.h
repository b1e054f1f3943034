// White space as documents have it.
#pragma once

#include <QString>

namespace Hesperin {

inline bool IsBlank(QChar character) {
    return character == u' ' || character == u'\t' || character == u'\n' || character == u'\r';
}

inline bool HasLineEnd(const QString& blanks) {
    return blanks.contains(u'\n') || blanks.contains(u'\r');
}

/// Where the white space in front of `end` starts.
inline qsizetype BlanksBefore(QStringView text, qsizetype end) {
    while (end > 0 && IsBlank(text[end - 1]))
        --end;
    return end;
}

/// The text without the spaces at its ends; other white space stays.
inline QString WithoutSpaces(QStringView text) {
    while (text.startsWith(u' '))
        text = text.sliced(1);
    while (text.endsWith(u' '))
        text.chop(1);
    return text.toString();
}

} // namespace Hesperin
