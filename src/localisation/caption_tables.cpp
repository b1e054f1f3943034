#include "localisation/captions.h"

#include <QHash>

namespace Hesperin {

namespace {

// clang-format off
//                        English, Russian, French, German
constexpr CaptionRow Captions[] = {
    // Menus
    {"mnuFile",                       {u"File",               u"Файл",                 u"Fichier",      u"Datei"}},
    {"mnuNew",                        {u"New",                u"Создать",              u"Nouveau",      u"Neue"}},
    {"mnuOpen",                       {u"Open...",            u"Открыть...",           u"Ouvrir...",    u"Цffnen..."}},
    {"mnuSave",                       {u"Save",               u"Сохранить",            u"Sauvegarder",  u"Speichern"}},
    {"mnuUpdate",                     {u"Update",             u"Обновить",             nullptr,         nullptr}},
    {"mnuQuit",                       {u"Quit",               u"Выход",                u"Quitter",      u"Beenden"}},
    {"mnuOptions",                    {u"Options",            u"Опции",                u"Options",      u"Optionen"}},
    {"mnuCalculator",                 {u"Calculator",         u"Калькулятор",          u"Calculatrice", u"Rechner"}},
    {"mnuHighContrast",               {u"High contrast",      u"Высокая контрастность", nullptr,       nullptr}},
    {"mnuLanguage",                   {u"Language",           u"Язык",                 u"Langue",       u"Sprache"}},
    {"mnuInfo",                       {u"Info",               u"Справка",              u"Info",         u"Info"}},
    {"mnuHelp",                       {u"Help",               u"Помощь",               u"Aide",         u"Hilfe"}},
    {"mnuAbout",                      {u"About...",           u"О программе...",       u"A propos...",  u"Ьber programm..."}},
    {"mnuEdit",                       {u"Edit",               u"Правка",               nullptr,         nullptr}},
    {"mnuUndo",                       {u"Undo",               u"Отменить",             nullptr,         nullptr}},
    {"mnuRedo",                       {u"Redo",               u"Вернуть",              nullptr,         nullptr}},
    {"mnuFindAbility",                {u"Find ability…",      u"Найти способность…"  , nullptr,         nullptr}},
    {"mnuBalance",                    {u"Balance",            u"Баланс",               nullptr,         nullptr}},
    {"mnuSurvey",                     {u"Survey…",            u"Обзор…",               nullptr,         nullptr}},
    {"mnuExplain",                    {u"How was this computed?", u"Как это получено?", nullptr,        nullptr}},
    {"mnuSolve",                      {u"Solve…",             u"Подобрать…",           nullptr,         nullptr}},
    {"mnuTakeOver",                   {u"Take over computed", u"Взять вычисленное",    nullptr,         nullptr}},
    {"mnuTakeOverByScale",            {u"Take over by the mod's scale", u"Брать в масштабе мода", nullptr, nullptr}},
    {"mnuAlternativeMethod",          {u"Alternative method", u"Альтернативный метод", nullptr,         nullptr}},

    // Frames
    {"FrameAttack",               {u"Attack",               u"Нападение",             u"Атака",      u"Angriff"}},
    {"FrameDefence",              {u"Defence",              u"Защита",                u"Защита",     u"Verteidigung"}},
    {"FrameDamage",               {u"Damage",               u"Урон",                  u"Урон",       u"Урон"}},
    {"FrameSpeed",                {u"Speed",                u"Скорость",              u"Скорость",   u"Скорость"}},
    {"FrameInitiative",           {u"Initiative",           u"Инициатива",            u"Инициатива", u"Инициатива"}},
    {"FrameHealth",               {u"Health",               u"Ед. жизни",             u"Ед. жизни",  u"Ед. жизни"}},
    {"FrameTier",                 {u"Tier",                 u"Уровень",               u"Уровень",    u"Уровень"}},
    {"FrameShots",                {u"Shots",                u"Выстрелы",              u"Выстрелы",   u"Выстрелы"}},
    {"FrameMana",                 {u"Mana",                 u"Мана",                  u"Мана",       u"Мана"}},
    {"FrameRange",                {u"Range",                u"Дальность",             nullptr,       nullptr}},
    {"FrameTTC",                  {u"Time to command",      u"Время приказа",         nullptr,       nullptr}},
    {"frmMM",                     {u"Main method",          u"Основной метод ",       nullptr,       nullptr}},
    {"frmAM",                     {u"Alternative method",   u"Альтернативный метод ", nullptr,       nullptr}},
    {"FramePower",                {u"Power",                u"Сила",                  nullptr,       nullptr}},
    {"FrameExperience",           {u"Experience",           u"Опыт",                  nullptr,       nullptr}},
    {"FrameGrowth",               {u"Growth",               u"Прирост",               nullptr,       nullptr}},
    {"FrameCost",                 {u"Gold",                 u"Золото",                nullptr,       nullptr}},
    {"FramePowerX",               {u"Power",                u"Сила",                  nullptr,       nullptr}},
    {"FrameExperienceX",          {u"Experience",           u"Опыт",                  nullptr,       nullptr}},
    {"FrameGrowthX",              {u"Growth",               u"Прирост",               nullptr,       nullptr}},
    {"FrameCostX",                {u"Gold",                 u"Золото",                nullptr,       nullptr}},
    {"FramePowerA",               {u"Power",                u"Сила",                  nullptr,       nullptr}},
    {"FrameExperienceA",          {u"Experience",           u"Опыт",                  nullptr,       nullptr}},
    {"FrameGrowthA",              {u"Growth",               u"Прирост",               nullptr,       nullptr}},
    {"FrameCostA",                {u"Gold",                 u"Золото",                nullptr,       nullptr}},
    {"FramePowerD",               {u"Power",                u"Сила",                  nullptr,       nullptr}},
    {"FrameExperienceD",          {u"Experience",           u"Опыт",                  nullptr,       nullptr}},
    {"FrameGrowthD",              {u"Growth",               u"Прирост",               nullptr,       nullptr}},
    {"FrameCostD",                {u"Gold",                 u"Золото",                nullptr,       nullptr}},
    {"FramePowerS",               {u"Power",                u"Сила",                  nullptr,       nullptr}},
    {"FrameExperienceS",          {u"Experience",           u"Опыт",                  nullptr,       nullptr}},
    {"FrameGrowthS",              {u"Growth",               u"Прирост",               nullptr,       nullptr}},
    {"FrameCostS",                {u"Gold",                 u"Золото",                nullptr,       nullptr}},
    {"FramePowerf",               {u"Power",                u"Сила",                  nullptr,       nullptr}},
    {"FrameExpf",                 {u"Experience",           u"Опыт",                  nullptr,       nullptr}},
    {"FrameGrowthf",              {u"Growth",               u"Прирост",               nullptr,       nullptr}},
    {"FrameCostf",                {u"Gold",                 u"Золото",                nullptr,       nullptr}},
    {"FrameWoodf",                {u"Wood",                 u"Древесина",             nullptr,       nullptr}},
    {"FrameOref",                 {u"Ore",                  u"Руда",                  nullptr,       nullptr}},
    {"FrameMercuryf",             {u"Mercury",              u"Ртуть",                 nullptr,       nullptr}},
    {"FrameCrystalf",             {u"Crystal",              u"Кристаллы",             nullptr,       nullptr}},
    {"FrameSulfurf",              {u"Sulfur",               u"Сера",                  nullptr,       nullptr}},
    {"FrameGemf",                 {u"Gem",                  u"Самоцветы",             nullptr,       nullptr}},
    {"FrameFaction",              {u"Faction",              u"Фракция",               nullptr,       nullptr}},
    {"FrameFME",                  {u"First Magic Element",  u"Первый магич. элемент", nullptr,       nullptr}},
    {"FrameSME",                  {u"Second Magic Element", u"Второй магич. элемент", nullptr,       nullptr}},
    {"FrameNC",                   {u"Name",                 u"Название",              nullptr,       nullptr}},
    {"FrameIDC",                  {u"ID in TCX",            u"Идентификатор в TCX",   nullptr,       nullptr}},
    {"FrameStanding",             {u"In the mod",         u"В моде",                nullptr,      nullptr}},
    {"FrameUpgrade",              {u"Upgrade",              u"Улучшение",             nullptr,       nullptr}},

    // Labels
    {"lblMax",              {u"max",                  u"макс.",                    nullptr, nullptr}},
    {"lblMin",              {u"min",                  u"мин.",                     nullptr, nullptr}},
    {"lblValues",           {u"Values by Rolvane",    u"Значения по Rolvane'у",    nullptr, nullptr}},
    {"lblValuesX",          {u"Values by Hesperin",   u"Значения по Hesperin'ю",   nullptr, nullptr}},
    {"lblValuesS",          {u"Values by Quintarell", u"Значения по Quintarell'у", nullptr, nullptr}},
    {"lblValuesD",          {u"Values by Bravik",     u"Значения по Bravik'у",     nullptr, nullptr}},
    {"lblValuesA",          {u"Average values",       u"Усреднённые значения",     nullptr, nullptr}},

    // Buttons
    {"cmdCalc",              {u"Calculate ",            u"Рассчёт ",                  nullptr, nullptr}},
    {"cmdRAA",               {u"Reset all abilities ",  u"Сброс всех способностей ",  nullptr, nullptr}},
    {"cmdRAP",               {u"Reset all parametres ", u"Сброс всех характеристик ", nullptr, nullptr}},
    {"cmdRAS",               {u"Reset all spells ",     u"Сброс всех заклинаний ",    nullptr, nullptr}},
    {"cmdResetAll",          {u"Reset all ",            u"Сбросить всё ",             nullptr, nullptr}},
};

constexpr Texts Pages[] = {
    /* 0 */ {u"Parametres",    u"Характеристики",     u"Parametres", u"Parametres"},
    /* 1 */ {u"Abilities",     u"Способности",        u"Capacites",  u"Fдhigkeiten"},
    /* 2 */ {u"Spells",        u"Заклинания",         u"Заклинания", u"Заклинания"},
    /* 3 */ {u"Specabilities", u"Особые способности", nullptr,       nullptr},
};

constexpr Texts Factions[] = {
    /* 0 */ {u"Haven",      u"Орден Порядка",       nullptr, nullptr},
    /* 1 */ {u"Inferno",    u"Инферно",             nullptr, nullptr},
    /* 2 */ {u"Necropolis", u"Некрополис",          nullptr, nullptr},
    /* 3 */ {u"Sylvan",     u"Лесной Союз",         nullptr, nullptr},
    /* 4 */ {u"Dungeon",    u"Лига Теней",          nullptr, nullptr},
    /* 5 */ {u"Academy",    u"Академия Волшебства", nullptr, nullptr},
    /* 6 */ {u"Fortress",   u"Подгорный народ",     nullptr, nullptr},
    /* 7 */ {u"Stronghold", u"Великая орда",        nullptr, nullptr},
    /* 8 */ {u"Unknown",    u"Неизвестно",          nullptr, nullptr},
};

constexpr Texts Ranges[] = {
    /* 0 */ {u"None", u"нет",   nullptr, nullptr},
    /* 1 */ {u"Max",  u"макс.", nullptr, nullptr},
    /* 2 */ {u"Half", u"1/2",   nullptr, nullptr},
};

// clang-format on

} // namespace

const std::span<const CaptionRow> CaptionRows(Captions);
const std::span<const Texts> PageRows(Pages);
const std::span<const Texts> FactionRows(Factions);
const std::span<const Texts> RangeRows(Ranges);

const Texts AverageToolTip{u"Average values (by Rolvane and Hesperin)",
                           u"Усреднённые значения (по Rolvane'у и Hesperin'ю)", nullptr, nullptr};

const Texts* CaptionsOf(QLatin1String control) {
    static const QHash<QLatin1String, const Texts*> known = [] {
        QHash<QLatin1String, const Texts*> rows;
        for (const CaptionRow& row : Captions)
            rows.insert(QLatin1String(row.control), &row.texts);
        return rows;
    }();
    return known.value(control);
}

QString CaptionIn(std::uint8_t languageId, QLatin1String control) {
    const Texts* texts = CaptionsOf(control);
    return texts == nullptr ? QString() : QString::fromUtf16(texts->at(languageId - 1U));
}

} // namespace Hesperin
