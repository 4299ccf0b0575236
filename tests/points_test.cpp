// Points by contest, band and call; the multiplier of the summary; where the rose stands.
#include "geo/points.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "geo/locator.h"
#include "geo/rose.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"

namespace {

constexpr std::array<int, 11> allContests = {0, 1, 2, 3, 4, 5, 6, 7, 8, 100, 101};
constexpr const char* keep = "as it was";

/// A QSO over 300 km with a Romanian station; the last one was worth "as it was".
class Points : public testing::Test {
 protected:
    void SetUp() override
    {
        Modul1 = {};
        screen::rebuild(FrmQSO, screen::FormLife::neverLoaded);
        Modul1.MyQRA = "KN05OS";
        FrmQSO.TxtRSTr3.Text = "KN16AA";
    }

    static std::string points(int contest, long band, const std::string& call = "YO2ABC", double km = 300)
    {
        Modul1.ConcId = static_cast<std::uint16_t>(contest);
        Modul1.BandCur = static_cast<std::int32_t>(band);
        Modul1.Indic = call;
        Modul1.Qrb = km;
        Modul1.PctCur = keep;
        geo::ClcPct();
        return Modul1.PctCur;
    }

    static std::string pointsOfDuplicate(int contest, long band)
    {
        FrmQSO.DubActual = 10;
        return points(contest, band);
    }
};

constexpr std::array<long, 9> bands = {144, 432, 1296, 2320, 5760, 10380, 24192, 47088, 76000};

struct PointsRow {
    int contest;
    std::array<const char*, 9> of300km;
};

constexpr PointsRow pointsRows[] = {
    //     144    432    1296    2320   5760   10380   24192   47088   76000
    {0, {"300", "300", "300", keep, keep, keep, keep, keep, keep}},
    {1, {"300", "300", "300", "300", "300", "300", "300", "300", "300"}},
    {2, {"300", "300", "300", "300", "300", "300", "300", "300", "300"}},
    {3, {"300", "1500", "3000", keep, keep, keep, keep, keep, keep}},
    {4, {"300", "300", "300", "300", "300", "300", "300", "300", "300"}},
    {5, {"300", "600", "1200", keep, keep, keep, keep, keep, keep}},
    {6, {"300", "300", "300", "300", "300", "300", "300", "300", "300"}},
    {7, {"300", "300", "300", "300", "300", "300", "300", "300", "300"}},
    {8, {"300", "1500", "3000", keep, keep, keep, keep, keep, keep}},
    {100, {"300", "1500", "3000", "300", "900", "1800", "2700", "3600", "4500"}},
    {101, {"300", "300", "300", "300", "300", "300", "300", "300", "300"}},
};

TEST_F(Points, FollowContestAndBand)
{
    for (const PointsRow& row : pointsRows)
        for (std::size_t i = 0; i < bands.size(); ++i)
            EXPECT_EQ(points(row.contest, bands.at(i)), row.of300km.at(i)) << row.contest << " on " << bands.at(i);
}

TEST_F(Points, StayOnABandThatTheRuleDoesNotName)
{
    for (const int contest : {0, 3, 5, 8, 100})
        for (const long band : {0L, 1L, 50L, 10368L, 24048L})
            EXPECT_EQ(points(contest, band), keep) << contest << " on " << band;
}

TEST_F(Points, AreNeverSetInAContestThatIsNone)
{
    for (const int contest : {9, 99, 102})
        EXPECT_EQ(points(contest, 144), keep) << contest;
}

TEST_F(Points, AreWholeNumbersWithoutBlanks)
{
    EXPECT_EQ(points(3, 1296, "YO2ABC", 1), "10");
    EXPECT_EQ(points(2, 144, "YO2ABC", 40031), "40031");
    EXPECT_EQ(points(100, 76000, "HA5ABC", 4000), "60000");
}

struct PrefixRow {
    const char* call;
    bool counts;
};

constexpr PrefixRow prefixRows[] = {
    {"YO2ABC", true},  {"YR5XX", true},    {"YQ1A", true},   {"YP0C", true},    {"YO", true},
    {"HA5ABC", false}, {"LZ1KU", false},   {"YU1LA", false}, {"yo2abc", false}, {"Y", false},
    {"", false},       {"KYO2ABC", false}, {"OY2YO", false}, {"YOO", true},     {"DL/YO2ABC", false},
};

TEST_F(Points, CountRomanianCallsOnlyInTwoContests)
{
    for (const PrefixRow& row : prefixRows) {
        EXPECT_EQ(points(2, 144, row.call), row.counts ? "300" : "0") << row.call;
        EXPECT_EQ(points(2, 76000, row.call), row.counts ? "300" : "0") << row.call;
        EXPECT_EQ(points(5, 432, row.call), row.counts ? "600" : "0") << row.call;
        EXPECT_EQ(points(5, 2320, row.call), row.counts ? keep : "0") << row.call << " on a band without a value";
        EXPECT_EQ(geo::isRomanianCall(row.call), row.counts) << row.call;
    }
    for (const int contest : {0, 1, 3, 4, 6, 7, 8, 100, 101})
        EXPECT_EQ(points(contest, 144, "HA5ABC"), "300") << contest;
    EXPECT_EQ(points(2, 144, " YO2ABC"), "300") << "a blank in front is no part of the call";
}

enum class Flag { notLookedAt, taken };

struct FlagRow {
    int contest;
    long band;
    const char* points;
    Flag flag;
};

constexpr FlagRow flagRows[] = {
    {0, 144, "300", Flag::notLookedAt},
    {0, 2320, keep, Flag::notLookedAt},
    {1, 144, "300", Flag::notLookedAt},
    {2, 144, "300", Flag::notLookedAt},
    {3, 432, "1500", Flag::notLookedAt},
    {3, 2320, keep, Flag::notLookedAt},
    {5, 432, "600", Flag::notLookedAt},
    {5, 2320, keep, Flag::notLookedAt},
    {6, 144, "300", Flag::notLookedAt},
    {7, 432, "300", Flag::notLookedAt},

    {4, 144, "0", Flag::taken},
    {4, 432, "0", Flag::taken},
    {4, 76000, "0", Flag::taken},
    {101, 144, "0", Flag::taken},
    {101, 432, "0", Flag::taken},
    {101, 76000, "0", Flag::taken},

    // These two look at it only where they have no value.
    {8, 144, "300", Flag::notLookedAt},
    {8, 432, "1500", Flag::notLookedAt},
    {8, 1296, "3000", Flag::notLookedAt},
    {8, 2320, "0", Flag::taken},
    {8, 76000, "0", Flag::taken},
    {100, 144, "300", Flag::notLookedAt},
    {100, 432, "1500", Flag::notLookedAt},
    {100, 1296, "3000", Flag::notLookedAt},
    {100, 2320, "300", Flag::notLookedAt},
    {100, 76000, "4500", Flag::notLookedAt},
    {100, 10368, "0", Flag::taken},
    {100, 1, "0", Flag::taken},
};

TEST_F(Points, OfADuplicateThatLeavesThemToTheEarlierQso)
{
    for (const FlagRow& row : flagRows) {
        EXPECT_EQ(pointsOfDuplicate(row.contest, row.band), row.points) << row.contest << " on " << row.band;
        EXPECT_EQ(FrmQSO.DubActual, row.flag == Flag::taken ? 0 : 10) << row.contest << " on " << row.band;
    }
}

TEST_F(Points, ComeBackWithTheQsoBehindADuplicate)
{
    EXPECT_EQ(pointsOfDuplicate(4, 144), "0");
    EXPECT_EQ(points(4, 144), "300");
}

TEST_F(Points, OfTheFlagAskForTenExactly)
{
    FrmQSO.DubActual = 100;
    EXPECT_EQ(points(4, 144), "300");
    EXPECT_EQ(FrmQSO.DubActual, 100);
}

TEST_F(Points, AreOneInTheOwnLocatorWhateverTheRule)
{
    FrmQSO.TxtRSTr3.Text = " KN05OS ";
    for (const int contest : allContests)
        for (const long band : {144L, 1296L, 10368L, 76000L})
            EXPECT_EQ(points(contest, band, "LZ1KU"), "1") << contest << " on " << band;
    EXPECT_EQ(pointsOfDuplicate(4, 144), "1");
    EXPECT_EQ(FrmQSO.DubActual, 10) << "the rule was not asked";
}

TEST_F(Points, OfTheOwnLocatorAskTheFieldNotTheDistance)
{
    FrmQSO.TxtRSTr3.Text = "kn05os";
    EXPECT_EQ(points(3, 432), "1500");
    FrmQSO.TxtRSTr3.Text = "KN16AA";
    EXPECT_EQ(points(3, 432, "YO2ABC", 1), "5");
    FrmQSO.TxtRSTr3.Text = "";
    EXPECT_EQ(points(3, 432), "1500") << "a refused locator has just been emptied";
}

TEST(Multiplier, IsAnnouncedForTheseCellsOnly)
{
    const std::map<std::pair<int, long>, int> announced = {
        {{0, 432}, 5},     {{0, 1296}, 3}, {{3, 432}, 5},  {{3, 1296}, 10}, {{100, 432}, 5},
        {{100, 1296}, 10}, {{5, 432}, 2},  {{5, 1296}, 4}, {{7, 432}, 2},
    };
    for (const int contest : allContests)
        for (const long band : {0L, 1L, 144L, 432L, 1296L, 2320L, 76000L}) {
            const auto cell = announced.find({contest, band});
            const std::optional<int> expected = cell == announced.end() ? std::nullopt : std::optional(cell->second);
            EXPECT_EQ(geo::MultBand(contest, band), expected) << contest << " on " << band;
        }
}

/// The rose of a form of this width, in twips, in a contest.
class RoseTest : public testing::Test {
 protected:
    void SetUp() override
    {
        Modul1 = {};
        Modul1.Pi = geo::shortPi;
        screen::rebuild(FrmQSO, screen::FormLife::neverLoaded);
        FrmQSO.LblBeam1.place(11, 12, 100, 100);
        FrmQSO.LblQRB1.place(21, 22, 100, 100);
    }

    static void show(int contest, double width, std::int16_t heading = 0)
    {
        Modul1.ConcId = static_cast<std::uint16_t>(contest);
        FrmQSO.Width = width;
        FrmQSO.Beam = heading;
        geo::Medalion();
    }
};

struct RoseRow {
    const char* name;
    int contest;
    double width;
    screen::Rose rose;
    double beamLeft, beamTop;
    double kmLeft;
};

TEST_F(RoseTest, IsPlacedByTheWidthOfTheForm)
{
    const RoseRow rows[] = {
        //                        width  seen   X0    Y0    R   heading  beam label  km label
        {"small screen", 3, 9000, {true, 2850, 2475, 375, 45}, 11, 12, 21},
        {"design screen", 3, 12000, {true, 4300, 3500, 500, 45}, 11, 12, 21},
        {"large screen", 3, 18000, {true, 6750, 4500, 500, 45}, 11, 12, 21},
        {"small, Maraton", 7, 9000, {false, 0, 0, 0, 0}, 11, 12, 21},
        {"design, Maraton", 7, 12000, {true, 4000, 800, 500, 45}, 4800, 400, 21},
        {"large, Maraton", 7, 18000, {true, 4950, 4500, 500, 45}, 11, 12, 2850},
    };
    for (const RoseRow& row : rows) {
        SCOPED_TRACE(row.name);
        SetUp();
        show(row.contest, row.width, 45);
        EXPECT_EQ(FrmQSO.rose.visible, row.rose.visible);
        EXPECT_EQ(FrmQSO.rose.X0, row.rose.X0);
        EXPECT_EQ(FrmQSO.rose.Y0, row.rose.Y0);
        EXPECT_EQ(FrmQSO.rose.R, row.rose.R);
        EXPECT_EQ(FrmQSO.rose.heading, row.rose.heading);
        EXPECT_EQ(FrmQSO.LblBeam1.Left, row.beamLeft);
        EXPECT_EQ(FrmQSO.LblBeam1.Top, row.beamTop);
        EXPECT_EQ(FrmQSO.LblQRB1.Left, row.kmLeft);
        EXPECT_EQ(FrmQSO.Line4.Visible, row.rose.visible);
        EXPECT_FLOAT_EQ(Modul1.ScaleX, static_cast<float>(row.width / 12000));
    }
}

struct NeedleRow {
    std::int16_t heading;
    double x1, y1, x2, y2;  ///< from the centre
};

TEST_F(RoseTest, NeedlePointsTheWayThatTheAntennaTurns)
{
    const double half = std::sqrt(0.5);
    const NeedleRow rows[] = {
        {0, 0, -50, 0, -450},   {90, 50, 0, 450, 0},    {180, 0, 50, 0, 450},
        {270, -50, 0, -450, 0}, {360, 0, -50, 0, -450}, {45, 50 * half, -50 * half, 450 * half, -450 * half},
    };
    constexpr double nothing = 1e-6;
    for (const NeedleRow& row : rows) {
        SCOPED_TRACE(row.heading);
        show(3, 12000, row.heading);
        EXPECT_NEAR(FrmQSO.Line4.X1 - 4300, row.x1, nothing);
        EXPECT_NEAR(FrmQSO.Line4.Y1 - 3500, row.y1, nothing);
        EXPECT_NEAR(FrmQSO.Line4.X2 - 4300, row.x2, nothing);
        EXPECT_NEAR(FrmQSO.Line4.Y2 - 3500, row.y2, nothing);
    }
}

TEST_F(RoseTest, NeedleIsShorterOnASmallScreen)
{
    show(3, 9000, 90);
    EXPECT_NEAR(FrmQSO.Line4.X1 - FrmQSO.rose.X0, 50, 1e-6);
    EXPECT_NEAR(FrmQSO.Line4.X2 - FrmQSO.rose.X0, 325, 1e-6);
}

TEST_F(RoseTest, IsReplacedByTheNextQso)
{
    show(3, 12000, 90);
    show(3, 12000, 180);
    EXPECT_EQ(FrmQSO.rose.heading, 180);
    EXPECT_NEAR(FrmQSO.Line4.Y2 - FrmQSO.rose.Y0, 450, 1e-6);
}

}  // namespace
