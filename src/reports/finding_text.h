// A finding in words, for a person and for scripts.
#pragma once

#include "reports/finding.h"

#include <QJsonObject>

namespace Hesperin {

/// "token.ability".
QString RuleName(const Finding& finding);

/// "error", "warning", "note": the same in every language.
QString SeverityName(Severity severity);

// In the current language; a language without a text takes the English one.
QString SeverityText(const Messages& messages, Severity severity);
QString ReasonText(const Messages& messages, const Finding& finding);
QString FoundText(const Messages& messages, const Finding& finding);
QString ExpectedText(const Messages& messages, const Finding& finding);

/// Reason, element, what was found and what was expected, as one line without the place.
QString FindingText(const Messages& messages, const Finding& finding);

/// Its words are English.
QJsonObject FindingJson(const Finding& finding);

} // namespace Hesperin
