// Distance and heading of the program against a second implementation by other formulas, and the page that lists where
// they differ on purpose.
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <numbers>
#include <sstream>
#include <string>
#include <vector>

#include "geo/locator.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"
#include "support/great_circle.h"
#include "support/running_program.h"

namespace {

using test::LocatorPair;
using test::Way;

constexpr std::size_t pairCount = 100000;
constexpr long double degree = std::numbers::pi_v<long double> / 180;

const std::vector<LocatorPair>& pairs()
{
    static const std::vector<LocatorPair> pairs = test::randomPairs(pairCount);
    return pairs;
}

Way wayOf(const LocatorPair& pair)
{
    return test::wayByVectors(test::placeOf(pair.own), test::placeOf(pair.other));
}

/// By the sines of half the differences, another formula once more.
long double angleByHalfSines(const LocatorPair& pair)
{
    const test::Place a = test::placeOf(pair.own);
    const test::Place b = test::placeOf(pair.other);
    const long double upward = std::sin((b.latitude - a.latitude) / 2);
    const long double sideward = std::sin((b.longitude - a.longitude) / 2);
    const long double square = upward * upward + std::cos(a.latitude) * std::cos(b.latitude) * sideward * sideward;
    return 2 * std::atan2(std::sqrt(square), std::sqrt(1 - square));
}

TEST(SecondOpinion, AgreesWithItselfByAnotherFormula)
{
    for (const LocatorPair& pair : pairs())
        ASSERT_LT(std::fabs(wayOf(pair).angle - angleByHalfSines(pair)), 1e-15L) << pair.own << " " << pair.other;
}

TEST(Distance, OfRandomPairsIsThatOfTheSecondOpinion)
{
    for (const LocatorPair& pair : pairs())
        ASSERT_EQ(test::distanceComplaint(pair, wayOf(pair)), "");
}

/// The short constant makes every way 23.4 m longer: so many of a hundred ways are rounded up that would be rounded
/// down.
TEST(Distance, IsOneKilometreMoreThanTheTrueOneWhereTheShortConstantTipsIt)
{
    std::size_t longer = 0;
    for (const LocatorPair& pair : pairs()) {
        const long double km = wayOf(pair).angle * test::sphereKm;
        const double over = test::programResult(pair).km - static_cast<double>(std::floor(km + 0.5L));
        ASSERT_TRUE(over == 0 || over == 1) << pair.own << " " << pair.other << " " << over;
        if (over == 0) continue;
        ++longer;
        const long double beforeTheHalf = std::ceil(km - 0.5L) + 0.5L - km;
        ASSERT_LT(beforeTheHalf, 0.0235L) << pair.own << " " << pair.other;
    }
    EXPECT_NEAR(static_cast<double>(longer) / pairCount, 0.0234, 0.002);
}

TEST(Heading, OfRandomPairsIsThatOfTheSecondOpinion)
{
    for (const LocatorPair& pair : pairs())
        ASSERT_EQ(test::headingComplaint(pair, wayOf(pair)), "");
}

struct Furthest {
    double fromKm, toKm;
    double degrees;  ///< from the true heading, its rounding to whole degrees included
};

/// As the page says it.
std::vector<Furthest> furthestOfPage();

/// Near a pole, along the equator, straight over a pole, or without a heading.
bool isListedCase(const LocatorPair& pair, const Way& way)
{
    const test::Place own = test::placeOf(pair.own);
    const bool onTheEquator = own.latitude == 0 && test::placeOf(pair.other).latitude == 0;
    const int heading = test::programResult(pair).heading;
    const bool overThePole = heading < 0 || (heading == 180 && std::cos(way.heading) > 0);
    return std::fabs(own.latitude) > 75 * degree || onTheEquator || overThePole;
}

TEST(Heading, IsAsNearToTheTrueOneAsThePageSays)
{
    std::vector<Furthest> rows = furthestOfPage();
    ASSERT_GE(rows.size(), 4U);
    std::vector<double> worst(rows.size());
    for (const LocatorPair& pair : pairs()) {
        const Way way = wayOf(pair);
        if (isListedCase(pair, way)) continue;
        const auto km = static_cast<double>(way.angle * test::sphereKm);
        for (std::size_t i = 0; i < rows.size(); ++i)
            if (km >= rows[i].fromKm && km < rows[i].toKm) worst[i] = std::max(worst[i], test::headingError(pair, way));
    }
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_LE(worst[i], rows[i].degrees + 1e-6) << "from " << rows[i].fromKm << " km";
        EXPECT_GT(worst[i], rows[i].degrees - 0.2) << "the page says too much from " << rows[i].fromKm << " km";
    }
}

// The tables of the page.

std::vector<std::string> cellsOf(const std::string& line)
{
    std::vector<std::string> cells;
    std::istringstream stream(line.substr(1));
    for (std::string cell; std::getline(stream, cell, '|');) {
        const std::size_t first = cell.find_first_not_of(' ');
        cells.push_back(first == std::string::npos ? "" : cell.substr(first, cell.find_last_not_of(' ') - first + 1));
    }
    return cells;
}

/// The rows of the table under a heading, without its head.
std::vector<std::vector<std::string>> tableUnder(const std::string& heading)
{
    std::ifstream page(KELVO_SOURCE_FOLDER "/docs/arithmetic.md");
    EXPECT_TRUE(page.is_open());
    std::vector<std::vector<std::string>> rows;
    bool here = false;
    for (std::string line; std::getline(page, line);) {
        if (line.starts_with("## ")) here = line == "## " + heading;
        if (here && line.starts_with("|")) rows.push_back(cellsOf(line));
    }
    EXPECT_GT(rows.size(), 2U) << heading;
    if (rows.size() > 2) rows.erase(rows.begin(), rows.begin() + 2);
    return rows;
}

std::vector<Furthest> furthestOfPage()
{
    std::vector<Furthest> rows;
    for (const std::vector<std::string>& cells : tableUnder("How far a heading is from the true one"))
        rows.push_back({std::stod(cells.at(0)), std::stod(cells.at(1)), std::stod(cells.at(2))});
    return rows;
}

std::string withoutTicks(std::string text)
{
    std::erase(text, '`');
    return text;
}

/// The program takes the locator of a QSO in a contest that takes all of them, behind a heading of 77 degrees.
void takeLocator(const LocatorPair& pair)
{
    Modul1.ConcId = 2;
    Modul1.MyQRA = pair.own;
    Modul1.QraLoc = pair.own;
    geo::ClcCoord();
    Modul1.LonMy = Modul1.LonCur;
    Modul1.LatMy = Modul1.LatCur;
    FrmQSO.Beam = 77;
    Modul1.QraLoc = pair.other;
    geo::ClcCoord();
    geo::CLCRicht();
}

std::string inKilometresAndDegrees(const Way& way)
{
    // North is 0.
    const double tenths = std::fmod(std::round(static_cast<double>(way.heading / degree) * 10), 3600);
    std::ostringstream text;
    text.setf(std::ios::fixed);
    text.precision(1);
    text << static_cast<double>(way.angle * test::sphereKm) << " km, " << tenths / 10 << "°";
    return text.str();
}

TEST(ArithmeticPage, EveryRowIsWhatTheProgramSays)
{
    const test::RunningProgram program;  // fresh forms
    for (const std::vector<std::string>& cells : tableUnder("Where the program differs on purpose")) {
        ASSERT_EQ(cells.size(), 6U) << cells.at(0);
        const LocatorPair pair{withoutTicks(cells[0]), withoutTicks(cells[1])};
        SCOPED_TRACE(pair.own + " to " + pair.other);
        takeLocator(pair);
        EXPECT_EQ(std::to_string(std::lround(Modul1.Qrb)) + " km", cells[2]);
        EXPECT_EQ(FrmQSO.Beam == 77 ? "the last one" : std::to_string(FrmQSO.Beam) + "°", cells[3]);
        if (cells[4] == "-") continue;
        EXPECT_EQ(inKilometresAndDegrees(wayOf(pair)), cells[4]);
    }
}

}  // namespace
