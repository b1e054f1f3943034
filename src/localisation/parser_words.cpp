#include "localisation/parser_words.h"

#include "text/fill.h"

#include <optional>

namespace Hesperin {

namespace {

struct Saying {
    const char16_t* english; ///< %1 and %2 stand for anything
    const char16_t* russian;
};

// clang-format off
constexpr Saying Sayings[] = {
    {u"Opening and ending tag mismatch.",                             u"Открывающий и закрывающий теги не совпадают."},
    {u"Extra content at end of document.",                            u"За концом документа стоит что-то ещё."},
    {u"Entity '%1' not declared.",                                    u"Сущность '%1' не объявлена."},
    {u"Entity '%1' lies in another file, which is not read.",         u"Сущность '%1' находится в другом файле, а он не читается."},
    {u"Reference to external entity '%1' in attribute value.",        u"Сущность '%1' находится в другом файле, а он не читается."},
    {u"Entity expands to more characters than the entity expansion limit.", u"Сущность раскрывается в слишком длинный текст."},
    {u"Self-referencing entity detected.",                            u"Сущность ссылается сама на себя."},
    {u"Attribute '%1' redefined.",                                    u"Атрибут '%1' указан дважды."},
    {u"Expected %1, but got %2.",                                     u"Ожидалось %1, а стоит %2."},
    {u"Unexpected '%1'.",                                             u"Неожиданный знак '%1'."},
    {u"Sequence ']]>' not allowed in content.",                       u"Знаки ']]>' в тексте недопустимы."},
    {u"Invalid character reference.",                                 u"Недопустимый код знака."},
    {u"Invalid XML name.",                                            u"Недопустимое имя."},
    {u"Invalid XML character.",                                       u"Недопустимый знак."},
    {u"Invalid document.",                                            u"Недопустимый документ."},
    {u"Encountered incorrectly encoded content.",                     u"Знаки записаны не в той кодировке."},
    {u"Encoding %1 is unsupported",                                   u"Кодировка %1 неизвестна."},
    {u"%1 is an invalid encoding name.",                              u"%1 — недопустимое имя кодировки."},
    {u"Unsupported XML version.",                                     u"Неизвестная версия XML."},
    {u"Invalid XML version string.",                                  u"Недопустимая версия XML."},
    {u"XML declaration not at start of document.",                    u"Объявление XML стоит не в начале документа."},
    {u"Invalid attribute in XML declaration.",                        u"Недопустимый атрибут в объявлении XML."},
    {u"Start tag expected.",                                          u"Ожидался открывающий тег."},
    {u"Expected character data.",                                     u"Ожидался текст."},
    {u"Standalone accepts only yes or no.",                           u"В standalone допустимы только yes и no."},
    {u"Invalid entity value.",                                        u"Недопустимое значение сущности."},
};
// clang-format on

/// What stands in `text` for %1 and %2 of `pattern`; none when the text isn't of that pattern.
std::optional<QStringList> ValuesIn(const QString& text, const QString& pattern) {
    QStringList values;
    qsizetype at = 0; // in the text
    const QStringList fixed = QString(pattern)
                                  .replace(QLatin1String("%2"), QLatin1String("%1"))
                                  .split(QStringLiteral("%1"));
    for (qsizetype part = 0; part < fixed.size(); ++part) {
        const bool last = part == fixed.size() - 1;
        const qsizetype found =
            last && part > 0 ? text.lastIndexOf(fixed[part]) : text.indexOf(fixed[part], at);
        if (found < at || (part == 0 && found != 0))
            return std::nullopt;
        if (part > 0)
            values.append(text.mid(at, found - at));
        at = found + fixed[part].size();
    }
    return at == text.size() ? std::optional(values) : std::nullopt;
}

} // namespace

QString ParserWords(const Messages& messages, const QString& english) {
    if (messages.LanguageCode != QLatin1String("RU"))
        return english;
    for (const Saying& saying : Sayings)
        if (const auto values = ValuesIn(english, QString::fromUtf16(saying.english)))
            return Fill(QString::fromUtf16(saying.russian), *values)
                .replace(QLatin1String("' or '"), QString::fromUtf16(u"' или '"))
                .replace(QLatin1String("', or '"), QString::fromUtf16(u"' или '"));
    return english;
}

} // namespace Hesperin
