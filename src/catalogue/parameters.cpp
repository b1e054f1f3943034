#include "catalogue/parameters.h"

namespace Hesperin {

namespace {

constexpr QStringView Numbers[] = {u"1",  u"2",  u"3",  u"4",  u"5",  u"6",  u"7",
                                   u"8",  u"9",  u"10", u"11", u"12", u"13", u"14",
                                   u"15", u"16", u"17", u"18", u"19", u"20"};

constexpr QStringView Truths[] = {u"False", u"True"};
constexpr QStringView Elements[] = {u"None", u"Air", u"Earth", u"Fire", u"Water"};
constexpr QStringView Towns[] = {u"HEAVEN",  u"INFERNO",  u"NECROMANCY", u"PRESERVE", u"DUNGEON",
                                 u"ACADEMY", u"FORTRESS", u"STRONGHOLD", u"NO_TYPE"};
constexpr QStringView RangeNumbers[] = {u"0", u"-1", u"-2"};
constexpr QStringView Times[] = {u"10", u"15"};

constexpr std::span<const QStringView> NumbersTo(Parameter last) {
    return std::span(Numbers).first(static_cast<std::size_t>(ParameterRanges[last].highest));
}

} // namespace

// clang-format off
const EnumArray<ListField, ListEntries> ListCatalogue{{{
    /* Upgrade       */ {Truths,                           0},
    /* Tier          */ {NumbersTo(Parameter::Tier),       0},
    /* FirstElement  */ {Elements,                         0},
    /* SecondElement */ {Elements,                         0},
    /* Speed         */ {NumbersTo(Parameter::Speed),      4},
    /* Initiative    */ {NumbersTo(Parameter::Initiative), 9},
    /* Faction       */ {{},                               8},
    /* Alias         */ {Towns,                            8},
    /* Range         */ {{},                               0},
    /* Diapazon      */ {RangeNumbers,                     0},
    /* TimeToCommand */ {Times,                            0},
}}};
// clang-format on

} // namespace Hesperin
