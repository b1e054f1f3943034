#pragma once

#include "reports/explanation.h"

namespace Hesperin {

/// The explanation as one JSON document on one line. The values of its terms have 17 digits, so
/// that each is read as the number that it is.
QByteArray ExplanationJson(const Explanation& explanation);

} // namespace Hesperin
