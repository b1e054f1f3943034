// A finding in words, for a person and for scripts.
#pragma once

#include "reports/finding.h"

#include <QJsonObject>

namespace Hesperin {

/// "token.ability".
QString RuleName(const Finding& finding);

// In the current language; a language without a text takes the English one.

QString SeverityText(const Messages& messages, Severity severity);

/// Reason, element, what was found and what was expected, as one line without the place.
QString FindingText(const Messages& messages, const Finding& finding);

/// Its words are English.
QJsonObject FindingJson(const Finding& finding);

} // namespace Hesperin
