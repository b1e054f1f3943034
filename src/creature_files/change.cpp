#include "creature_files/change.h"

#include "creature_files/file_tokens.h"
#include "creature_files/reader.h"
#include "text/decimal.h"
#include "text/nearest.h"

namespace Hesperin {

namespace {

constexpr std::pair<QStringView, Method> MethodNames[] = {
    {u"average", Method::Average}, {u"rolvane", Method::Rolvane}, {u"hesperin", Method::Hesperin}};

Error Refusal(Error::What what, const Change& change, const QString& expected = {}) {
    Error error{what, change.operand, expected};
    error.element = change.name;
    return error;
}

template <typename Tokens>
QStringList ListOf(const Tokens& tokens, std::size_t first) {
    return {tokens.begin() + static_cast<std::ptrdiff_t>(first), tokens.end()};
}

/// The words that the catalogue has for the items of a list.
QStringList KnownWords(const QString& list) {
    if (list == AbilityList)
        return ListOf(AbilityTokens(), 1);
    return ListOf(SpellTokens(), 1) + ListOf(SpecabilityTokens(), 0);
}

Failure CheckWord(const Change& change, const QString& word, const QStringList& known) {
    if (known.contains(word))
        return {};
    Error error = Refusal(Error::What::WordUnknown, change, NearestTo(word, known));
    error.value = word;
    return error;
}

Failure CheckItem(const Change& change, const ListItem& item) {
    if (change.name == UpgradeList) {
        const QString beginning = QStringLiteral("CREATURE_");
        return item.word.startsWith(beginning)
                   ? Failure()
                   : Refusal(Error::What::WordUnknown, change, beginning + item.word);
    }
    if (auto failure = CheckWord(change, item.word, KnownWords(change.name)))
        return failure;
    return item.mastery.isEmpty() ? Failure()
                                  : CheckWord(change, item.mastery, ListOf(MasteryTokens(), 0));
}

Failure ApplyToList(const Change& change, bool anyWord, EditedFile& file) {
    const bool isSpell = change.name == SpellList;
    const ListItem item{isSpell ? change.operand.section(u':', 0, 0) : change.operand,
                        isSpell ? change.operand.section(u':', 1) : QString()};
    if (change.does == Change::Does::Subtract)
        return file.RemoveItem(change.name, item);
    if (change.does != Change::Does::Add)
        return Error{Error::What::IsAList, change.name};
    if (!anyWord)
        if (auto failure = CheckItem(change, item))
            return failure;
    if (item.word.isEmpty())
        return Refusal(Error::What::WordUnknown, change);
    return file.AddItem(change.name, item);
}

Failure CheckContent(const Change& change, const Element& format, std::vector<Error>& notes) {
    if (TakesNumber(format) && !ReadWhole(change.operand))
        return NoContentForNumber(change.operand, change.name);
    if (TakesFlag(format) && change.operand != QLatin1String("true") &&
        change.operand != QLatin1String("false"))
        return Refusal(Error::What::NoFlag, change);
    if (format.says != Says::ListEntry || format.text.isEmpty())
        return {};
    QStringList known;
    for (const QStringView entry : ListCatalogue[format.list].entries)
        known.append(format.text.toString() + entry.toString().toUpper());
    auto unknown = CheckWord(change, change.operand, known);
    if (!unknown || format.list != ListField::Alias || !change.operand.startsWith(format.text))
        return unknown;
    unknown->what = Error::What::TownUnknown;
    notes.push_back(*unknown);
    return {};
}

Failure Reckon(const Change& change, EditedFile& file) {
    const auto content = file.Content(change.name);
    if (!content)
        return content.Why();
    const QString inFile = content->value_or(QString());
    if (inFile.isEmpty())
        return Refusal(Error::What::NothingToReckon, change);
    const auto whole = ReadWhole(inFile);
    if (!whole)
        return NoContentForNumber(inFile, change.name);
    const auto number = ReadDecimal(change.operand);
    if (!number)
        return IsWhole(change.operand)
                   ? Refusal(Error::What::TooManyDigits, change, QString::number(MostDigits))
                   : Refusal(Error::What::NoNumber, change);
    const auto result = change.does == Change::Does::Multiply
                            ? Product(*whole, *number)
                            : Sum(*whole, *number, change.does == Change::Does::Add ? 1 : -1);
    if (!result)
        return Refusal(Error::What::ResultTooLong, change, QString::number(MostDigitsOfWhole));
    if (*result < 0) {
        Error error = Refusal(Error::What::BelowZero, change);
        error.value = QString::number(*result);
        return error;
    }
    return *result == *whole ? Failure() : file.Set(change.name, QString::number(*result));
}

} // namespace

std::optional<Change> ReadChange(const QString& text) {
    const qsizetype equals = text.indexOf(u'=');
    if (equals <= 0)
        return std::nullopt;
    Change change{text.left(equals), Change::Does::Set, text.mid(equals + 1)};
    static constexpr std::pair<char16_t, Change::Does> operators[] = {
        {u'+', Change::Does::Add}, {u'-', Change::Does::Subtract}, {u'*', Change::Does::Multiply}};
    for (const auto& [sign, does] : operators)
        if (change.name.endsWith(QChar(sign))) {
            change.does = does;
            change.name.chop(1);
            break;
        }
    return change.name.isEmpty() ? std::nullopt : std::optional(change);
}

std::optional<ComputedChange> ReadComputed(const Change& change) {
    if (change.does != Change::Does::Set)
        return std::nullopt;
    for (const FigureInFile& row : FiguresInFile)
        for (const auto& [word, method] : MethodNames)
            if (change.name.section(u'/', -1) == row.element && change.operand == word)
                return ComputedChange{change.name, method, row.figure};
    return std::nullopt;
}

Failure Apply(const Change& change, bool anyWord, EditedFile& file, std::vector<Error>& notes) {
    if (EditedFile::IsList(change.name))
        return ApplyToList(change, anyWord, file);
    if (change.does != Change::Does::Set)
        return Reckon(change, file);
    if (const Element* format = file.FormatOf(change.name);
        format != nullptr && !change.name.contains(u'@'))
        if (auto failure = CheckContent(change, *format, notes))
            return failure;
    return file.Set(change.name, change.operand);
}

Error NoContentForNumber(const QString& text, const QString& element) {
    Error error{Error::What::NoWholeNumber, text};
    error.element = element;
    if (IsWhole(text)) {
        error.what = Error::What::TooManyDigits;
        error.expected = QString::number(MostDigitsOfWhole);
    }
    return error;
}

bool TakesNumber(const Element& element) {
    switch (element.says) {
    case Says::Number:
    case Says::Supply:
    case Says::ListNumber:
    case Says::Size:
    case Says::Charges:
    case Says::Inferno:
    case Says::Growth:
        return true;
    case Says::ListEntry: // range and time to command are numbers too
        return element.text.isEmpty();
    default:
        return false;
    }
}

bool TakesFlag(const Element& element) {
    return element.says == Says::ListFlag || element.says == Says::Flyer ||
           element.says == Says::FixedFlag;
}

} // namespace Hesperin
