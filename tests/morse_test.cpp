// The table of Morse codes and the times of its elements, all of them.
#include "keyer/morse.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "support/morse_model.h"

namespace {

constexpr std::int16_t tickBase = 20;

constexpr int speeds[] = {9,  10, 11, 12, 13, 14, 15, 16, 18, 20, 22, 24, 25,
                          26, 28, 30, 31, 32, 33, 34, 35, 36, 37, 38, 39, 40};

long whole(double milliseconds)
{
    return static_cast<long>(keyer::wholeMilliseconds(milliseconds).count());
}

TEST(MorseTable, HasItsRowsInOrder)
{
    ASSERT_EQ(keyer::MorseTab.size(), 44U);
    ASSERT_EQ(std::size(test::morseCodes), 44U);
    for (std::size_t row = 0; row < keyer::MorseTab.size(); ++row)
        EXPECT_EQ(std::string(keyer::MorseTab.at(row)),
                  test::morseCodes[row].symbol + std::string(test::morseCodes[row].code))
            << "row " << row + 1;
}

TEST(MorseTable, GivesEachSymbolACodeOfItsOwn)
{
    std::set<char> symbols;
    std::set<std::string> codes;
    for (const std::string row : keyer::MorseTab) {
        EXPECT_TRUE(symbols.insert(row.front()).second) << row;
        EXPECT_TRUE(codes.insert(row.substr(1)).second) << row;
        EXPECT_EQ(row.find_first_not_of(".-", 1), std::string::npos) << row;
    }
}

TEST(MorseTimes, AreWholeMillisecondsAtEverySpeed)
{
    for (const int wpm : speeds) {
        SCOPED_TRACE(wpm);
        const keyer::TimeUnits units = keyer::timeUnits(static_cast<float>(wpm), tickBase);
        const auto charUnit = static_cast<float>(units.CharUnit * keyer::spacing);
        const test::MorseTimes times = test::morseTimes(wpm);
        EXPECT_EQ(whole(keyer::elementTime(units.ElemUnit, 1)), times.dot);
        EXPECT_EQ(whole(keyer::elementTime(units.ElemUnit, 3)), times.dash);
        EXPECT_EQ(whole(keyer::letterSpaceTime(charUnit, units.ElemUnit)), times.letter);
        EXPECT_EQ(whole(keyer::blankTime(units.ElemUnit)), times.blank);
    }
}

struct UnitsRow {
    float wpm;
    double spacesAt;  ///< the speed that the spaces have
    double elementsAt;
};

constexpr UnitsRow unitsRows[] = {
    {9, 6, 13},   {10, 8, 13},  {11, 9, 13},  {11.5, 10.5, 13}, {12, 11, 13}, {12.5, 12.5, 13},
    {13, 13, 13}, {14, 14, 14}, {30, 30, 30}, {38, 38, 38},     {40, 40, 40},
};

TEST(MorseTimes, StretchOnlyTheSpacesBelowThirteen)
{
    for (const UnitsRow& row : unitsRows) {
        SCOPED_TRACE(row.wpm);
        const keyer::TimeUnits units = keyer::timeUnits(row.wpm, tickBase);
        EXPECT_FLOAT_EQ(units.CharUnit, static_cast<float>(20 / row.spacesAt));
        EXPECT_FLOAT_EQ(units.ElemUnit, static_cast<float>(20 / row.elementsAt));
    }
}

TEST(MorseTimes, CountDotsAtThirtyWords)
{
    const keyer::TimeUnits units = keyer::timeUnits(30, tickBase);
    const auto charUnit = static_cast<float>(units.CharUnit * keyer::spacing);
    const double dot = keyer::elementTime(units.ElemUnit, 1);
    EXPECT_NEAR(dot, 36.6, 0.05);
    EXPECT_NEAR(dot * 30, 1099, 0.5);
    EXPECT_NEAR(keyer::elementTime(units.ElemUnit, 3) / dot, 3, 1e-6);
    EXPECT_NEAR((dot + keyer::letterSpaceTime(charUnit, units.ElemUnit)) / dot, 4.2, 1e-6);
    EXPECT_NEAR(keyer::blankTime(units.ElemUnit) / dot, 4, 1e-6);
    EXPECT_EQ(whole(dot), 37);
    EXPECT_EQ(whole(keyer::letterSpaceTime(charUnit, units.ElemUnit)), 117);
}

TEST(MorseTimes, RoundATieToTheEvenNumber)
{
    EXPECT_EQ(whole(0.5), 0);
    EXPECT_EQ(whole(1.5), 2);
    EXPECT_EQ(whole(36.5), 36);
    EXPECT_EQ(whole(36.51), 37);
    EXPECT_EQ(whole(37.5), 38);
    EXPECT_EQ(whole(37.49), 37);
}

}  // namespace
