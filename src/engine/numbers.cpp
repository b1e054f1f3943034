#include "engine/numbers.h"

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

} // namespace

double TextToNumber(QStringView text) {
    qsizetype start = 0;
    while (start < text.size() && text[start] == u' ')
        ++start;
    const qsizetype whole = SkipSign(text, start);
    qsizetype end = SkipDigits(text, whole);
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

QString TextOrDefault(const QString& value, int fallback) {
    return value.isEmpty() ? QString::number(fallback) : value;
}

bool FitsIn16Bits(double value) {
    using Limits = std::numeric_limits<std::int16_t>;
    const double rounded = std::nearbyint(value);
    return rounded >= Limits::min() && rounded <= Limits::max();
}

std::int16_t RoundTo16Bits(double value) {
    using Limits = std::numeric_limits<std::int16_t>;
    if (!FitsIn16Bits(value))
        return value < 0 ? Limits::min() : Limits::max();
    return static_cast<std::int16_t>(std::nearbyint(value));
}

double WholeValue(double x) {
    constexpr double lastHundredthOfOne = 50;
    return std::floor(x * 100) > lastHundredthOfOne ? std::floor(x) : 1;
}

QString WholeText(double whole) {
    constexpr double exactIntegers = 9007199254740992; // 2^53
    if (std::abs(whole) < exactIntegers)               // ten times as quick as the way below
        return QString::number(static_cast<qint64>(whole));
    return QString::number(whole, 'f', 0);
}

QString FloatText(float value) {
    constexpr int significantDigits = 7;
    return QString::number(static_cast<double>(value), 'g', significantDigits);
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
