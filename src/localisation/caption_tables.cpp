#include "localisation/string_tables.h"

namespace Hesperin {

namespace {

// clang-format off
//                        English, Russian, French, German
constexpr CaptionRow<MenuEntry> Menus[] = {
    {&MainForm::mnuFile,              {u"File",               u"Файл",                 u"Fichier",      u"Datei"}},
    {&MainForm::mnuNew,               {u"New",                u"Создать",              u"Nouveau",      u"Neue"}},
    {&MainForm::mnuOpen,              {u"Open...",            u"Открыть...",           u"Ouvrir...",    u"Цffnen..."}},
    {&MainForm::mnuSave,              {u"Save",               u"Сохранить",            u"Sauvegarder",  u"Speichern"}},
    {&MainForm::mnuQuit,              {u"Quit",               u"Выход",                u"Quitter",      u"Beenden"}},
    {&MainForm::mnuOptions,           {u"Options",            u"Опции",                u"Options",      u"Optionen"}},
    {&MainForm::mnuCalculator,        {u"Calculator",         u"Калькулятор",          u"Calculatrice", u"Rechner"}},
    {&MainForm::mnuHighContrast,      {u"High contrast",      u"Высокая контрастность", nullptr,       nullptr}},
    {&MainForm::mnuLanguage,          {u"Language",           u"Язык",                 u"Langue",       u"Sprache"}},
    {&MainForm::mnuInfo,              {u"Info",               u"Справка",              u"Info",         u"Info"}},
    {&MainForm::mnuHelp,              {u"Help",               u"Помощь",               u"Aide",         u"Hilfe"}},
    {&MainForm::mnuAbout,             {u"About...",           u"О программе...",       u"A propos...",  u"Ьber programm..."}},
    {&MainForm::mnuAlternativeMethod, {u"Alternative method", u"Альтернативный метод", nullptr,         nullptr}},
};

constexpr CaptionRow<Frame> Frames[] = {
    {&MainForm::FrameAttack,      {u"Attack",               u"Нападение",             u"Атака",      u"Angriff"}},
    {&MainForm::FrameDefence,     {u"Defence",              u"Защита",                u"Защита",     u"Verteidigung"}},
    {&MainForm::FrameDamage,      {u"Damage",               u"Урон",                  u"Урон",       u"Урон"}},
    {&MainForm::FrameSpeed,       {u"Speed",                u"Скорость",              u"Скорость",   u"Скорость"}},
    {&MainForm::FrameInitiative,  {u"Initiative",           u"Инициатива",            u"Инициатива", u"Инициатива"}},
    {&MainForm::FrameHealth,      {u"Health",               u"Ед. жизни",             u"Ед. жизни",  u"Ед. жизни"}},
    {&MainForm::FrameTier,        {u"Tier",                 u"Уровень",               u"Уровень",    u"Уровень"}},
    {&MainForm::FrameShots,       {u"Shots",                u"Выстрелы",              u"Выстрелы",   u"Выстрелы"}},
    {&MainForm::FrameMana,        {u"Mana",                 u"Мана",                  u"Мана",       u"Мана"}},
    {&MainForm::FrameRange,       {u"Range",                u"Дальность",             nullptr,       nullptr}},
    {&MainForm::FrameTTC,         {u"Time to command",      u"Время приказа",         nullptr,       nullptr}},
    {&MainForm::frmMM,            {u"Main method",          u"Основной метод ",       nullptr,       nullptr}},
    {&MainForm::frmAM,            {u"Alternative method",   u"Альтернативный метод ", nullptr,       nullptr}},
    {&MainForm::FramePower,       {u"Power",                u"Сила",                  nullptr,       nullptr}},
    {&MainForm::FrameExperience,  {u"Experience",           u"Опыт",                  nullptr,       nullptr}},
    {&MainForm::FrameGrowth,      {u"Growth",               u"Прирост",               nullptr,       nullptr}},
    {&MainForm::FrameCost,        {u"Gold",                 u"Золото",                nullptr,       nullptr}},
    {&MainForm::FramePowerX,      {u"Power",                u"Сила",                  nullptr,       nullptr}},
    {&MainForm::FrameExperienceX, {u"Experience",           u"Опыт",                  nullptr,       nullptr}},
    {&MainForm::FrameGrowthX,     {u"Growth",               u"Прирост",               nullptr,       nullptr}},
    {&MainForm::FrameCostX,       {u"Gold",                 u"Золото",                nullptr,       nullptr}},
    {&MainForm::FramePowerA,      {u"Power",                u"Сила",                  nullptr,       nullptr}},
    {&MainForm::FrameExperienceA, {u"Experience",           u"Опыт",                  nullptr,       nullptr}},
    {&MainForm::FrameGrowthA,     {u"Growth",               u"Прирост",               nullptr,       nullptr}},
    {&MainForm::FrameCostA,       {u"Gold",                 u"Золото",                nullptr,       nullptr}},
    {&MainForm::FramePowerD,      {u"Power",                u"Сила",                  nullptr,       nullptr}},
    {&MainForm::FrameExperienceD, {u"Experience",           u"Опыт",                  nullptr,       nullptr}},
    {&MainForm::FrameGrowthD,     {u"Growth",               u"Прирост",               nullptr,       nullptr}},
    {&MainForm::FrameCostD,       {u"Gold",                 u"Золото",                nullptr,       nullptr}},
    {&MainForm::FramePowerS,      {u"Power",                u"Сила",                  nullptr,       nullptr}},
    {&MainForm::FrameExperienceS, {u"Experience",           u"Опыт",                  nullptr,       nullptr}},
    {&MainForm::FrameGrowthS,     {u"Growth",               u"Прирост",               nullptr,       nullptr}},
    {&MainForm::FrameCostS,       {u"Gold",                 u"Золото",                nullptr,       nullptr}},
    {&MainForm::FramePowerf,      {u"Power",                u"Сила",                  nullptr,       nullptr}},
    {&MainForm::FrameExpf,        {u"Experience",           u"Опыт",                  nullptr,       nullptr}},
    {&MainForm::FrameGrowthf,     {u"Growth",               u"Прирост",               nullptr,       nullptr}},
    {&MainForm::FrameCostf,       {u"Gold",                 u"Золото",                nullptr,       nullptr}},
    {&MainForm::FrameWoodf,       {u"Wood",                 u"Древесина",             nullptr,       nullptr}},
    {&MainForm::FrameOref,        {u"Ore",                  u"Руда",                  nullptr,       nullptr}},
    {&MainForm::FrameMercuryf,    {u"Mercury",              u"Ртуть",                 nullptr,       nullptr}},
    {&MainForm::FrameCrystalf,    {u"Crystal",              u"Кристаллы",             nullptr,       nullptr}},
    {&MainForm::FrameSulfurf,     {u"Sulfur",               u"Сера",                  nullptr,       nullptr}},
    {&MainForm::FrameGemf,        {u"Gem",                  u"Самоцветы",             nullptr,       nullptr}},
    {&MainForm::FrameFaction,     {u"Faction",              u"Фракция",               nullptr,       nullptr}},
    {&MainForm::FrameFME,         {u"First Magic Element",  u"Первый магич. элемент", nullptr,       nullptr}},
    {&MainForm::FrameSME,         {u"Second Magic Element", u"Второй магич. элемент", nullptr,       nullptr}},
    {&MainForm::FrameNC,          {u"Name",                 u"Название",              nullptr,       nullptr}},
    {&MainForm::FrameIDC,         {u"ID in TCX",            u"Идентификатор в TCX",   nullptr,       nullptr}},
    {&MainForm::FrameUpgrade,     {u"Upgrade",              u"Улучшение",             nullptr,       nullptr}},
};

constexpr CaptionRow<Label> Labels[] = {
    {&MainForm::lblMax,     {u"max",                  u"макс.",                    nullptr, nullptr}},
    {&MainForm::lblMin,     {u"min",                  u"мин.",                     nullptr, nullptr}},
    {&MainForm::lblValues,  {u"Values by Rolvane",    u"Значения по Rolvane'у",    nullptr, nullptr}},
    {&MainForm::lblValuesX, {u"Values by Hesperin",   u"Значения по Hesperin'ю",   nullptr, nullptr}},
    {&MainForm::lblValuesS, {u"Values by Quintarell", u"Значения по Quintarell'у", nullptr, nullptr}},
    {&MainForm::lblValuesD, {u"Values by Bravik",     u"Значения по Bravik'у",     nullptr, nullptr}},
    {&MainForm::lblValuesA, {u"Average values",       u"Усреднённые значения",     nullptr, nullptr}},
};

constexpr CaptionRow<Button> Buttons[] = {
    {&MainForm::cmdCalc,     {u"Calculate ",            u"Рассчёт ",                  nullptr, nullptr}},
    {&MainForm::cmdRAA,      {u"Reset all abilities ",  u"Сброс всех способностей ",  nullptr, nullptr}},
    {&MainForm::cmdRAP,      {u"Reset all parametres ", u"Сброс всех характеристик ", nullptr, nullptr}},
    {&MainForm::cmdRAS,      {u"Reset all spells ",     u"Сброс всех заклинаний ",    nullptr, nullptr}},
    {&MainForm::cmdResetAll, {u"Reset all ",            u"Сбросить всё ",             nullptr, nullptr}},
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

const std::span<const CaptionRow<MenuEntry>> MenuRows(Menus);
const std::span<const CaptionRow<Frame>> FrameRows(Frames);
const std::span<const CaptionRow<Label>> LabelRows(Labels);
const std::span<const CaptionRow<Button>> ButtonRows(Buttons);
const std::span<const Texts> PageRows(Pages);
const std::span<const Texts> FactionRows(Factions);
const std::span<const Texts> RangeRows(Ranges);

const Texts AverageToolTip{u"Average values (by Rolvane and Hesperin)",
                           u"Усреднённые значения (по Rolvane'у и Hesperin'ю)", nullptr, nullptr};

} // namespace Hesperin
