// The catalogues' tokens as creature files have them: behind their prefix. Each list is made once,
// at its first use, for the life of the process.
#pragma once

#include "catalogue/ability_index.h"
#include "catalogue/spell_catalogue.h"

#include <QString>

#include <array>

namespace Hesperin {

const std::array<QString, Ability::Count + 1>& AbilityTokens();       ///< from 1
const std::array<QString, SpellCount + 1>& SpellTokens();             ///< from 1
const std::array<QString, SpecabilityCount + 1>& SpecabilityTokens(); ///< from 1
const std::array<QString, MasteryCount>& MasteryTokens();             ///< by level, from 0

} // namespace Hesperin
