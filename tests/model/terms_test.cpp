#include "model/terms.h"

#include <gtest/gtest.h>

namespace Hesperin {

namespace {

TEST(Numbers, HaveSevenDigitsForAPersonAndAllThatDecideBeforeACut) {
    const struct {
        double value;
        const char* readable;
        const char* beforeCut;
    } cases[] = {
        {0, "0", "0"},
        {100, "100", "100"},
        {0.4, "0.4", "0.4"},
        {129.04161, "129.0416", "129.0416"},
        {static_cast<double>(0.35F) * 1000, "350", "349.99999"}, // 349 without its fraction
        {0.509999999, "0.51", "0.509999999"},                    // counts as 1, and 0.51 as 0
        {0.99999999, "1", "0.99999999"},
        {67987500.91, "67987501", "67987500.9"},
        {1e15, "1000000000000000", "1000000000000000"},
    };
    for (const auto& [value, readable, beforeCut] : cases) {
        EXPECT_EQ(ReadableNumber(value), readable);
        EXPECT_EQ(NumberBeforeCut(value), beforeCut);
    }
}

TEST(Traced, PutsBracketsWhereTheOrderNeedsThem) {
    const Traced a = Record::Known("a", 2);
    const Traced b = Record::Known("b", 3.5);
    const struct {
        Traced number;
        const char* expression;
        const char* numbers;
        double value;
    } cases[] = {
        {a + b + 1, "a + b + 1", "2 + 3.5 + 1", 6.5},
        {a + (b + 1), "a + (b + 1)", "2 + (3.5 + 1)", 6.5},
        {(a + b) * 2 / a, "(a + b) * 2 / a", "(2 + 3.5) × 2 / 2", 5.5},
        {a / (b * 2), "a / (b * 2)", "2 / (3.5 × 2)", 2.0 / 7},
        {a + b * 2, "a + b * 2", "2 + 3.5 × 2", 9},
        {RaisedTo(a / 4, a + 1), "pow(a / 4, a + 1)", "(2 / 4)^(2 + 1)", 0.125},
        {RootOf(a * 2) + 1.6F, "sqrt(a * 2) + 1.600000023841858", "√(2 × 2) + 1.6", 2 + double(1.6F)},
        {RoundTo16Bits(WholeValue(b + 1)), "round16(whole(b + 1))", "3.5 + 1", 4},
    };
    for (const auto& row : cases) {
        const Term term = row.number.AsTerm("x");
        EXPECT_EQ(term.expression, row.expression);
        EXPECT_EQ(term.numbers, row.numbers);
        EXPECT_EQ(term.value, row.value);
    }
}

} // namespace

} // namespace Hesperin
