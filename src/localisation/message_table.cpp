#include "localisation/messages.h"

namespace Hesperin {

namespace {

// clang-format off
//   English, Russian, French, German
constexpr MessageRow Table[] = {
    {&Messages::WarningTitle,       {u"Warning!",                                              u"Внимание!",                                                nullptr,                                                nullptr}},
    {&Messages::MsgSecondInstance,
     {u"You cannot run second instance of this tool of any of then at the same time!",
      u"Нельзя запускать эту программу дважды!",
      nullptr,
      nullptr}},
    {&Messages::MsgQuitQuestion,    {u"Do you want to quit?",                                  u"Вы хотите выйти?",                                         u"Voulez-vous quitter?",                                u"Sie sind ьberzeugt?"}},
    {&Messages::MsgQuitTitle,       {u"Quit to Desktop",                                       u"Выход из программы",                                       u"Quitter le programme",                                u"Ausgang auf Desktop"}},
    {&Messages::MsgValueFor,        {u"Value for '",                                           u"Значение для '",                                           nullptr,                                                nullptr}},
    {&Messages::MsgOutOfRange,      {u"' out of the range!",                                   u"' недопустимо!",                                           nullptr,                                                nullptr}},
    {&Messages::MsgCannotBeLess,    {u"' cannot be less than it is for '",                     u"' не может быть меньше, чем '",                            nullptr,                                                nullptr}},
    {&Messages::MsgZeroPower,       {u"Value for 'Power by Rolvane' is zero!",                 u"Значение параметра 'Сила' по Rolvane'у равно нулю!",       nullptr,                                                nullptr}},
    {&Messages::MsgIncreaseTier,    {u"It is recommended to increase tier from ",              u"Рекомендуется повысить уровень от ",                       nullptr,                                                nullptr}},
    {&Messages::MsgLowerTier,       {u"It is recommended to lower tier from ",                 u"Рекомендуется снизить уровень от ",                        nullptr,                                                nullptr}},
    {&Messages::MsgTierTo,          {u" to ",                                                  u" до ",                                                     nullptr,                                                nullptr}},
    {&Messages::MsgAbilityValue,    {u"Value for this ability is ",                            u"Значение способности - ",                                  nullptr,                                                nullptr}},
    {&Messages::MsgAverageValue,    {u"Average value for all abilities is ",                   u"Среднее значение для всех способностей - ",                nullptr,                                                nullptr}},
    {&Messages::SumCreature,        {u" [Creature: ",                                          u" [Существо: ",                                             nullptr,                                                nullptr}},
    {&Messages::SumPower,           {u", Power=",                                              u", Сила=",                                                  nullptr,                                                nullptr}},
    {&Messages::SumExperience,      {u"}, Experience=",                                        u"}, Опыт=",                                                 nullptr,                                                nullptr}},
    {&Messages::SumGrowth,          {u"}, Growth=",                                            u"}, Прирост=",                                              nullptr,                                                nullptr}},
    {&Messages::SumGold,            {u"}, Gold=",                                              u"}, Золото=",                                               nullptr,                                                nullptr}},
    {&Messages::MsgEnterName,       {u"Please introduce creature's name in the project TCX!",  u"Пожалуйста, введите название существа в проекте TCX!",     u"Пожалуйста введите название существа в проекте TCX!", u"Пожалуйста введите название существа в проекте TCX"}},
    {&Messages::DefaultFileName,    {u"Creature_{Creature's item in TCX Project}",             u"Creature_{Номер существа в проекте TCX}",                  u"Creature_{Creature's item in TCX Project}",           u"Creature_{Creature's item in TCX Project}"}},
    {&Messages::MsgWhatIs,          {u"What is ",                                              u"Что такое ",                                               nullptr,                                                nullptr}},
    {&Messages::MsgAppDescription,
     {u" is a balanced calculator based on Rolvane's formulas which he obtained by numerous tests and also rested on numerous practical experiments done for determination of values for all available creatures' abilities in the game ''Heroes of Might and Magic V - Tribes of the East'' by Ubisoft Interactive & Nival Interactive.",
      u" это сбалансированный калькулятор расчёта силы, который базируется на формулах Rolvane'а, потому что его формулы получены путём многочисленных опытов, к тому же он опытным путём рассчитал значения всех способностей имеющихся в игре.",
      u"Ce programme est la calculatrice йquilibrйe qui est fondй sur les formules de Rolvane parce que sa formule est reзue par voie de nombreuses expйriences et il par la voie expйrimentйe a comptй les significations de toutes les capacitйs trouvant au jeu.",
      u"Dieses Programm ist ein ausgeglichener Rechner der sich auf den Formelen Rolvanes stьtzt weil seine Formel mittels der zahlreichen Erfahrungen bekommen ist und er hat die Bedeutungen aller Fдhigkeiten vorhanden im Spiel erfahrungsgemдЯ gerechnet."}},
    {&Messages::LanguageCode,       {u"EN",                                                    u"RU",                                                       u"FR",                                                  u"DE"}},
    {&Messages::MsgFileRefused,      {u"The file \"%1\" was not opened. %2",                            u"Файл \"%1\" не открыт. %2",                                nullptr, nullptr}},
    {&Messages::MsgFileMissing,      {u"There is no such file.",                                        u"Такого файла нет.",                                        nullptr, nullptr}},
    {&Messages::MsgFolderMissing,    {u"There is no such folder.",                                      u"Такой папки нет.",                                         nullptr, nullptr}},
    {&Messages::MsgIsFolder,         {u"It is a folder; a file was expected.",                          u"Это папка, а нужен файл.",                                 nullptr, nullptr}},
    {&Messages::MsgNotAFile,         {u"It is a device or a pipe; a file was expected.",                u"Это устройство или канал, а нужен файл.",                  nullptr, nullptr}},
    {&Messages::MsgNotAllowed,       {u"Access is denied.",                                             u"Доступ запрещён.",                                         nullptr, nullptr}},
    {&Messages::MsgFileInUse,        {u"Another program holds it.",                                     u"Его занимает другая программа.",                           nullptr, nullptr}},
    {&Messages::MsgDiskFull,         {u"The disk is full.",                                             u"На диске нет места.",                                      nullptr, nullptr}},
    {&Messages::MsgDiskReadOnly,     {u"The disk can only be read.",                                    u"С диска можно только читать.",                             nullptr, nullptr}},
    {&Messages::MsgNameTooLong,      {u"Its name is too long.",                                         u"Его имя слишком длинное.",                                 nullptr, nullptr}},
    {&Messages::MsgFileTooLarge,     {u"It is larger than %1 bytes; a creature file never is.",         u"Он больше %1 байт, а файл существа всегда меньше.",        nullptr, nullptr}},
    {&Messages::MsgLargerThan,       {u"It is larger than %1 bytes.",                                   u"Он больше %1 байт.",                                       nullptr, nullptr}},
    {&Messages::MsgSystemSays,       {u"The system says: %1.",                                          u"Система сообщает: %1.",                                    nullptr, nullptr}},
    {&Messages::MsgNotWellFormed,    {u"It is not well-formed XML: %1",                                 u"Это не правильно построенный XML: %1",                     nullptr, nullptr}},
    {&Messages::MsgEndsEarly,        {u"It ends too early; one whole <Creature> element was expected.", u"Он обрывается, а нужен один целый элемент <Creature>.",    nullptr, nullptr}},
    {&Messages::MsgWrongRoot,        {u"Its root element is <%1>; <Creature> was expected.",            u"Его корневой элемент <%1>, а нужен <Creature>.",           nullptr, nullptr}},
    {&Messages::MsgTextTooLong,
     {u"Its text is longer than %1 characters; a creature file never is.",
      u"Его текст длиннее %1 знаков, а у файла существа он всегда короче.",
      nullptr,
      nullptr}},
    {&Messages::MsgAtLine,           {u" (line %1, column %2)",                                         u" (строка %1, столбец %2)",                                 nullptr, nullptr}},
    {&Messages::MsgAtLineIn,         {u" (line %1, column %2, in <%3>)",                                u" (строка %1, столбец %2, в <%3>)",                         nullptr, nullptr}},
    {&Messages::MsgElementsMissing,  {u"Missing in the file, so left empty: %1.",                       u"Нет в файле, поэтому оставлено пустым: %1.",               nullptr, nullptr}},
    {&Messages::MsgNumbersLimited,   {u"Outside the range -32768 to 32767, so limited: %1.",            u"Вне пределов от -32768 до 32767, поэтому ограничено: %1.", nullptr, nullptr}},
    {&Messages::MsgSaveFailed,
     {u"The file \"%1\" was not saved. %2 Whatever stood there is unchanged.",
      u"Файл \"%1\" не сохранён. %2 То, что там было, не изменилось.",
      nullptr,
      nullptr}},
    {&Messages::MsgNotAnArchive,        {u"It is no zip archive, or an empty one.",                           u"Это не архив zip, или он пуст.",                           nullptr, nullptr}},
    {&Messages::MsgArchiveDamaged,      {u"Its list of files is damaged.",                                    u"Его список файлов повреждён.",                             nullptr, nullptr}},
    {&Messages::MsgDamagedInArchive,    {u"It is damaged in the archive.",                                    u"Он повреждён в архиве.",                                   nullptr, nullptr}},
    {&Messages::MsgEncrypted,           {u"It is encrypted.",                                                 u"Он зашифрован.",                                           nullptr, nullptr}},
    {&Messages::MsgEndlessMarkup,       {u"It has a tag or a document type without end.",                     u"В нём есть тег или тип документа без конца.",              nullptr, nullptr}},
    {&Messages::MsgNameChanges,      {u"Opened again, the creature would have the name \"%1\".",        u"При открытии существо получило бы имя \"%1\".",            nullptr, nullptr}},
    {&Messages::MsgSavedBut,         {u"The file \"%1\" was saved. %2",                                 u"Файл \"%1\" сохранён. %2",                                 nullptr, nullptr}},
    {&Messages::MsgOtherNamesKeepOld,
     {u"It had other names too (hard links); those keep the old content.",
      u"У него были и другие имена (жёсткие ссылки); под ними осталось старое содержимое.",
      nullptr,
      nullptr}},
    {&Messages::MsgOwnerNotKept,     {u"Its owner or its permissions could not be kept.",               u"Владельца или права доступа сохранить не удалось.",        nullptr, nullptr}},
    {&Messages::MsgMayNotLast,
     {u"Its folder could not be written to the disk yet: a power cut now may bring the old content back.",
      u"Папку ещё не удалось записать на диск: при отключении питания может вернуться старое содержимое.",
      nullptr,
      nullptr}},
    {&Messages::MsgNoCalculator,     {u"No calculator could be started; looked for: %1.",               u"Не удалось запустить калькулятор; испробованы: %1.",       nullptr, nullptr}},
    {&Messages::MsgLockOfOtherHost,
     {u"TALMIR runs on the computer \"%1\", or was cut off there. If it does not run there, delete the file \"%2\" and start again.",
      u"TALMIR уже запущена на компьютере \"%1\" или была там прервана. Если она там не запущена, удалите файл \"%2\" и запустите её снова.",
      nullptr,
      nullptr}},
    {&Messages::MsgYes,              {u"Yes",                                                           u"Да",                                                       nullptr, nullptr}},
    {&Messages::MsgNo,               {u"No",                                                            u"Нет",                                                      nullptr, nullptr}},
    {&Messages::FigureByRolvane,     {u"%1 by Rolvane %2",                                              u"%1 по Rolvane'у %2",                                       nullptr, nullptr}},
    {&Messages::FigureByHesperin,    {u"%1 by Hesperin %2",                                             u"%1 по Hesperin'ю %2",                                      nullptr, nullptr}},
    {&Messages::FigureOnAverage,     {u"Average %1 %2",                                                 u"%1 в среднем %2",                                          nullptr, nullptr}},
    {&Messages::FigureByQuintarell,  {u"%1 by Quintarell %2",                                           u"%1 по Quintarell'у %2",                                    nullptr, nullptr}},
    {&Messages::FigureByBravik,      {u"%1 by Bravik %2",                                               u"%1 по Bravik'у %2",                                        nullptr, nullptr}},
};

// clang-format on

} // namespace

const std::span<const MessageRow> MessageRows(Table);

void SetMessages(Messages& messages, std::uint8_t languageId) {
    for (const MessageRow& row : MessageRows)
        if (const char16_t* text = row.texts.at(languageId - 1U))
            messages.*row.message = QString::fromUtf16(text);
}

Messages MessagesIn(std::uint8_t languageId) {
    Messages messages;
    SetMessages(messages, languageId);
    return messages;
}

} // namespace Hesperin
