// What is entered of a creature beside its name and its ticked boxes: numbers in fields and choices
// in lists, with their ranges, entries and initial values.
#pragma once

#include "catalogue/enum_array.h"

#include <QStringView>

#include <cstdint>
#include <span>

namespace Hesperin {

/// The numbers that the formulas take, by the names of the model.
enum class Parameter : std::uint8_t {
    Attack,
    Defence,
    MinDam,
    MaxDam,
    Health,
    Speed,
    Initiative,
    Tier,
    Count
};

/// A range with both ends in it, within which the methods hold.
struct ParameterRange {
    QStringView name;
    std::int16_t lowest;
    std::int16_t highest;
};

// clang-format off
inline constexpr EnumArray<Parameter, ParameterRange> ParameterRanges{{{
    {u"Attack",     1,  50},
    {u"Defence",    1,  50},
    {u"MinDam",     1,  90}, // and never above MaxDam
    {u"MaxDam",     1,  95},
    {u"Health",     1, 400}, // hit points
    {u"Speed",      1,   9},
    {u"Initiative", 1,  20},
    {u"Tier",       1,   8},
}}};
// clang-format on

/// A creature that is upgraded counts 1.6 times a plain one in growth.
inline constexpr float PlainFactor = 1.0F;
inline constexpr float UpgradedFactor = 1.6F;

/// The fields that take whole numbers. The second half goes into the creature's file and into no
/// formula.
enum class NumberField : std::uint8_t {
    Shots,
    Mana,
    Attack,
    Defence,
    Health,
    MinDam,
    MaxDam,
    Power,
    Exp,
    Gold,
    Growth,
    Wood,
    Ore,
    Mercury,
    Crystal,
    Sulfur,
    Gem,
    Count
};

/// The lists of which one entry is chosen.
enum class ListField : std::uint8_t {
    Upgrade,
    Tier,
    FirstElement,
    SecondElement,
    Speed,
    Initiative,
    Faction,  ///< in the user's language
    Alias,    ///< the game's word for the faction
    Range,    ///< in the user's language
    Diapazon, ///< the game's number for the range
    TimeToCommand,
    Count
};

/// Entries that are the same in every language, and the entry chosen in an empty creature.
struct ListEntries {
    std::span<const QStringView> entries; ///< empty: they follow the language
    std::int16_t initial;
};

extern const EnumArray<ListField, ListEntries> ListCatalogue;

} // namespace Hesperin
