#include "reports/finding.h"

namespace Hesperin {

namespace {

// clang-format off
constexpr auto Rules = [] {
    using enum Severity;
    return std::array<RuleRow, static_cast<std::size_t>(Rule::Count)>{{
    {"document",          Error,
     {u"the file can't be read as a creature",                      u"файл не читается как файл существа"},
     {}},
    {"element.missing",   Error,
     {u"an element of the format is missing",                       u"в файле не хватает элемента"},
     {u"%1",                                                        u"%1"}},
    {"element.twice",     Error,
     {u"the element stands here a second time",                     u"элемент записан повторно"},
     {u"once",                                                      u"один раз"}},
    {"number",            Error,
     {u"this is no whole number",                                   u"это не целое число"},
     {u"a whole number",                                            u"целое число"}},
    {"number.range",      Warning,
     {u"outside the range in which the formulas hold",              u"вне диапазона, в котором верны формулы"},
     {u"%1 to %2",                                                  u"от %1 до %2"}},
    {"number.order",      Error,
     {u"the least damage is above the greatest",                    u"минимальный урон больше максимального"},
     {u"at most %1",                                                u"не больше %1"}},
    {"figure.zero",       Warning,
     {u"the figure is 0",                                           u"показатель равен 0"},
     {u"above 0",                                                   u"больше 0"}},
    {"token.ability",     Error,
     {u"neither the game nor the mod has such an ability",          u"такой способности нет ни в игре, ни в моде"},
     {u"%1",                                                        u"%1"}},
    {"token.spell",       Error,
     {u"neither the game nor the mod has such a spell",             u"такого заклинания нет ни в игре, ни в моде"},
     {u"%1",                                                        u"%1"}},
    {"token.specability", Error,
     {u"neither the game nor the mod has such a special ability",   u"такой особой способности нет ни в игре, ни в моде"},
     {u"%1",                                                        u"%1"}},
    {"token.twice",       Warning,
     {u"the same item stands in the list twice",                    u"в списке дважды стоит одно и то же"},
     {u"once",                                                      u"один раз"}},
    {"element.same",      Warning,
     {u"both magic elements are the same",                          u"обе магические стихии одинаковы"},
     {u"another element, or ELEMENT_NONE",                          u"другая стихия или ELEMENT_NONE"}},
    {"caster.mana",       Warning,
     {u"spells without mana",                                       u"заклинания есть, а маны нет"},
     {u"above 0",                                                   u"больше 0"}},
    {"caster.spells",     Warning,
     {u"mana without spells",                                       u"мана есть, а заклинаний нет"},
     {u"0, or spells in KnownSpells",                               u"0 или заклинания в KnownSpells"}},
    {"shooter.range",     Warning,
     {u"a range on a creature without shots",                       u"дальность у существа без выстрелов"},
     {u"0, or Shots above 0",                                       u"0 или Shots больше 0"}},
    {"nature",            Warning,
     {u"a second nature",                                           u"вторая природа у одного существа"},
     {u"only %1",                                                   u"только %1"}},
    {"upgrade.weaker",    Warning,
     {u"the upgrade isn't stronger than its base, by average Power",
      u"улучшение не сильнее базового существа по средней силе"},
     {u"above %1",                                                  u"больше %1"}},
    {"figure.outlier",    Note,
     {u"Power is more than 25 % off the scale of its tier",         u"сила более чем на 25 % расходится с масштабом уровня"},
     {u"about %1",                                                  u"около %1"}},
    {"link",              Error,
     {u"the reference leads nowhere",                               u"ссылка никуда не ведёт"},
     {u"a file of the mod or the game",                             u"файл мода или игры"}},
}};
}();
// clang-format on

static_assert(Rules.back().name != nullptr, "a row a rule");

} // namespace

const std::span<const RuleRow> RuleRows(Rules);

} // namespace Hesperin
