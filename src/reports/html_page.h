// What every HTML page of ours carries: its style, its script, and the spelling of texts in it.
#pragma once

#include <QString>

namespace Hesperin {

/// Light and dark, screen and paper.
extern const char* const PageStyle;

/// Sorts and filters the table "creatures". Its words stand in the page: it holds no text.
extern const char* const PageScript;

/// The text as it stands in an element or in the quoted value of an attribute. Control characters
/// are shown by their pictures.
QByteArray InHtml(const QString& text);

/// The element with its text: <h2>Tiers</h2>. `start`: name and attributes.
QByteArray HtmlElement(const QByteArray& start, const QString& text);

} // namespace Hesperin
