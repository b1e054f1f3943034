// A creature as it was entered: the texts of its fields, its choices and its ticks. What the window
// edits, files are read into and histories are made of.
#pragma once

#include "catalogue/ability_index.h"
#include "catalogue/parameters.h"
#include "catalogue/spell_catalogue.h"

#include <QString>

namespace Hesperin {

/// Truth value held in 16 bits.
inline constexpr std::int16_t FlagTrue = -1;
inline constexpr std::int16_t FlagFalse = 0;

/// What a list shows. The text need not be the entry: a file may hold any number.
struct Choice {
    std::int16_t index = -1; ///< entry chosen, -1 for none
    QString text;            ///< empty for Faction and Range, whose words follow the language

    bool operator==(const Choice&) const = default;
};

/// A spell or a special ability.
struct Skill {
    bool known = false;
    std::int16_t mastery = 0; ///< 0 to 4; 0 while it isn't known

    bool operator==(const Skill&) const = default;
};

/// Of a creature that nobody has given one.
inline constexpr QStringView DefaultCreatureName = u"Test";

struct Creature {
    QString Name;
    QString Id; ///< its number in the creature-extension project TCX
    EnumArray<NumberField, QString> Numbers;
    EnumArray<ListField, Choice> Choices;
    std::array<bool, Ability::Count + 1> Abilities{}; ///< from 1
    std::array<Skill, SpellCount + 1> Spells{};       ///< from 1
    std::array<Skill, SpecabilityCount + 1>
        Specabilities{};                      ///< from 1; the inert one at 0 never is
    std::int16_t SpellPoints1Count = 0;       ///< charge counter of the box rules
    std::int16_t SpecabilityFlag = FlagFalse; ///< -1 after a tick, 0 after an untick

    bool operator==(const Creature&) const = default;

    bool Has(int ability) const { return Abilities[static_cast<std::size_t>(ability)]; }
    void Set(int ability, bool ticked) { Abilities[static_cast<std::size_t>(ability)] = ticked; }

    /// Chooses the entry `index`, which the list must have. Of a list that follows the language the
    /// index alone is kept.
    void Choose(ListField list, std::int16_t index);
};

/// The figures that a creature file holds; 0 for those that it lacks.
struct FileFigures {
    std::int16_t FilePower = 0;
    std::int16_t FileExperience = 0;
    std::int16_t FileGrowth = 0;
    std::int16_t FileGold = 0;

    bool operator==(const FileFigures&) const = default;
};

/// A creature of which nothing has been entered yet: initial choices, the number fields at 0.
Creature EmptyCreature();

/// 2 for each linked pair and 1 for each one-sided ability and special ability that the creature
/// has: what the charge counter is as long as no change of language has set it to 0 in between.
std::int16_t ChargesOf(const Creature& creature);

} // namespace Hesperin
