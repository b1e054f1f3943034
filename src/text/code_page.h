#pragma once

#include <QByteArrayView>
#include <QString>

namespace Hesperin {

/// The single-byte character sets that game texts come in.
enum class CodePage : std::uint8_t { Windows1251, Windows1252 };

/// Every byte has a character; the few that the set leaves open give U+FFFD.
QString DecodeCodePage(QByteArrayView bytes, CodePage page);

} // namespace Hesperin
