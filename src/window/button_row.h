#pragma once

#include "form/main_form.h"

class QWidget;

namespace Hesperin {

/// The row with its gaps above and below, in pixels.
inline constexpr int ButtonRowHeight = 40;

/// Puts the buttons on `content`, in a row that begins at `top` and is `width` pixels wide: where
/// that is too narrow for the given places, they move together.
void BuildButtonRow(MainForm& form, QWidget& content, int top, int width);

} // namespace Hesperin
