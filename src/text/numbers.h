// Numbers out of texts and texts out of numbers, without regard to the locale.
#pragma once

#include <QString>

#include <array>
#include <cstdint>

namespace Hesperin {

/// The longest number at the start of `text`, 0 when it starts with none: blanks, an optional sign,
/// digits with an optional full stop and fraction (or a fraction alone), an optional exponent. What
/// follows the number is ignored. A number beyond the range of a double gives infinity.
double TextToNumber(QStringView text);

/// `value`, or `fallback` when it is the empty text.
QString TextOrDefault(const QString& value, const QString& fallback);

/// The nearest whole number, ties to the even one; outside the 16-bit range its nearest end.
std::int16_t RoundTo16Bits(double value);

/// Whether RoundTo16Bits can hold the value without limiting it.
bool FitsIn16Bits(double value);

/// The decimal text of a whole number.
QString WholeText(double whole);

/// The decimal text of a whole number in a buffer of its own, to be compared or appended without an
/// allocation. Calculate makes some twenty of them a run. A double is limited to 2^53 either way;
/// no creature's Power reaches a thousandth of it.
class WholeDigits {
public:
    explicit WholeDigits(std::int64_t whole);
    explicit WholeDigits(double whole);
    explicit WholeDigits(std::int16_t whole) : WholeDigits(std::int64_t{whole}) {}

    QStringView View() const { return {units.data() + first, Room - first}; }

private:
    static constexpr int Room = 20; // the sign and the digits of any 64-bit integer

    std::array<char16_t, Room> units;
    int first = Room;
};

/// A 32-bit float with at most seven significant digits and no trailing zeros: "1.05".
QString FloatText(float value);

/// The first letter of each word in upper case, all other letters in lower case. Words are parted
/// by white space; an underscore doesn't begin one.
QString ProperCase(const QString& text);

} // namespace Hesperin
