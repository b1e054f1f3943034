#pragma once

#include "app/program.h"

class QWidget;

namespace Hesperin {

/// Puts the panels of the main and of the alternative method on the page of the parameters. `page`
/// begins `top` pixels below the top of the tab control. Each figure's accessible name tells what
/// it is and by which method.
void BuildResultPanels(Program& program, QWidget& page, int top);

} // namespace Hesperin
