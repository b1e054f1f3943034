#include "creature_files/elements.h"

#include <algorithm>
#include <vector>

namespace Hesperin {

namespace {

using enum Says;
using F = NumberField;
using L = ListField;

// clang-format off
constexpr Element Table[] = {
//   name                          parent            says         read field       list              text
    {u"AttackSkill",                {},               Number,      1,   F::Attack},
    {u"DefenceSkill",               {},               Number,      2,   F::Defence},
    {u"Shots",                      {},               Supply,      19,  F::Shots},
    {u"MinDamage",                  {},               Number,      3,   F::MinDam},
    {u"MaxDamage",                  {},               Number,      4,   F::MaxDam},
    {u"Speed",                      {},               ListNumber,  5,   F::Count,   L::Speed},
    {u"Initiative",                 {},               ListNumber,  6,   F::Count,   L::Initiative},
    {u"Flying",                     {},               Flyer,       7},
    {u"Health",                     {},               Number,      8,   F::Health},
    {u"KnownSpells",                {},               KnownSpells, 9},
    {u"SpellPoints",                {},               Supply,      18,  F::Mana},
    {u"SpellPoints1",               {},               Charges},
    {u"SpellPoints2",               {},               Inferno},
    {u"Exp",                        {},               Number,      10,  F::Exp},
    {u"Power",                      {},               Number,      11,  F::Power},
    {u"TimeToCommand",              {},               ListEntry,   17,  F::Count,   L::TimeToCommand},
    {u"CreatureTier",               {},               ListNumber,  12,  F::Count,   L::Tier},
    {u"Upgrade",                    {},               ListFlag,    13,  F::Count,   L::Upgrade},
    {u"PairCreature",               {},               FixedWord,   0,   F::Count,   L::Count,          u"CREATURE_UNKNOWN"},
    {u"CreatureTown",               {},               ListEntry,   14,  F::Count,   L::Alias,          u"TOWN_"},
    {u"First",                      u"MagicElement",  ListEntry,   20,  F::Count,   L::FirstElement,   u"ELEMENT_"},
    {u"Second",                     u"MagicElement",  ListEntry,   21,  F::Count,   L::SecondElement,  u"ELEMENT_"},
    {u"WeeklyGrowth",               {},               Growth,      22,  F::Growth},
    {u"Wood",                       u"Cost",          Number,      23,  F::Wood},
    {u"Ore",                        u"Cost",          Number,      24,  F::Ore},
    {u"Mercury",                    u"Cost",          Number,      25,  F::Mercury},
    {u"Crystal",                    u"Cost",          Number,      26,  F::Crystal},
    {u"Sulfur",                     u"Cost",          Number,      27,  F::Sulfur},
    {u"Gem",                        u"Cost",          Number,      28,  F::Gem},
    {u"Gold",                       u"Cost",          Number,      29,  F::Gold},
    {u"SubjectOfRandomGeneration",  {},               FixedFlag,   0,   F::Count,   L::Count,          u"true"},
    {u"MonsterShared",              {},               Shared,      31},
    {u"CombatSize",                 {},               Size,        15},
    {u"PatternAttack",              {},               FixedEmpty},
    {u"flybySequence",              {},               FixedEmpty},
    {u"Visual",                     {},               Visual},
    {u"Range",                      {},               ListEntry,   16,  F::Count,   L::Diapazon},
    {u"BaseCreature",               {},               FixedWord,   0,   F::Count,   L::Count,          u"CREATURE_UNKNOWN"},
    {u"Upgrades",                   {},               FixedEmpty},
    {u"Abilities",                  {},               Abilities,   30},
};

constexpr EnumArray<Parameter, QStringView> ParameterElements{{{
    u"AttackSkill", u"DefenceSkill", u"MinDamage", u"MaxDamage", u"Health", u"Speed",
    u"Initiative", u"CreatureTier",
}}};
// clang-format on

} // namespace

const std::span<const Element> Elements(Table);

QString PathOf(const Element& element) {
    return element.parent.isEmpty() ? element.name.toString()
                                    : element.parent.toString() + u'/' + element.name.toString();
}

const Element* ElementAt(QStringView path) {
    const qsizetype slash = path.lastIndexOf(u'/');
    const QStringView name = path.sliced(slash + 1);
    const QStringView parent = path.first(std::max<qsizetype>(slash, 0));
    const auto* found =
        std::find_if(std::begin(Table), std::end(Table), [&](const Element& element) {
            return element.name == name && element.parent == parent;
        });
    return found == std::end(Table) ? nullptr : found;
}

QStringView ElementOf(Parameter parameter) {
    return ParameterElements[parameter];
}

std::optional<Parameter> ParameterIn(QStringView element) {
    for (std::size_t i = 0; i < ParameterElements.items.size(); ++i)
        if (ParameterElements.items[i] == element)
            return static_cast<Parameter>(i);
    return std::nullopt;
}

std::span<const Element* const> ElementsToRead() {
    static const std::vector<const Element*> order = [] {
        std::vector<const Element*> read;
        for (const Element& element : Table)
            if (element.readAs > 0)
                read.push_back(&element);
        std::stable_sort(read.begin(), read.end(),
                         [](const Element* a, const Element* b) { return a->readAs < b->readAs; });
        return read;
    }();
    return order;
}

} // namespace Hesperin
