#include "storage/place_scale.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using storage::Place;
using storage::PlaceScale;

Place byKey(std::int64_t key)
{
    return {key, {}};
}

Place byText(std::int64_t key, const std::string& text)
{
    return {key, {text}};
}

TEST(PlaceScaleTest, KeysLieEvenlyBetweenTheEnds)
{
    const PlaceScale scale({byKey(11), byKey(1)});
    EXPECT_DOUBLE_EQ(scale.shareBefore(byKey(1)), 0);
    EXPECT_DOUBLE_EQ(scale.shareBefore(byKey(4)), 0.3);
    EXPECT_DOUBLE_EQ(scale.shareBefore(byKey(11)), 1);
    EXPECT_EQ(scale.placeAt(0).key, 0) << "in front of the first row";
    EXPECT_EQ(scale.placeAt(0.3).key, 3);
    EXPECT_EQ(scale.placeAt(1).key, 10);
}

TEST(PlaceScaleTest, WhatLiesOutsideIsAtTheEnds)
{
    const PlaceScale scale({byKey(5), byKey(9)});
    EXPECT_DOUBLE_EQ(scale.shareBefore(byKey(2)), 0);
    EXPECT_DOUBLE_EQ(scale.shareBefore(byKey(12)), 1);
    EXPECT_EQ(scale.placeAt(-0.5).key, 4);
    EXPECT_EQ(scale.placeAt(1.5).key, 8);
}

TEST(PlaceScaleTest, OneRowIsTheFirst)
{
    const PlaceScale scale({byText(7, "YO2ABC"), byText(7, "YO2ABC")});
    EXPECT_DOUBLE_EQ(scale.shareBefore(byText(7, "YO2ABC")), 0);
    for (const double share : {0.0, 0.4, 1.0})
        EXPECT_EQ(scale.placeAt(share).key, 6);
}

TEST(PlaceScaleTest, MarksShareOutTheRoom)
{
    const PlaceScale scale({byKey(1), byKey(1001), byKey(1011), byKey(1021), byKey(1031)});
    EXPECT_DOUBLE_EQ(scale.shareBefore(byKey(501)), 0.125);
    EXPECT_DOUBLE_EQ(scale.shareBefore(byKey(1016)), 0.625);
    EXPECT_EQ(scale.placeAt(0.125).key, 500);
    EXPECT_EQ(scale.placeAt(0.625).key, 1015);
}

TEST(PlaceScaleTest, TextsAreDividedByTheirFirstDifferentCharacters)
{
    const PlaceScale scale({byText(1, "YO2AA"), byText(2, "YO2QA")});
    EXPECT_DOUBLE_EQ(scale.shareBefore(byText(9, "YO2IA")), 0.5);
    EXPECT_DOUBLE_EQ(scale.shareBefore(byText(9, "yo2ia")), 0.5) << "capitals and small letters are the same";
    const Place middle = scale.placeAt(0.5);
    ASSERT_EQ(middle.order.size(), 1U);
    EXPECT_EQ(middle.order[0], "YO2ia");
    EXPECT_LT(middle.key, 0) << "in front of all rows of that call";
}

TEST(PlaceScaleTest, SignsAndOtherAlphabetsHaveTheirPlaces)
{
    std::vector<std::string> texts = {
        "",  " ", "!", "/",      "0",      "9",         "@",         "[",        "_",    "`",    "a",  "B",     "y",
        "Z", "{", "~", "\u0103", "\u0219", "YO2\u0103", "YO2\u0219", "YO2ABC/P", "YO2A", "YO2B", "YO", "4X1AA", "ZS6"};
    const auto compared = [](const std::string& a, const std::string& b) {
        return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
            const auto folded = [](char c) { return c >= 'A' && c <= 'Z' ? c + 32 : static_cast<unsigned char>(c); };
            return folded(x) < folded(y);
        });
    };
    std::sort(texts.begin(), texts.end(), compared);
    const PlaceScale scale({byText(1, texts.front()), byText(2, texts.back())});
    double before = 0;
    for (const std::string& text : texts) {
        const double share = scale.shareBefore(byText(5, text));
        EXPECT_GE(share, before) << text;
        before = share;
    }
    EXPECT_DOUBLE_EQ(before, 1);
}

TEST(PlaceScaleTest, RowsOfOneCallAreDividedByTheirKeys)
{
    const PlaceScale scale({byText(10, "YO2ABC"), byText(30, "yo2abc"), byText(2, "YO3A")});
    EXPECT_DOUBLE_EQ(scale.shareBefore(byText(20, "YO2ABC")), 0.25);
    EXPECT_EQ(scale.placeAt(0.25).key, 19);
    EXPECT_EQ(scale.placeAt(0.25).order[0], "YO2ABC");
    const Place behind = scale.placeAt(0.5);
    EXPECT_EQ(behind.key, 29) << "not back to the first row of the call";
    EXPECT_EQ(behind.order[0], "yo2abc");
}

TEST(PlaceScaleTest, NullComesFirst)
{
    const Place none{8, {std::nullopt, "B"}};
    const Place empty{1, {"", "A"}};
    const PlaceScale scale({empty, none, Place{3, {"144", "A"}}});
    EXPECT_DOUBLE_EQ(scale.shareBefore(none), 0);
    EXPECT_DOUBLE_EQ(scale.shareBefore(empty), 0.5);
    EXPECT_EQ(scale.placeAt(0).order[0], std::nullopt);
}

TEST(PlaceScaleTest, AGreaterShareIsNeverAnEarlierPlace)
{
    std::vector<Place> marks;
    for (int i = 0; i < 40; ++i)
        marks.push_back(byText(i % 7 * 100 + i, "YO" + std::to_string(i * i % 11) + std::string(1, char('A' + i % 3))));
    const PlaceScale scale(marks);
    double before = 0;
    for (int step = 0; step <= 2000; ++step) {
        // The share of the place there tells where it lies.
        Place place = scale.placeAt(step / 2000.0);
        ++place.key;
        const double share = scale.shareBefore(place);
        EXPECT_GE(share, before - 1e-9) << step;
        EXPECT_NEAR(share, step / 2000.0, 1e-3) << "keys are whole";
        before = share;
    }
}

}  // namespace
