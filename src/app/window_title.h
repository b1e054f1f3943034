#pragma once

#include "app/program.h"

namespace Hesperin {

/// The summary title of the last calculation.
QString SummaryTitle(const SharedState& state);

/// Writes the main window's title again: the summary when a creature file has been opened, else
/// program and version alone. Called after the language has changed.
void BuildTitle(Program& program);

} // namespace Hesperin
