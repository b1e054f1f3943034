#pragma once

#include <QByteArray>

namespace Hesperin {

/// Whether a document has a tag with more attributes, or a document type of more characters, than
/// one whose normalised text stays within `longest` can have. The toolkit's parser compares each
/// attribute of a tag, and each declaration of a document type, with all before it: without this
/// look ahead a hostile file would keep it busy.
bool HasEndlessMarkup(const QByteArray& bytes, qsizetype longest);

/// How many characters one entity of the document may stand for, so that all its references
/// together stay within `longestInAll`; never more than the parser's own limit.
int EntityLimit(const QByteArray& bytes, qsizetype longestInAll);

} // namespace Hesperin
