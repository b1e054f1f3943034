#pragma once

#include "text/error.h"

#include <QByteArray>

namespace Hesperin {

/// Parses a document, without validation and without following external references, and gives it
/// back as normalised text: first line `<?xml version="1.0" encoding="UTF-8"?>`, one line feed
/// between lines, one tab per level, attributes as `name="value"` after one blank. An element
/// without children and text is `<Name></Name>`, or `<Name attr="..."/>` when it has attributes;
/// the text of an element without children is kept unless it is only white space. Comments,
/// processing instructions, document types and any text beside child elements are left out.
///
/// Refuses a document that isn't well-formed, whose root isn't `root`, whose normalised text is
/// longer than `longest` UTF-16 units, or that refers to an entity in another file. Time and memory
/// stay bounded by the size of `bytes`.
Result<QString> NormaliseXml(const QByteArray& bytes, QStringView root, qsizetype longest);

} // namespace Hesperin
