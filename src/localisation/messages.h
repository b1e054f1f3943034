// All words of the interface that follow the language, shown letter for letter as they stand in the
// tables.
#pragma once

#include "engine/shared_state.h"
#include "form/main_form.h"

#include <span>

namespace Hesperin {

/// A text in the four languages; null where a language has none and the text of the moment stays.
using Texts = std::array<const char16_t*, 4>; // English, Russian, French, German

/// A shared text string.
struct MessageRow {
    QString SharedState::*message;
    Texts texts;
};

/// The caption of a control.
template <typename T>
struct CaptionRow {
    T MainForm::*control;
    Texts texts;
};

extern const std::span<const MessageRow> MessageRows;
extern const std::span<const CaptionRow<MenuEntry>> MenuRows;
extern const std::span<const CaptionRow<Frame>> FrameRows;
extern const std::span<const CaptionRow<Label>> LabelRows;
extern const std::span<const CaptionRow<Button>> ButtonRows;

extern const std::span<const Texts> PageRows;    ///< by page of Tablus
extern const std::span<const Texts> FactionRows; ///< by entry of ComboFaction
extern const std::span<const Texts> RangeRows;   ///< by entry of ComboRange

/// Tool tip of lblValuesA, whose caption is shorter.
extern const Texts AverageToolTip;

/// `text` with %1, %2 and so on replaced by `values` in that order.
QString Fill(const QString& text, const QStringList& values);

} // namespace Hesperin
