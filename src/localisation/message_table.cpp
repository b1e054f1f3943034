#include "localisation/string_tables.h"

namespace Hesperin {

namespace {

// clang-format off
//   English, Russian, French, German
constexpr MessageRow Messages[] = {
    {&SharedState::WarningTitle,       {u"Warning!",                                              u"Внимание!",                                                nullptr,                                                nullptr}},
    {&SharedState::MsgSecondInstance,
     {u"You cannot run second instance of this tool of any of then at the same time!",
      u"Нельзя запускать эту программу дважды!",
      nullptr,
      nullptr}},
    {&SharedState::MsgQuitQuestion,    {u"Do you want to quit?",                                  u"Вы хотите выйти?",                                         u"Voulez-vous quitter?",                                u"Sie sind ьberzeugt?"}},
    {&SharedState::MsgQuitTitle,       {u"Quit to Desktop",                                       u"Выход из программы",                                       u"Quitter le programme",                                u"Ausgang auf Desktop"}},
    {&SharedState::MsgValueFor,        {u"Value for '",                                           u"Значение для '",                                           nullptr,                                                nullptr}},
    {&SharedState::MsgOutOfRange,      {u"' out of the range!",                                   u"' недопустимо!",                                           nullptr,                                                nullptr}},
    {&SharedState::MsgCannotBeLess,    {u"' cannot be less than it is for '",                     u"' не может быть меньше, чем '",                            nullptr,                                                nullptr}},
    {&SharedState::MsgZeroPower,       {u"Value for 'Power by Rolvane' is zero!",                 u"Значение параметра 'Сила' по Rolvane'у равно нулю!",       nullptr,                                                nullptr}},
    {&SharedState::MsgIncreaseTier,    {u"It is recommended to increase tier from ",              u"Рекомендуется повысить уровень от ",                       nullptr,                                                nullptr}},
    {&SharedState::MsgLowerTier,       {u"It is recommended to lower tier from ",                 u"Рекомендуется снизить уровень от ",                        nullptr,                                                nullptr}},
    {&SharedState::MsgTierTo,          {u" to ",                                                  u" до ",                                                     nullptr,                                                nullptr}},
    {&SharedState::MsgAbilityValue,    {u"Value for this ability is ",                            u"Значение способности - ",                                  nullptr,                                                nullptr}},
    {&SharedState::MsgAverageValue,    {u"Average value for all abilities is ",                   u"Среднее значение для всех способностей - ",                nullptr,                                                nullptr}},
    {&SharedState::SumCreature,        {u" [Creature: ",                                          u" [Существо: ",                                             nullptr,                                                nullptr}},
    {&SharedState::SumPower,           {u", Power=",                                              u", Сила=",                                                  nullptr,                                                nullptr}},
    {&SharedState::SumExperience,      {u"}, Experience=",                                        u"}, Опыт=",                                                 nullptr,                                                nullptr}},
    {&SharedState::SumGrowth,          {u"}, Growth=",                                            u"}, Прирост=",                                              nullptr,                                                nullptr}},
    {&SharedState::SumGold,            {u"}, Gold=",                                              u"}, Золото=",                                               nullptr,                                                nullptr}},
    {&SharedState::MsgEnterName,       {u"Please introduce creature's name in the project TCX!",  u"Пожалуйста, введите название существа в проекте TCX!",     u"Пожалуйста введите название существа в проекте TCX!", u"Пожалуйста введите название существа в проекте TCX"}},
    {&SharedState::DefaultFileName,    {u"Creature_{Creature's item in TCX Project}",             u"Creature_{Номер существа в проекте TCX}",                  u"Creature_{Creature's item in TCX Project}",           u"Creature_{Creature's item in TCX Project}"}},
    {&SharedState::MsgWhatIs,          {u"What is ",                                              u"Что такое ",                                               nullptr,                                                nullptr}},
    {&SharedState::MsgAppDescription,
     {u" is a balanced calculator based on Rolvane's formulas which he obtained by numerous tests and also rested on numerous practical experiments done for determination of values for all available creatures' abilities in the game ''Heroes of Might and Magic V - Tribes of the East'' by Ubisoft Interactive & Nival Interactive.",
      u" это сбалансированный калькулятор расчёта силы, который базируется на формулах Rolvane'а, потому что его формулы получены путём многочисленных опытов, к тому же он опытным путём рассчитал значения всех способностей имеющихся в игре.",
      u"Ce programme est la calculatrice йquilibrйe qui est fondй sur les formules de Rolvane parce que sa formule est reзue par voie de nombreuses expйriences et il par la voie expйrimentйe a comptй les significations de toutes les capacitйs trouvant au jeu.",
      u"Dieses Programm ist ein ausgeglichener Rechner der sich auf den Formelen Rolvanes stьtzt weil seine Formel mittels der zahlreichen Erfahrungen bekommen ist und er hat die Bedeutungen aller Fдhigkeiten vorhanden im Spiel erfahrungsgemдЯ gerechnet."}},
    {&SharedState::LanguageCode,       {u"EN",                                                    u"RU",                                                       u"FR",                                                  u"DE"}},
    {&SharedState::MsgFileRefused,      {u"The file \"%1\" was not opened. %2",                            u"Файл \"%1\" не открыт. %2",                                nullptr, nullptr}},
    {&SharedState::MsgFileMissing,      {u"There is no such file.",                                        u"Такого файла нет.",                                        nullptr, nullptr}},
    {&SharedState::MsgFolderMissing,    {u"There is no such folder.",                                      u"Такой папки нет.",                                         nullptr, nullptr}},
    {&SharedState::MsgIsFolder,         {u"It is a folder; a file was expected.",                          u"Это папка, а нужен файл.",                                 nullptr, nullptr}},
    {&SharedState::MsgNotAFile,         {u"It is a device or a pipe; a file was expected.",                u"Это устройство или канал, а нужен файл.",                  nullptr, nullptr}},
    {&SharedState::MsgNotAllowed,       {u"Access is denied.",                                             u"Доступ запрещён.",                                         nullptr, nullptr}},
    {&SharedState::MsgFileInUse,        {u"Another program holds it.",                                     u"Его занимает другая программа.",                           nullptr, nullptr}},
    {&SharedState::MsgDiskFull,         {u"The disk is full.",                                             u"На диске нет места.",                                      nullptr, nullptr}},
    {&SharedState::MsgDiskReadOnly,     {u"The disk can only be read.",                                    u"С диска можно только читать.",                             nullptr, nullptr}},
    {&SharedState::MsgNameTooLong,      {u"Its name is too long.",                                         u"Его имя слишком длинное.",                                 nullptr, nullptr}},
    {&SharedState::MsgFileTooLarge,     {u"It is larger than %1 bytes; a creature file never is.",         u"Он больше %1 байт, а файл существа всегда меньше.",        nullptr, nullptr}},
    {&SharedState::MsgSystemSays,       {u"The system says: %1.",                                          u"Система сообщает: %1.",                                    nullptr, nullptr}},
    {&SharedState::MsgNotWellFormed,    {u"It is not well-formed XML: %1",                                 u"Это не правильно построенный XML: %1",                     nullptr, nullptr}},
    {&SharedState::MsgEndsEarly,        {u"It ends too early; one whole <Creature> element was expected.", u"Он обрывается, а нужен один целый элемент <Creature>.",    nullptr, nullptr}},
    {&SharedState::MsgWrongRoot,        {u"Its root element is <%1>; <Creature> was expected.",            u"Его корневой элемент <%1>, а нужен <Creature>.",           nullptr, nullptr}},
    {&SharedState::MsgTextTooLong,
     {u"Its text is longer than %1 characters; a creature file never is.",
      u"Его текст длиннее %1 знаков, а у файла существа он всегда короче.",
      nullptr,
      nullptr}},
    {&SharedState::MsgAtLine,           {u" (line %1, column %2)",                                         u" (строка %1, столбец %2)",                                 nullptr, nullptr}},
    {&SharedState::MsgAtLineIn,         {u" (line %1, column %2, in <%3>)",                                u" (строка %1, столбец %2, в <%3>)",                         nullptr, nullptr}},
    {&SharedState::MsgElementsMissing,  {u"Missing in the file, so left empty: %1.",                       u"Нет в файле, поэтому оставлено пустым: %1.",               nullptr, nullptr}},
    {&SharedState::MsgNumbersLimited,   {u"Outside the range -32768 to 32767, so limited: %1.",            u"Вне пределов от -32768 до 32767, поэтому ограничено: %1.", nullptr, nullptr}},
    {&SharedState::MsgSaveFailed,
     {u"The file \"%1\" was not saved. %2 Whatever stood there is unchanged.",
      u"Файл \"%1\" не сохранён. %2 То, что там было, не изменилось.",
      nullptr,
      nullptr}},
    {&SharedState::MsgNameChanges,      {u"Opened again, the creature would have the name \"%1\".",        u"При открытии существо получило бы имя \"%1\".",            nullptr, nullptr}},
    {&SharedState::MsgSavedBut,         {u"The file \"%1\" was saved. %2",                                 u"Файл \"%1\" сохранён. %2",                                 nullptr, nullptr}},
    {&SharedState::MsgOtherNamesKeepOld,
     {u"It had other names too (hard links); those keep the old content.",
      u"У него были и другие имена (жёсткие ссылки); под ними осталось старое содержимое.",
      nullptr,
      nullptr}},
    {&SharedState::MsgOwnerNotKept,     {u"Its owner or its permissions could not be kept.",               u"Владельца или права доступа сохранить не удалось.",        nullptr, nullptr}},
    {&SharedState::MsgMayNotLast,
     {u"Its folder could not be written to the disk yet: a power cut now may bring the old content back.",
      u"Папку ещё не удалось записать на диск: при отключении питания может вернуться старое содержимое.",
      nullptr,
      nullptr}},
    {&SharedState::MsgNoCalculator,     {u"No calculator could be started; looked for: %1.",               u"Не удалось запустить калькулятор; испробованы: %1.",       nullptr, nullptr}},
    {&SharedState::MsgLockOfOtherHost,
     {u"TALMIR runs on the computer \"%1\", or was cut off there. If it does not run there, delete the file \"%2\" and start again.",
      u"TALMIR уже запущена на компьютере \"%1\" или была там прервана. Если она там не запущена, удалите файл \"%2\" и запустите её снова.",
      nullptr,
      nullptr}},
    {&SharedState::MsgYes,              {u"Yes",                                                           u"Да",                                                       nullptr, nullptr}},
    {&SharedState::MsgNo,               {u"No",                                                            u"Нет",                                                      nullptr, nullptr}},
    {&SharedState::FigureByRolvane,     {u"%1 by Rolvane %2",                                              u"%1 по Rolvane'у %2",                                       nullptr, nullptr}},
    {&SharedState::FigureByHesperin,    {u"%1 by Hesperin %2",                                             u"%1 по Hesperin'ю %2",                                      nullptr, nullptr}},
    {&SharedState::FigureOnAverage,     {u"Average %1 %2",                                                 u"%1 в среднем %2",                                          nullptr, nullptr}},
    {&SharedState::FigureByQuintarell,  {u"%1 by Quintarell %2",                                           u"%1 по Quintarell'у %2",                                    nullptr, nullptr}},
    {&SharedState::FigureByBravik,      {u"%1 by Bravik %2",                                               u"%1 по Bravik'у %2",                                        nullptr, nullptr}},
};

// clang-format on

} // namespace

const std::span<const MessageRow> MessageRows(Messages);

QString Fill(const QString& text, const QStringList& values) {
    QString filled;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const qsizetype value = text[at] == u'%' && at + 1 < text.size()
                                    ? text[at + 1].unicode() - qsizetype{u'1'}
                                    : -1;
        if (value >= 0 && value < values.size()) {
            filled += values[value];
            ++at;
        } else {
            filled += text[at];
        }
    }
    return filled;
}

} // namespace Hesperin
