#pragma once

#include <QStringView>

#include <cstdint>
#include <optional>

namespace Hesperin {

/// A decimal number as it is written, exact: `units` of 10^-`places`.
struct Decimal {
    std::int64_t units = 0;
    int places = 0;
};

inline constexpr int MostDigits = 18; // they fit into 64 bits
inline constexpr int MostDigitsOfWhole = 12;

/// An optional sign and digits with an optional full stop and fraction, at most 18 digits in all;
/// none for anything else.
std::optional<Decimal> ReadDecimal(QStringView text);

/// The whole number that `text` is, an optional sign and at most 12 digits; none for anything else.
std::optional<std::int64_t> ReadWhole(QStringView text);

/// Whether it is a whole number, be it too long for ReadWhole.
bool IsWhole(QStringView text);

/// `whole` + `sign` × `number`, or `whole` × `factor`, to the nearest whole number, halves away
/// from zero; none when that has more than 12 digits. `whole` has at most 12, `sign` is 1 or -1.
std::optional<std::int64_t> Sum(std::int64_t whole, const Decimal& number, int sign);
std::optional<std::int64_t> Product(std::int64_t whole, const Decimal& factor);

} // namespace Hesperin
