#include "text/numbers.h"

#include "support/test_program.h"
#include "text/fill.h"

#include <gtest/gtest.h>

#include <limits>

namespace Hesperin {

namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();

TEST(TextToNumber, TakesTheLongestNumberAtTheStart) {
    const std::pair<const char*, double> cases[] = {
        // clang-format off
        {"", 0},               {" ", 0},              {"7", 7},              {"  7", 7},
        {"00012", 12},         {"12abc", 12},         {"1 2", 1},            {"1,5", 1},
        {"5.", 5},             {".5", 0.5},           {"2.75", 2.75},        {"1.5.5", 1.5},
        {".", 0},              {"..5", 0},            {"+5", 5},             {"-0.4", -0.4},
        {"-.5", -0.5},         {"+", 0},              {"-", 0},              {"--5", 0},
        {"+-5", 0},            {"- 5", 0},            {"1e2", 100},          {"1E+2", 100},
        {"25e-1", 2.5},        {"5.e1", 50},          {".5e1", 5},           {"1e", 1},
        {"1e+", 1},            {"1e 2", 1},           {"1ex", 1},            {"e5", 0},
        {".e5", 0},            {"1e2.5", 100},        {"1e999", Infinity},   {"1e-999", 0},
        {"inf", 0},            {"infinity", 0},       {"nan", 0},            {"0x10", 0},
        {"&H10", 0},           {"1d2", 1},            {"\t7", 0},            {"\n7", 0},
        {"\u00A07", 0},        {"abc", 0},            {"Ж7", 0},             {"٣", 0},
        {"7٣", 7},             {"１２", 0},             {"-1e999", -Infinity}, {"32767.5", 32767.5},
        // clang-format on
    };
    for (const auto& [text, number] : cases)
        EXPECT_EQ(TextToNumber(QString(text)), number) << text;
}

TEST(RoundTo16Bits, TiesGoToTheEvenNumberAndTheRangeLimits) {
    const struct {
        double value;
        std::int16_t rounded;
        bool fits;
    } cases[] = {
        // clang-format off
        {0.4, 0, true},             {0.5, 0, true},             {1.5, 2, true},
        {2.5, 2, true},             {3.5, 4, true},             {2.5000001, 3, true},
        {-0.5, 0, true},            {-1.5, -2, true},           {-2.5, -2, true},
        {32767.4, 32767, true},     {32767.5, 32767, false},    {70000, 32767, false},
        {-32768.5, -32768, true},   {-32768.6, -32768, false},  {-1e300, -32768, false},
        {Infinity, 32767, false},   {-Infinity, -32768, false},
        // clang-format on
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.value);
        EXPECT_EQ(RoundTo16Bits(row.value), row.rounded);
        EXPECT_EQ(FitsIn16Bits(row.value), row.fits);
    }
}

TEST(NumberTexts, AreWholeOrOfSevenDigits) {
    const std::pair<QString, const char*> cases[] = {
        {WholeText(0), "0"},
        {WholeText(-7), "-7"},
        {WholeText(9007199254740992.0), "9007199254740992"},
        {WholeText(-1e20), "-9007199254740992"}, // the limit
        {WholeDigits(std::int64_t{-32768}).View().toString(), "-32768"},
        {WholeDigits(std::numeric_limits<std::int64_t>::max()).View().toString(), "9223372036854775807"},
        {FloatText(1), "1"},
        {FloatText(1.05F), "1.05"},
        {FloatText(100), "100"},
        {FloatText(2.0F / 3), "0.6666667"},
        {Fill("%2 and %1", {"a", "b"}), "b and a"},
        {Fill("%1 %2", {"%2", "%1"}), "%2 %1"}, // a file's name may look like a place
        {Fill("%1 %3 100% %", {"a"}), "a %3 100% %"},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(text, expected);
}

TEST(ProperCase, EveryWordBeginsWithOneUpperCaseLetter) {
    const std::pair<const char*, const char*> cases[] = {
        {"", ""},         {"TRUE", "True"},   {"мин.", "Мин."},           {"МАКС.", "Макс."},
        {"a bC", "A Bc"}, {" x\ty", " X\tY"}, {"BEAR_ROAR", "Bear_roar"}, {"1st o'neil", "1st O'neil"}};
    for (const auto& [text, proper] : cases)
        EXPECT_EQ(ProperCase(text), proper);
}

} // namespace

} // namespace Hesperin
