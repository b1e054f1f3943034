// The white space of a document.
#pragma once

#include <QString>

namespace Hesperin {

inline bool IsBlank(QChar character) {
    return character == u' ' || character == u'\t' || character == u'\n' || character == u'\r';
}

inline bool HasLineEnd(const QString& blanks) {
    return blanks.contains(u'\n') || blanks.contains(u'\r');
}

} // namespace Hesperin
