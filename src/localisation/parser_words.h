#pragma once

#include "engine/shared_state.h"

namespace Hesperin {

/// What the XML parser says of a document that isn't well-formed, in the language of the moment.
/// `english` is the parser's own sentence, which is kept where there is no translation.
QString ParserWords(const SharedState& state, const QString& english);

} // namespace Hesperin
