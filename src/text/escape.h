// The spelling of special characters in a document.
#pragma once

#include <QString>

namespace Hesperin {

/// `&` and `<` as references; for the value of an attribute, `"` too.
enum class Escape : unsigned char { Content, Attribute };
QString Escaped(const QString& text, Escape where);

/// The text behind the references `&amp;`, `&lt;`, `&gt;` and `&quot;`.
QString Unescaped(QString text);

} // namespace Hesperin
