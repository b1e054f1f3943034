#pragma once

#include "form/main_form.h"

class QWidget;

namespace Hesperin {

/// Puts the frames of the creature's parameters, each with its field or list, on the page of the
/// parameters. `page` begins `top` pixels below the top of the tab control, from which the places
/// count.
void BuildParametersPage(MainForm& form, QWidget& page, int top);

} // namespace Hesperin
