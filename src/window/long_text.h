#pragma once

#include <QMessageBox>

namespace Hesperin {

/// Lets the text of a box scroll where the box would be higher than fits on a screen. To be called
/// when the box has its text and its buttons.
void LetLongTextScroll(QMessageBox& box);

} // namespace Hesperin
