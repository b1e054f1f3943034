#pragma once

#include "app/program.h"

class QWidget;

namespace Hesperin {

// The pages of check boxes, each in columns of 35 rows. `page` begins `top` pixels below the top of
// the tab control.

void BuildAbilitiesPage(Program& program, QWidget& page, int top);
void BuildSpellsPage(MainForm& form, QWidget& page, int top);
void BuildSpecabilitiesPage(MainForm& form, QWidget& page, int top);

} // namespace Hesperin
