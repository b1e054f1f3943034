#pragma once

#include "engine/program.h"

namespace Hesperin {

/// The four entries of the language menu: set LanguageId, apply the language, then load the ability
/// texts in it. Fields, ticks and results stay; the charge counter and the flag become 0, and
/// nothing is selected in ComboFaction and ComboRange after English and Russian.
void mnuEnglish_Click(Program& program);
void mnuRussian_Click(Program& program);
void mnuFrench_Click(Program& program);
void mnuGerman_Click(Program& program);

/// The second half of a language switch: catalogues, ability texts, title.
void ReloadAbilityTexts(Program& program);

} // namespace Hesperin
