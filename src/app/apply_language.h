#pragma once

#include "app/program.h"

namespace Hesperin {

/// Sets the check marks of the language menu and every message and caption that the language has;
/// what it lacks keeps its text. English and Russian refill ComboFaction and ComboRange, so that
/// nothing is selected in them. `languageId`: 1 English, 2 Russian, 3 French, 4 German; any other
/// value does nothing.
void ApplyLanguage(Program& program, std::int16_t languageId);

/// Zeroes the charge counter and the flag of the box rules. The catalogues themselves are
/// constants. Runs at start-up and after each change of language; ticks stay as they are.
void BuildCatalogues(Program& program);

/// Loads name and description of every ability in the current language into utbN and utbD.
void LoadTextsOfAbilities(Program& program);

/// The second half of a change of language: catalogues, ability texts, title.
void ReloadAbilityTexts(Program& program);

} // namespace Hesperin
