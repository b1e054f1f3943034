#pragma once

#include "localisation/messages.h"

namespace Hesperin {

/// What the XML parser says of a document that isn't well-formed, in the current language.
/// `english` is the parser's own sentence, which is kept where there is no translation.
QString ParserWords(const Messages& messages, const QString& english);

} // namespace Hesperin
