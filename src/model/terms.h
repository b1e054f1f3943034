// How figures come about, step by step. The formulas stand in one place, as templates over their
// record: with Unrecorded they reckon with plain numbers and nothing else, with Record every step
// becomes a term that anybody can reckon anew.
#pragma once

#include "text/numbers.h"

#include <QString>

#include <cmath>
#include <concepts>
#include <vector>

namespace Hesperin {

/// One step. Its expression holds numbers, names of inputs and of earlier terms, + - * / ( ) and
/// pow(x, y), sqrt(x), whole(x) (WholeValue), round16(x) (RoundTo16Bits), float32(x), nothing else.
struct Term {
    QString id;         ///< a letter, then letters, digits, single underscores
    QString expression; ///< a plain number where the step is a choice or an entry of a table
    QString numbers; ///< the expression for a person, with the numbers put in: "1.035^4 × (5 / 2)"
    double value = 0;
};

/// A number for a person, with about seven digits.
QString ReadableNumber(double value);

/// The same of one that WholeValue cuts, with more digits where they decide what becomes of it.
QString NumberBeforeCut(double value);

/// The shortest decimal number that is exactly this one, without an exponent.
QString ExactNumber(double value);

/// A number that knows how it came about.
class Traced {
public:
    /// How tightly a text holds together: a part that does less than is needed gets brackets.
    enum class Binding : std::uint8_t { Sum, Product, Whole };

    template <typename Number>
    requires std::integral<Number> || std::floating_point<Number> Traced(Number number)
        : Traced(static_cast<double>(number), ExactNumber(number)) {}

    /// A number that has a name.
    Traced(double number, const QString& name);

    double Value() const { return value; }
    Term AsTerm(const QString& id) const { return {id, formal.text, shown.text, value}; }

    friend Traced operator+(const Traced& a, const Traced& b);
    friend Traced operator*(const Traced& a, const Traced& b);
    friend Traced operator/(const Traced& a, const Traced& b);
    friend Traced RaisedTo(const Traced& base, const Traced& exponent);
    friend Traced RootOf(const Traced& x);
    friend Traced WholeValue(const Traced& x);
    friend Traced RoundTo16Bits(const Traced& x);
    friend Traced CutTo32Bits(const Traced& x);

private:
    struct Wording {
        QString text;
        Binding binding = Binding::Whole;
    };

    Traced(double result, Wording expression, Wording numbers)
        : value(result), formal(std::move(expression)), shown(std::move(numbers)) {}

    static QString Within(const Wording& part, Binding least);
    static Traced Joined(const Traced& a, const Traced& b, char16_t sign, double result);
    static Traced Rounded(const Traced& x, QLatin1String function, double result);

    double value;
    Wording formal;
    Wording shown;
};

inline double RaisedTo(double base, double exponent) {
    return std::pow(base, exponent);
}

inline double RootOf(double x) {
    return std::sqrt(x);
}

inline float CutTo32Bits(float x) {
    return x;
}

inline float CutTo32Bits(double x) {
    return static_cast<float>(x);
}

/// Nothing is recorded, and nothing is paid for it.
struct Unrecorded {
    using Product = float;

    /// A number that already has a name: an input, or an earlier term.
    template <typename Number>
    static Number Known(const char*, Number number) {
        return number;
    }

    /// A step. The name is the two parts of it put together.
    template <typename Number>
    static Number Step(const char*, Number number) {
        return number;
    }
    static float Step(const char*, const char16_t*, float number) { return number; }

    /// A step whose value goes into `result`.
    template <typename Number>
    static Number Step(const char*, Number& result, Number number) {
        return result = number;
    }
};

/// Keeps every step.
class Record {
public:
    using Product = Traced;

    template <typename Number>
    static Traced Known(const char* id, Number number) {
        return {static_cast<double>(number), QString::fromLatin1(id)};
    }

    Traced Step(const char* id, const Traced& number) {
        return Add(QString::fromLatin1(id), number);
    }
    Traced Step(const char* prefix, const char16_t* name, const Traced& number) {
        return Add(QString::fromLatin1(prefix) + QString::fromUtf16(name), number);
    }

    template <typename Number>
    Traced Step(const char* id, Number& result, const Traced& number) {
        result = static_cast<Number>(number.Value());
        return Step(id, number);
    }

    const std::vector<Term>& Terms() const { return terms; }

private:
    Traced Add(const QString& id, const Traced& number);

    std::vector<Term> terms;
};

} // namespace Hesperin
