// The captions of the main window's controls that follow the language, by the controls' names.
#pragma once

#include "localisation/messages.h"

namespace Hesperin {

struct CaptionRow {
    const char* control;
    Texts texts;
};

extern const std::span<const CaptionRow> CaptionRows; ///< of controls of their own

extern const std::span<const Texts> PageRows;    ///< by page of Tablus
extern const std::span<const Texts> FactionRows; ///< by entry of ComboFaction
extern const std::span<const Texts> RangeRows;   ///< by entry of ComboRange

/// Tool tip of lblValuesA, whose caption is shorter.
extern const Texts AverageToolTip;

/// The captions of the control of that name in all languages; null when they don't follow the
/// language.
const Texts* CaptionsOf(QLatin1String control);

/// The caption in one language, 1 to 4; empty when there is none.
QString CaptionIn(std::uint8_t languageId, QLatin1String control);

} // namespace Hesperin
