#include "reports/column_words.h"

#include "catalogue/enum_array.h"

namespace Hesperin {

namespace {

// clang-format off
constexpr EnumArray<Column, Texts> Words{{{
    /* File                 */ {u"File",               u"Файл"},
    /* Name                 */ {u"Name",               u"Название"},
    /* Town                 */ {u"Town",               u"Город"},
    /* CreatureTier         */ {u"Tier",               u"Уровень"},
    /* Upgrade              */ {u"Upgrade",            u"Улучшение"},
    /* AttackSkill          */ {u"Attack",             u"Нападение"},
    /* DefenceSkill         */ {u"Defence",            u"Защита"},
    /* MinDamage            */ {u"Min damage",         u"Мин. урон"},
    /* MaxDamage            */ {u"Max damage",         u"Макс. урон"},
    /* Health               */ {u"Health",             u"Жизнь"},
    /* Speed                */ {u"Speed",              u"Скорость"},
    /* Initiative           */ {u"Initiative",         u"Инициатива"},
    /* Shots                */ {u"Shots",              u"Выстрелы"},
    /* SpellPoints          */ {u"Mana",               u"Мана"},
    /* Range                */ {u"Range",              u"Дальность"},
    /* Power                */ {u"Power",              u"Сила"},
    /* Exp                  */ {u"Experience",         u"Опыт"},
    /* WeeklyGrowth         */ {u"Growth",             u"Прирост"},
    /* Gold                 */ {u"Gold",               u"Золото"},
    /* Abilities            */ {u"Abilities",          u"Способности"},
    /* RolvanePower         */ {u"Power, Rolvane",     u"Сила, Rolvane"},
    /* HesperinPower        */ {u"Power, Hesperin",    u"Сила, Hesperin"},
    /* AveragePower         */ {u"Power computed",     u"Сила вычисл."},
    /* RolvaneExp           */ {u"Exp., Rolvane",      u"Опыт, Rolvane"},
    /* HesperinExp          */ {u"Exp., Hesperin",     u"Опыт, Hesperin"},
    /* AverageExp           */ {u"Exp. computed",      u"Опыт вычисл."},
    /* RolvaneWeeklyGrowth  */ {u"Growth, Rolvane",    u"Прирост, Rolvane"},
    /* HesperinWeeklyGrowth */ {u"Growth, Hesperin",   u"Прирост, Hesperin"},
    /* AverageWeeklyGrowth  */ {u"Growth computed",    u"Прирост вычисл."},
    /* RolvaneGold          */ {u"Gold, Rolvane",      u"Золото, Rolvane"},
    /* HesperinGold         */ {u"Gold, Hesperin",     u"Золото, Hesperin"},
    /* AverageGold          */ {u"Gold computed",      u"Золото вычисл."},
    /* Product              */ {u"Product",            u"Произведение"},
    /* Advised              */ {u"Advised tier",       u"Реком. уровень"},
    /* Scale                */ {u"Scale",              u"Масштаб"},
    /* Deviation            */ {u"Deviation %",        u"Отклонение %"},
    /* Problem              */ {u"Problem",            u"Ошибка"},
}}};
// clang-format on

} // namespace

QString ColumnWords(Column column, std::uint8_t languageId) {
    const Texts& texts = Words[column];
    const char16_t* words = texts.at(languageId - 1U);
    return QString::fromUtf16(words != nullptr ? words : texts.front());
}

} // namespace Hesperin
