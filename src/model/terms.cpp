#include "model/terms.h"

#include "model/formulas.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace Hesperin {

namespace {

using Binding = Traced::Binding;

constexpr std::size_t RoomForANumber = 400; // without an exponent the largest has 309 digits

constexpr int MostDecimals = 17;

/// So many that a number has seven digits.
int DecimalsOf(double value) {
    constexpr int digits = 7;
    const double size = std::abs(value);
    const int before = size < 1 ? 1 : 1 + static_cast<int>(std::log10(size));
    return std::max(digits - before, 0);
}

/// Without zeros at the end.
QString FixedNumber(double value, int decimals) {
    std::array<char, RoomForANumber> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                   std::chars_format::fixed, decimals);
    QString text = QString::fromLatin1(buffer.data(), end.ptr - buffer.data());
    if (!text.contains(u'.'))
        return text;
    while (text.endsWith(u'0'))
        text.chop(1);
    if (text.endsWith(u'.'))
        text.chop(1);
    return text;
}

} // namespace

QString ReadableNumber(double value) {
    return FixedNumber(value, DecimalsOf(value));
}

QString NumberBeforeCut(double value) {
    QString text = ReadableNumber(value);
    for (int decimals = DecimalsOf(value);
         decimals < MostDecimals && WholeValue(text.toDouble()) != WholeValue(value); ++decimals)
        text = FixedNumber(value, decimals + 1);
    return text;
}

QString ExactNumber(double value) {
    std::array<char, RoomForANumber> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                   std::chars_format::fixed);
    return QString::fromLatin1(buffer.data(), end.ptr - buffer.data());
}

Traced::Traced(double number, const QString& name)
    : value(number), formal{name}, shown{ReadableNumber(number)} {}

QString Traced::Within(const Wording& part, Binding least) {
    return part.binding >= least ? part.text : u'(' + part.text + u')';
}

/// Reckoned from left to right: a part on the right that binds no tighter gets brackets.
Traced Traced::Joined(const Traced& a, const Traced& b, char16_t sign, double result) {
    const bool sum = sign == u'+';
    const Binding left = sum ? Binding::Sum : Binding::Product;
    const Binding right = sum ? Binding::Product : Binding::Whole;
    const auto join = [=](const Wording& first, const Wording& second, QChar between) {
        return Wording{Within(first, left) + u' ' + between + u' ' + Within(second, right), left};
    };
    return {result, join(a.formal, b.formal, sign),
            join(a.shown, b.shown, sign == u'*' ? u'×' : sign)};
}

/// A person sees the cut by what stands in front of it and behind it.
Traced Traced::Rounded(const Traced& x, QLatin1String function, double result) {
    return {result, {function + u'(' + x.formal.text + u')'}, x.shown};
}

Traced operator+(const Traced& a, const Traced& b) {
    return Traced::Joined(a, b, u'+', a.value + b.value);
}

Traced operator*(const Traced& a, const Traced& b) {
    return Traced::Joined(a, b, u'*', a.value * b.value);
}

Traced operator/(const Traced& a, const Traced& b) {
    return Traced::Joined(a, b, u'/', a.value / b.value);
}

Traced RaisedTo(const Traced& base, const Traced& exponent) {
    return {RaisedTo(base.value, exponent.value),
            {QStringLiteral("pow(") + base.formal.text + QStringLiteral(", ") +
             exponent.formal.text + u')'},
            {Traced::Within(base.shown, Binding::Whole) + u'^' +
             Traced::Within(exponent.shown, Binding::Whole)}};
}

Traced RootOf(const Traced& x) {
    return {RootOf(x.value),
            {QStringLiteral("sqrt(") + x.formal.text + u')'},
            {u'√' + Traced::Within(x.shown, Binding::Whole)}};
}

Traced WholeValue(const Traced& x) {
    return Traced::Rounded(x, QLatin1String("whole"), WholeValue(x.value));
}

Traced RoundTo16Bits(const Traced& x) {
    return Traced::Rounded(x, QLatin1String("round16"), RoundTo16Bits(x.value));
}

Traced CutTo32Bits(const Traced& x) {
    return Traced::Rounded(x, QLatin1String("float32"),
                           static_cast<double>(static_cast<float>(x.value)));
}

Traced Record::Add(const QString& id, const Traced& number) {
    terms.push_back(number.AsTerm(id));
    return {number.Value(), id};
}

} // namespace Hesperin
