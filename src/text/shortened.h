#pragma once

#include <QString>

namespace Hesperin {

/// A value as a message shows it: what is longer than 80 characters is cut there and ends in "…".
inline QString Shortened(QStringView value) {
    constexpr qsizetype longest = 80;
    if (value.size() <= longest)
        return value.toString();
    return value.first(value[longest - 1].isHighSurrogate() ? longest - 1 : longest).toString() +
           QChar(0x2026);
}

} // namespace Hesperin
