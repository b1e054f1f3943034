#pragma once

#include "game_texts/ability_texts.h"

#include <QJsonObject>

#include <vector>

namespace Hesperin {

/// Name and description of every ability, from 1.
using AllAbilityWords = std::array<AbilityWords, Ability::Count + 1>;

/// The abilities, rising from 1, in whose token, name or description each of the words of `text`
/// stands, in any order; all when it has none. Letter case doesn't count, nor does ё against е.
std::vector<int> FindAbilities(const QString& text, const AllAbilityWords& words);

/// A line for each of the abilities: index, token, value and, where it is known, name.
QString FoundTable(const std::vector<int>& found, const AllAbilityWords& words);

/// One of them as an object.
QJsonObject FoundJson(int ability, const AbilityWords& words);

} // namespace Hesperin
