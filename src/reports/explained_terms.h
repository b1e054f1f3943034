#pragma once

#include "reports/explanation.h"

#include <QSet>

namespace Hesperin {

/// The names of the terms and inputs that one result rests on, its own included; Tier and Shooter
/// count as inputs of what is chosen by them. Of a result that a Power of 0 kept from being
/// computed: those of that Power.
QSet<QString> TermsBehind(const Explanation& explanation, ResultKey result);

/// The name of a result among the terms.
QString TermOfResult(ResultKey result);

} // namespace Hesperin
