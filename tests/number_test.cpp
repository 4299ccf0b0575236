// Numbers: what counts as one, what does not fit, how codes are padded.
#include "base/number.h"

#include <gtest/gtest.h>

#include "base/runtime_error.h"
#include "support/error_of.h"

namespace {

using test::errorOf;

TEST(NumericValue, ReadsUpToTheFirstOtherCharacter)
{
    const struct {
        const char* text;
        double value;
    } rows[] = {
        {"", 0},    {"   ", 0},   {"12", 12},      {"  12", 12},   {"012", 12}, {"-7", -7},    {"+7", 7},
        {"- 7", 0}, {"2.5", 2.5}, {"2,5", 2},      {"2.5.1", 2.5}, {".5", 0.5}, {"5.", 5},     {"12 Km", 12},
        {"abc", 0}, {"1e5", 1},   {"12abc34", 12}, {"--5", 0},     {".", 0},    {"144A", 144},
    };
    for (const auto& row : rows)
        EXPECT_DOUBLE_EQ(base::numericValue(row.text), row.value) << '"' << row.text << '"';
}

TEST(NumericValue, NeverFailsOnManyDigits)
{
    EXPECT_GT(base::numericValue(std::string(500, '9')), 1e300);
    EXPECT_LT(base::numericValue("-" + std::string(500, '9')), -1e300);
}

TEST(ToInt16, TakesBlanksSignAndDigitsOnly)
{
    EXPECT_EQ(base::toInt16("012"), 12);
    EXPECT_EQ(base::toInt16("  12 "), 12);
    EXPECT_EQ(base::toInt16("-32768"), -32768);
    EXPECT_EQ(base::toInt16("+5"), 5);
    for (const char* text : {"", "  ", "12A", "1.5", "1 2", "-", "+-1", "0x10"})
        EXPECT_EQ(errorOf([&] { (void)base::toInt16(std::string_view(text)); }), base::notANumber) << text;
    EXPECT_EQ(errorOf([] { (void)base::toInt16("32768"); }), base::overflow);
    EXPECT_EQ(errorOf([] { (void)base::toInt16("99999999999999999999"); }), base::overflow);
}

TEST(CheckedArithmetic, OverflowsAt16And32Bits)
{
    EXPECT_EQ(base::toInt16(32767LL), 32767);
    EXPECT_EQ(errorOf([] { (void)base::toInt16(32768LL); }), base::overflow);
    EXPECT_EQ(errorOf([] { (void)base::toInt16(-32769LL); }), base::overflow);
    EXPECT_EQ(base::roundToInt32(2147483647.0), 2147483647);
    EXPECT_EQ(errorOf([] { (void)base::roundToInt32(2147483648.0); }), base::overflow);
    EXPECT_EQ(errorOf([] { (void)base::roundToInt16(40000.0); }), base::overflow);
}

TEST(Rounding, GoesToTheEvenNumberOnATie)
{
    EXPECT_EQ(base::roundToInt16(0.5), 0);
    EXPECT_EQ(base::roundToInt16(1.5), 2);
    EXPECT_EQ(base::roundToInt16(2.5), 2);
    EXPECT_EQ(base::roundToInt16(-1.5), -2);
    EXPECT_EQ(base::roundToInt32(2.51), 3);
}

TEST(PaddedCode, HasAtLeastThreeDigits)
{
    const struct {
        long last;
        const char* next;
    } rows[] = {{0, "001"}, {8, "009"}, {9, "010"}, {98, "099"}, {99, "100"}, {998, "999"}, {999, "1000"}};
    for (const auto& row : rows)
        EXPECT_EQ(base::paddedCode(row.last + 1), row.next);
}

}  // namespace
