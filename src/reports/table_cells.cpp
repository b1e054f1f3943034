#include "reports/table_cells.h"

#include "catalogue/ability_catalogue.h"
#include "creature_files/change.h"
#include "text/decimal.h"

#include <algorithm>

namespace Hesperin {

namespace {

bool CanBeTold(const Element& element) {
    return TakesNumber(element) || TakesFlag(element) || element.says == Says::ListEntry ||
           element.says == Says::FixedWord || element.says == Says::Abilities;
}

/// The number without zeros at the end of its fraction. A comma with one or two digits behind it is
/// a decimal one; with three it could part thousands.
std::optional<Decimal> NumberIn(QString text) {
    const qsizetype comma = text.indexOf(u',');
    if (const qsizetype digits = text.size() - comma - 1; comma > 0 && digits > 0 && digits < 3)
        text[comma] = u'.';
    auto number = ReadDecimal(text);
    constexpr int base = 10;
    while (number && number->places > 0 && number->units % base == 0) {
        number->units /= base;
        --number->places;
    }
    return number;
}

/// "4.000" is four thousand where a full stop parts them.
bool CouldPartThousands(const QString& text) {
    const qsizetype stop = text.lastIndexOf(u'.');
    return stop > 0 && text.size() - stop - 1 == 3;
}

/// "true" or "false" for what spreadsheets make of it; any other text as it is.
QString FlagIn(const QString& text) {
    static const std::pair<QStringView, const char*> words[] = {
        {u"true", "true"},   {u"false", "false"}, {u"1", "true"},    {u"0", "false"},
        {u"истина", "true"}, {u"ложь", "false"},  {u"wahr", "true"}, {u"falsch", "false"},
        {u"vrai", "true"},   {u"faux", "false"}};
    for (const auto& [word, flag] : words)
        if (text.compare(word, Qt::CaseInsensitive) == 0)
            return QLatin1String(flag);
    return text;
}

QString AbilityIn(const QString& word) {
    const bool prefixed = word.startsWith(AbilityPrefix, Qt::CaseInsensitive);
    return (prefixed ? word.sliced(AbilityPrefix.size()) : word).toUpper();
}

/// The abilities in a text, each once, in the order of the text.
QStringList AbilitiesIn(const QString& text) {
    QStringList abilities;
    const QString words = text.simplified();
    for (const QStringView word : QStringView(words).split(u' ', Qt::SkipEmptyParts))
        abilities.append(AbilityIn(word.toString()));
    abilities.removeAll(QString()); // a bare prefix has no word in a table
    abilities.removeDuplicates();
    return abilities;
}

QStringList Sorted(QStringList words) {
    words.sort();
    return words;
}

Failure ApplyAbilities(const TableCell& cell, EditedFile& file, std::vector<Error>& notes) {
    const auto items = file.Items(AbilityList);
    if (!items)
        return items.Why();
    const QStringList wanted = AbilitiesIn(cell.text);
    QStringList present;
    for (const ListItem& item : *items) {
        present.append(AbilityIn(item.word));
        if (!present.constLast().isEmpty() && !wanted.contains(present.constLast()))
            if (auto failure = file.RemoveItem(AbilityList, {item.word}))
                return failure;
    }
    for (const QString& word : wanted)
        if (!present.contains(word))
            if (auto failure =
                    Apply({AbilityList, Change::Does::Add, AbilityPrefix.toString() + word}, false,
                          file, notes))
                return failure;
    return {};
}

} // namespace

const Element* ElementOfHeading(const QString& heading) {
    for (const Element& element : Elements)
        if (CanBeTold(element) && (heading.compare(element.name, Qt::CaseInsensitive) == 0 ||
                                   heading.compare(PathOf(element), Qt::CaseInsensitive) == 0))
            return &element;
    return nullptr;
}

bool SaysTheSame(const TableCell& cell, const QString& text) {
    const Element& element = *cell.element;
    if (cell.text == text)
        return true;
    if (element.says == Says::Abilities)
        return Sorted(AbilitiesIn(cell.text)) == Sorted(AbilitiesIn(text));
    if (TakesNumber(element)) {
        const auto told = NumberIn(cell.text);
        const auto held = NumberIn(text);
        return told && held && told->units == held->units && told->places == held->places;
    }
    const QString told = TakesFlag(element) ? FlagIn(cell.text) : cell.text;
    return told.compare(text, Qt::CaseInsensitive) == 0;
}

Result<QString> ContentFor(const TableCell& cell, const EditedFile& file) {
    if (cell.element->says != Says::Abilities) {
        const auto content = file.Content(PathOf(*cell.element));
        return content ? Result(content->value_or(QString())) : content.Why();
    }
    const auto items = file.Items(AbilityList);
    if (!items)
        return items.Why();
    QStringList words;
    for (const ListItem& item : *items)
        words.append(item.word);
    return words.join(u' ');
}

Failure ApplyCell(const TableCell& cell, const QString& now, EditedFile& file,
                  std::vector<Error>& notes) {
    const Element& element = *cell.element;
    if (element.says == Says::Abilities)
        return ApplyAbilities(cell, file, notes);
    if (cell.text.isEmpty())
        return Error{Error::What::CellEmpty, now};
    Change change{PathOf(element), Change::Does::Set, cell.text};
    if (TakesNumber(element)) {
        const auto number = NumberIn(cell.text);
        if (!number || number->places > 0 || CouldPartThousands(cell.text))
            return NoContentForNumber(cell.text, PathOf(element));
        change.operand = QString::number(number->units);
    } else {
        change.operand = TakesFlag(element) ? FlagIn(cell.text) : cell.text.toUpper();
    }
    return Apply(change, false, file, notes);
}

} // namespace Hesperin
