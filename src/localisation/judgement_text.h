// What Calculate has to say of a creature, in words.
#pragma once

#include "localisation/messages.h"
#include "model/evaluation.h"

#include <functional>

namespace Hesperin {

/// Caption of the control of that name.
using CaptionLookup = std::function<QString(QLatin1String control)>;

/// The warning of a corrected value, which names the field by its caption. Those of speed,
/// initiative and tier are the same in every language.
QString CorrectionText(const Messages& messages, const CaptionLookup& caption,
                       const Correction& correction);

/// The beginning of the advice: to increase the tier when `current` is less than `advised`, else to
/// lower it.
const QString& TierAdvicePrefix(const Messages& messages, std::int16_t current,
                                std::int16_t advised);

/// The whole advice.
QString TierAdviceText(const Messages& messages, std::int16_t current, std::int16_t advised);

} // namespace Hesperin
