// Reckons an expression of an explanation, as anybody could who has nothing but its text.
#pragma once

#include <gtest/gtest.h>

#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace Hesperin {

class ExpressionReader {
public:
    ExpressionReader(const QString& expression, const QHash<QString, double>& names) : known(names) {
        static const QRegularExpression token("\\s*([A-Za-z][A-Za-z0-9_]*|[0-9.]+|.)");
        for (auto match = token.globalMatch(expression); match.hasNext();)
            tokens.append(match.next().captured(1));
    }

    double Read() {
        const double value = Sum();
        EXPECT_TRUE(tokens.isEmpty()) << "left over: " << tokens.join(' ').toStdString();
        return value;
    }

private:
    bool Take(const char* token) {
        const bool there = !tokens.isEmpty() && tokens.front() == token;
        if (there)
            tokens.removeFirst();
        return there;
    }

    double Sum() {
        double value = Product();
        while (!tokens.isEmpty())
            if (Take("+"))
                value += Product();
            else if (Take("-"))
                value -= Product();
            else
                break;
        return value;
    }

    double Product() {
        double value = Single();
        while (!tokens.isEmpty())
            if (Take("*"))
                value *= Single();
            else if (Take("/"))
                value /= Single();
            else
                break;
        return value;
    }

    double InBrackets() {
        const double value = Sum();
        EXPECT_TRUE(Take(")"));
        return value;
    }

    double Single() {
        if (Take("("))
            return InBrackets();
        const QString token = tokens.isEmpty() ? QString("nothing") : tokens.takeFirst();
        if (Take("("))
            return Function(token);
        if (known.contains(token))
            return known[token];
        bool isNumber = false;
        const double value = token.toDouble(&isNumber);
        EXPECT_TRUE(isNumber) << token.toStdString();
        return value;
    }

    double Function(const QString& name) {
        const double x = Sum();
        const double y = Take(",") ? Sum() : 0;
        EXPECT_TRUE(Take(")"));
        if (name == "pow")
            return std::pow(x, y);
        if (name == "sqrt")
            return std::sqrt(x);
        if (name == "whole")
            return std::floor(x * 100) > 50 ? std::floor(x) : 1;
        if (name == "round16")
            return std::clamp(std::nearbyint(x), -32768.0, 32767.0);
        EXPECT_EQ(name, "float32");
        return static_cast<double>(static_cast<float>(x));
    }

    const QHash<QString, double>& known;
    QStringList tokens;
};

inline double ValueOfExpression(const QString& expression, const QHash<QString, double>& names) {
    return ExpressionReader(expression, names).Read();
}

} // namespace Hesperin
