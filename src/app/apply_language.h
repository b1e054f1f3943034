#pragma once

#include "engine/program.h"

namespace Hesperin {

/// Sets the check marks of the language menu and every message string and caption that the language
/// has; what it lacks keeps the text of the moment. English and Russian refill ComboFaction and
/// ComboRange, so that nothing is selected in them. `languageId`: 1 English, 2 Russian, 3 French,
/// 4 German; any other value does nothing.
void ApplyLanguage(Program& program, std::int16_t languageId);

} // namespace Hesperin
