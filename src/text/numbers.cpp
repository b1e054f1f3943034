#include "text/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace Hesperin {

namespace {

bool IsDigit(QStringView text, qsizetype at) {
    return at < text.size() && text[at] >= u'0' && text[at] <= u'9';
}

qsizetype SkipDigits(QStringView text, qsizetype at) {
    while (IsDigit(text, at))
        ++at;
    return at;
}

qsizetype SkipSign(QStringView text, qsizetype at) {
    return at < text.size() && (text[at] == u'+' || text[at] == u'-') ? at + 1 : at;
}

constexpr double ExactIntegers = 9007199254740992; // 2^53

/// So many digits always fit in a double.
constexpr qsizetype ExactDigits = 15;

double PlainNumber(QStringView digits) {
    std::int64_t number = 0;
    for (const QChar digit : digits)
        number = number * 10 + (digit.unicode() - u'0');
    return static_cast<double>(number);
}

} // namespace

double TextToNumber(QStringView text) {
    qsizetype start = 0;
    while (start < text.size() && text[start] == u' ')
        ++start;
    const qsizetype whole = SkipSign(text, start);
    qsizetype end = SkipDigits(text, whole);
    if (end == text.size() && whole == start && end - start <= ExactDigits)
        return PlainNumber(text.sliced(start)); // nearly every field
    bool hasDigits = end > whole;
    if (end < text.size() && text[end] == u'.') {
        const qsizetype fractionEnd = SkipDigits(text, end + 1);
        hasDigits = hasDigits || fractionEnd > end + 1;
        end = fractionEnd;
    }
    if (!hasDigits)
        return 0;
    if (end < text.size() && (text[end] == u'e' || text[end] == u'E')) {
        const qsizetype exponent = SkipSign(text, end + 1);
        if (IsDigit(text, exponent))
            end = SkipDigits(text, exponent);
    }
    return text.sliced(start, end - start).toDouble();
}

QString TextOrDefault(const QString& value, const QString& fallback) {
    return value.isEmpty() ? fallback : value;
}

bool FitsIn16Bits(double value) {
    using Limits = std::numeric_limits<std::int16_t>;
    const double rounded = std::nearbyint(value);
    return rounded >= Limits::min() && rounded <= Limits::max();
}

std::int16_t RoundTo16Bits(double value) {
    using Limits = std::numeric_limits<std::int16_t>;
    const double rounded = std::nearbyint(value);
    if (rounded < Limits::min())
        return Limits::min();
    return rounded <= Limits::max() ? static_cast<std::int16_t>(rounded) : Limits::max();
}

QString WholeText(double whole) {
    return WholeDigits(whole).View().toString();
}

WholeDigits::WholeDigits(double whole)
    : WholeDigits(static_cast<std::int64_t>(std::clamp(whole, -ExactIntegers, ExactIntegers))) {}

WholeDigits::WholeDigits(std::int64_t whole) {
    const auto bits = static_cast<std::uint64_t>(whole);
    std::uint64_t rest = whole < 0 ? 0 - bits : bits;
    do {
        units[static_cast<std::size_t>(--first)] = static_cast<char16_t>(u'0' + rest % 10);
        rest /= 10;
    } while (rest != 0);
    if (whole < 0)
        units[static_cast<std::size_t>(--first)] = u'-';
}

QString FloatText(float value) {
    constexpr int significantDigits = 7;
    std::array<char, 32>
        buffer; // a sign, seven digits, a full stop and an exponent fit in many times
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), static_cast<double>(value),
                      std::chars_format::general, significantDigits);
    return QString::fromLatin1(buffer.data(), end.ptr - buffer.data());
}

QString ProperCase(const QString& text) {
    QString result = text.toLower();
    bool beginsWord = true;
    for (QChar& character : result) {
        if (beginsWord)
            character = character.toUpper();
        beginsWord = character.isSpace() || character.isNull();
    }
    return result;
}

} // namespace Hesperin
