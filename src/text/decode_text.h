#pragma once

#include "text/code_page.h"

#include <QByteArray>
#include <QString>

namespace Hesperin {

/// The text of a game text file. Recognised in this order: UTF-16 by its byte-order mark; UTF-16
/// little-endian without one if every second byte of the first 64 is 0; UTF-8, with or without
/// mark, if it is valid; else `fallback`.
QString DecodeText(const QByteArray& bytes, CodePage fallback);

} // namespace Hesperin
