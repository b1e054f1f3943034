#pragma once

#include "form/main_form.h"

class QWidget;

namespace Hesperin {

/// Puts the panels of the main and of the alternative method on page 0. `page` begins `top` pixels
/// below the top of the tab control.
void BuildResultPanels(MainForm& form, QWidget& page, int top);

} // namespace Hesperin
