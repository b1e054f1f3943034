#include "text/decimal.h"

#include <QString>

#include <algorithm>

namespace Hesperin {

namespace {

constexpr std::int64_t LargestWhole = 999'999'999'999;

__extension__ using Wide = __int128; // a number of 12 digits and one of 18, multiplied

Wide TenTo(int places) {
    Wide power = 1;
    for (int i = 0; i < places; ++i)
        power *= 10;
    return power;
}

/// `number` of 10^-`places`, to the nearest whole one.
std::optional<std::int64_t> Rounded(Wide number, int places) {
    const Wide one = TenTo(places);
    const Wide half = number < 0 ? -one / 2 : one / 2;
    const Wide whole = (number + half) / one;
    if (whole > LargestWhole || whole < -LargestWhole)
        return std::nullopt;
    return static_cast<std::int64_t>(whole);
}

QStringView WithoutSign(QStringView text) {
    return text.sliced(text.startsWith(u'-') || text.startsWith(u'+') ? 1 : 0);
}

bool AreDigits(QStringView text) {
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar digit) {
        return digit >= u'0' && digit <= u'9';
    });
}

} // namespace

std::optional<Decimal> ReadDecimal(QStringView text) {
    const QStringView digits = WithoutSign(text);
    const qsizetype stop = digits.indexOf(u'.');
    const QString all = QString(digits.toString()).remove(stop < 0 ? digits.size() : stop, 1);
    if (all.size() > MostDigits || !AreDigits(all))
        return std::nullopt;
    const std::int64_t units = all.toLongLong();
    return Decimal{text.startsWith(u'-') ? -units : units,
                   stop < 0 ? 0 : static_cast<int>(digits.size() - stop - 1)};
}

std::optional<std::int64_t> ReadWhole(QStringView text) {
    if (!IsWhole(text) || WithoutSign(text).size() > MostDigitsOfWhole)
        return std::nullopt;
    return ReadDecimal(text)->units;
}

bool IsWhole(QStringView text) {
    return AreDigits(WithoutSign(text));
}

std::optional<std::int64_t> Sum(std::int64_t whole, const Decimal& number, int sign) {
    return Rounded(Wide{whole} * TenTo(number.places) + sign * Wide{number.units}, number.places);
}

std::optional<std::int64_t> Product(std::int64_t whole, const Decimal& factor) {
    return Rounded(Wide{whole} * factor.units, factor.places);
}

} // namespace Hesperin
