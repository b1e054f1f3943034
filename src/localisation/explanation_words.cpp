#include "localisation/explanation_words.h"

#include <algorithm>
#include <iterator>

namespace Hesperin {

namespace {

// clang-format off
constexpr EnumArray<Chapter, Texts> Chapters{{{
    /* Corrected     */ {u"Corrected",                          u"Исправлено"},
    /* Entered       */ {u"What goes in",                       u"Исходные данные"},
    /* Abilities     */ {u"The values of the abilities, multiplied", u"Произведение значений способностей"},
    /* RolvanePower  */ {u"Power by Rolvane",                   u"Сила по Rolvane'у"},
    /* HesperinPower */ {u"Power by Hesperin",                  u"Сила по Hesperin'ю"},
    /* Experience    */ {u"Experience",                         u"Опыт"},
    /* Growth        */ {u"Weekly growth",                      u"Прирост за неделю"},
    /* Gold          */ {u"Gold",                               u"Золото"},
    /* Averages      */ {u"Averages",                           u"Средние значения"},
    /* AdvisedTier   */ {u"Advised tier",                       u"Рекомендуемый уровень"},
    /* OneMore       */ {u"What one more adds to the average Power", u"Сколько средней силы добавит ещё единица"},
}}};

constexpr StepWords Steps[] = {
    {"product",              Chapter::Abilities,     {u"Product",                              u"Произведение"}},
    {"damage_sum",           Chapter::RolvanePower,  {u"Damage, both ends",                    u"Урон, минимум и максимум"}},
    {"offence_score",        Chapter::RolvanePower,  {u"Offence: attack and mean damage",      u"Удар: нападение и средний урон"}},
    {"defence_score",        Chapter::RolvanePower,  {u"Defence and health",                   u"Стойкость: защита и здоровье"}},
    {"rolvane_offence",      Chapter::RolvanePower,  {u"Factor of offence",                    u"Множитель удара"}},
    {"rolvane_defence",      Chapter::RolvanePower,  {u"Factor of defence",                    u"Множитель стойкости"}},
    {"rolvane_speed",        Chapter::RolvanePower,  {u"Factor of speed",                      u"Множитель скорости"}},
    {"rolvane_initiative",   Chapter::RolvanePower,  {u"Factor of initiative",                 u"Множитель инициативы"}},
    {"power_rolvane",        Chapter::RolvanePower,  {u"Power: all factors, product, 50",      u"Сила: множители, произведение, 50"}},
    {"hesperin_attack",      Chapter::HesperinPower, {u"Factor of attack",                     u"Множитель нападения"}},
    {"hesperin_defence",     Chapter::HesperinPower, {u"Factor of defence",                    u"Множитель защиты"}},
    {"hesperin_square",      Chapter::HesperinPower, {u"Under the root",                       u"Под корнем"}},
    {"power_hesperin",       Chapter::HesperinPower, {u"Power",                                u"Сила"}},
    {"exp_divisor",          Chapter::Experience,    {u"Divisor of tier %1",                   u"Делитель уровня %1"}},
    {"exp_rolvane",          Chapter::Experience,    {u"By Rolvane",                           u"По Rolvane'у"}},
    {"exp_hesperin",         Chapter::Experience,    {u"By Hesperin",                          u"По Hesperin'ю"}},
    {"growth_base",          Chapter::Growth,        {u"Growth base of tier %1",               u"Основа прироста уровня %1"}},
    {"both_numerators",      Chapter::Growth,        {u"Plain and upgraded together",          u"Обычное и улучшенное вместе"}},
    {"growth_numerator",     Chapter::Growth,        {u"Base by the upgrade factor",           u"Основа с учётом улучшения"}},
    {"growth_rolvane",       Chapter::Growth,        {u"By Rolvane",                           u"По Rolvane'у"}},
    {"growth_hesperin",      Chapter::Growth,        {u"By Hesperin: half of both",            u"По Hesperin'ю: от половины суммы"}},
    {"gold_per_power",       Chapter::Gold,          {u"Gold for one Power at tier %1",        u"Золота за единицу силы, уровень %1"}},
    {"gold_for_rolvane",     Chapter::Gold,          {u"For the Power by Rolvane",             u"За силу по Rolvane'у"}},
    {"gold_for_hesperin",    Chapter::Gold,          {u"For the Power by Hesperin",            u"За силу по Hesperin'ю"}},
    {"cost_rolvane",         Chapter::Gold,          {u"By Rolvane: mean of the two",          u"По Rolvane'у: среднее из двух"}},
    {"gold_base",            Chapter::Gold,          {u"Gold base of tier %1",                 u"Основа цены уровня %1"}},
    {"cost_divisor",         Chapter::Gold,          {u"Divisor",                              u"Делитель"}},
    {"cost_divisor_taken",   Chapter::Gold,          {u"A divisor of 0 counts as",             u"Делитель 0 считается как"}},
    {"cost_hesperin_double", Chapter::Gold,          {u"Gold base by half the divisor",        u"Основа цены на половину делителя"}},
    {"cost_hesperin",        Chapter::Gold,          {u"By Hesperin: half of that",            u"По Hesperin'ю: половина этого"}},
    {"power_average",        Chapter::Averages,      {u"Power",                                u"Сила"}},
    {"exp_average",          Chapter::Averages,      {u"Experience",                           u"Опыт"}},
    {"growth_average",       Chapter::Averages,      {u"Growth",                               u"Прирост"}},
    {"cost_average",         Chapter::Averages,      {u"Gold",                                 u"Золото"}},
    {"tier_reference_power", Chapter::AdvisedTier,   {u"Usual Power at tier %1",               u"Обычная сила на уровне %1"}},
    {"power_ratio",          Chapter::AdvisedTier,   {u"Average Power to that",                u"Средняя сила к ней"}},
    {"advised_tier",         Chapter::AdvisedTier,   {u"Advised tier",                         u"Рекомендуемый уровень"}},
};

constexpr EnumArray<Phrase, Texts> Phrases{{{
    /* Head               */ {u"%1, tier %2",                          u"%1, уровень %2"},
    /* HeadUpgraded       */ {u"%1, tier %2, upgraded",                u"%1, уровень %2, улучшенное"},
    /* Upgraded           */ {u"Upgraded",                             u"Улучшенное"},
    /* Shooter            */ {u"Shooter",                              u"Стрелок"},
    /* Yes                */ {u"yes",                                  u"да"},
    /* No                 */ {u"no",                                   u"нет"},
    /* AllowedFrom        */ {u"%1 or more is allowed",                u"допустимо от %1"},
    /* Allowed            */ {u"%1 to %2 is allowed",                  u"допустимо от %1 до %2"},
    /* NotAboveMax        */ {u"not above the max damage",             u"не больше максимального урона"},
    /* NoAbility          */ {u"No ability is ticked",                 u"Ни одна способность не отмечена"},
    /* ExponentsOfShooter */ {u"Exponents of a shooter",               u"Показатели степени для стрелка"},
    /* ExponentsOfOthers  */ {u"Exponents of a fighter",               u"Показатели степени для бойца"},
    /* OneInsteadOfLess   */ {u"less than 0.51 counts as 1",           u"меньше 0.51 считается как 1"},
    /* ZeroInsteadOfOne   */ {u"from 0.51 up to 1 counts as 0",        u"от 0.51 до 1 считается как 0"},
    /* LimitedTo16Bits    */ {u"32767 at most",                        u"не больше 32767"},
    /* NoPower            */ {u"It is 0, so that neither Experience, Growth and Gold nor averages can be computed.", u"Она равна нулю, поэтому опыт, прирост, золото и средние значения вычислить нельзя."},
    /* GrowthFixed        */ {u"By both methods, fixed at tier %1",    u"По обоим методам, постоянный на уровне %1"},
    /* Band               */ {u"Its band of average Power",            u"Его полоса средней силы"},
    /* BandFromTo         */ {u"%1 to %2; %3 is %4% of the way",       u"от %1 до %2; %3 — это %4% пути"},
    /* BandFrom           */ {u"%1 and more",                          u"от %1"},
    /* ToNextTier         */ {u"To tier %1",                           u"До уровня %1"},
    /* MoreNeeded         */ {u"%1 more Power",                        u"ещё %1 силы"},
    /* Highest            */ {u"%1 is the most allowed",               u"больше %1 нельзя"},
    /* Average            */ {u"%1, average Power %2",                 u"%1, средняя сила %2"},
    /* NoAverage          */ {u"%1, no average Power",                 u"%1, средней силы нет"},
    /* InFiguresOfMod     */ {u", in the figures of the mod",          u", в масштабе мода"},
    /* ComputedFigures    */ {u", as computed, without the scale of the mod", u", как вычислено, без масштаба мода"},
    /* WantedPower        */ {u"Wanted: Power %1",                     u"Нужна сила %1"},
    /* WantedTier         */ {u"Wanted: tier %1, average Power %2 to %3", u"Нужен уровень %1, средняя сила от %2 до %3"},
    /* WantedHighestTier  */ {u"Wanted: tier %1, average Power from %2",  u"Нужен уровень %1, средняя сила от %2"},
    /* Exactly            */ {u"exactly with %1",                      u"ровно столько при %1"},
    /* Nearest            */ {u"not exactly: %1 gives %2, %3 gives %4", u"ровно не выходит: %1 даёт %2, %3 даёт %4"},
    /* AtMost             */ {u"out of reach: %1 gives %2, the most",  u"недостижимо: самое большее %2 при %1"},
    /* AtLeast            */ {u"out of reach: %1 gives %2, the least", u"недостижимо: самое меньшее %2 при %1"},
    /* Nothing            */ {u"no value gives any Power",             u"ни одно значение силы не даёт"},
}}};

constexpr EnumArray<Correction::What, Texts> Fields{{{
    /* Mana        */ {u"Mana",       u"Мана"},
    /* Shots       */ {u"Shots",      u"Выстрелы"},
    /* Attack      */ {u"Attack",     u"Нападение"},
    /* Defence     */ {u"Defence",    u"Защита"},
    /* Health      */ {u"Health",     u"Ед. жизни"},
    /* MinDam      */ {u"Min damage", u"Мин. урон"},
    /* MaxDam      */ {u"Max damage", u"Макс. урон"},
    /* DamageOrder */ {u"Min damage", u"Мин. урон"},
    /* Speed       */ {u"Speed",      u"Скорость"},
    /* Initiative  */ {u"Initiative", u"Инициатива"},
    /* Tier        */ {u"Tier",       u"Уровень"},
}}};
// clang-format on

/// English where the language has none.
QString TextIn(std::uint8_t languageId, const Texts& texts) {
    const char16_t* text = texts.at(languageId - 1U);
    return QString::fromUtf16(text == nullptr ? texts.front() : text);
}

} // namespace

const StepWords* WordsOfStep(const QString& id) {
    const auto* step = std::find_if(std::begin(Steps), std::end(Steps), [&id](const StepWords& s) {
        return id == QLatin1String(s.id);
    });
    return step == std::end(Steps) ? nullptr : step;
}

QString PhraseIn(std::uint8_t languageId, Phrase phrase) {
    return TextIn(languageId, Phrases[phrase]);
}

QString ChapterIn(std::uint8_t languageId, Chapter chapter) {
    return TextIn(languageId, Chapters[chapter]);
}

QString StepIn(std::uint8_t languageId, const StepWords& step) {
    return TextIn(languageId, step.words);
}

QString ParameterIn(std::uint8_t languageId, Parameter parameter) {
    auto what = Correction::What::Mana;
    while (ParameterOf(what) != parameter)
        what = static_cast<Correction::What>(static_cast<int>(what) + 1);
    return CorrectedIn(languageId, what);
}

QString CorrectedIn(std::uint8_t languageId, Correction::What what) {
    return TextIn(languageId, Fields[what]);
}

} // namespace Hesperin
