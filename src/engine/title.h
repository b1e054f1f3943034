#pragma once

#include "engine/program.h"

namespace Hesperin {

/// The whole title: program, version and, for the last calculation, each figure of the open file
/// beside the computed average in braces. Formed from the stored results and the current Tier.
QString SummaryTitle(const SharedState& state);

/// Writes the main window's title again: the summary when a creature file has been opened, else
/// program and version alone. Called after the language strings have changed.
void BuildTitle(Program& program);

} // namespace Hesperin
