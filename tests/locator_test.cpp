// Locators: where they lie, which of them a contest takes, how far away they are and in what direction.
#include "geo/locator.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <optional>
#include <string>

#include "base/runtime_error.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"
#include "support/running_program.h"

namespace {

constexpr double degree = 3.14159265358979 / 180;
constexpr double halfLetter = 0.5;

struct PositionRow {
    const char* locator;
    double longitude, latitude;  ///< degrees
};

constexpr PositionRow positionRows[] = {
    // The south-west corner of the subsquare.
    {"JJ00AA", 0, 0},
    {"AA00AA", -180, -90},
    {"RR99XX", 160 + 18 + 23.0 / 12, 80 + 9 + 23.0 / 24},
    {"KN05OS", 20 + 14.0 / 12, 40 + 5 + 18.0 / 24},
    {"JJ10AA", 2, 0},
    {"JJ01AA", 0, 1},
    {"JJ00BA", 1.0 / 12, 0},
    {"JJ00AB", 0, 1.0 / 24},

    // Every letter that is missing counts by itself.
    {"KN05", 21, 45 + halfLetter},
    {"KN05A", 20, 45 + halfLetter},
    {"KN0", 21, 40 + halfLetter},
    {"KN", 21, 40 + halfLetter},
    {"K", 21, halfLetter},
    {"", 1, halfLetter},

    // Nothing is checked.
    {"KNABMM", 21, 40 + halfLetter},
    {"KN+5MM", 21, 45 + halfLetter},
    {"KN.5MM", 21, 45 + halfLetter},
    {"kn05MM", 20 + 32 * 20 + 1, 40 + 32 * 10 + 5 + halfLetter},
    {"KN05os", 20 + 46.0 / 12, 45 + 50.0 / 24},
    {"KN05OSZZ", 20 + 14.0 / 12, 45 + 18.0 / 24},
};

TEST(Position, IsReadFromTheLocator)
{
    for (const PositionRow& row : positionRows) {
        const geo::Position position = geo::positionOf(row.locator);
        EXPECT_NEAR(position.longitude / degree, row.longitude, 1e-9) << row.locator;
        EXPECT_NEAR(position.latitude / degree, row.latitude, 1e-9) << row.locator;
    }
}

TEST(CentralAngle, IsTheFullCircleFromOneOn)
{
    const struct {
        double cosine, angle;
    } rows[] = {
        {-1.5, 3.14159265358979},
        {-1, 3.14159265358979},
        {1, 2 * 3.14159265358979},
        {1.5, 2 * 3.14159265358979},
        {0, 1.5708},
        {0.5, 1.5708 - std::atan(0.5 / std::sqrt(0.75))},
        {-0.5, 1.5708 + std::atan(0.5 / std::sqrt(0.75))},
    };
    for (const auto& row : rows)
        EXPECT_DOUBLE_EQ(geo::centralAngle(row.cosine), row.angle) << row.cosine;
}

TEST(CentralAngle, OfEqualPositionsHasTheCosineOneExactly)
{
    // Rounding alone leaves the cosine below 1 for every fifth latitude.
    for (char field = 'A'; field <= 'R'; ++field)
        for (char square = '0'; square <= '9'; ++square)
            for (char subsquare = 'A'; subsquare <= 'X'; ++subsquare) {
                const std::string locator{'K', field, '0', square, 'O', subsquare};
                const geo::Position position = geo::positionOf(locator);
                EXPECT_EQ(geo::angleCosine(position, position), 1) << locator;
            }
}

TEST(Kilometres, AreWholeAndRoundedAtTheHalf)
{
    const struct {
        double angle, km;
    } rows[] = {
        {3.14159265358979, 20015},
        {2 * 3.14159265358979, 40031},
        {0, 0},
        {1, 6371},
        {0.49 / 6371.1, 0},
        {0.51 / 6371.1, 1},
        {1.49 / 6371.1, 1},
        {1.51 / 6371.1, 2},
    };
    for (const auto& row : rows)
        EXPECT_EQ(geo::kilometres(row.angle), row.km) << row.angle;
}

int headingError(const geo::Position& own, const geo::Position& other, double angle)
{
    try {
        (void)geo::beamHeading(own, other, angle);
    } catch (const base::RuntimeError& error) {
        return error.number();
    }
    return 0;
}

TEST(Heading, HasItsOwnResultsAtTheEnds)
{
    const geo::Position equator{0, 0};
    EXPECT_EQ(geo::beamHeading(equator, {0.1, 0}, 1), 360) << "the heading cosine is 0";
    EXPECT_EQ(geo::beamHeading(equator, {-0.1, 0}, 1), 0) << "the same in the west";
    EXPECT_EQ(geo::beamHeading(equator, {0.1, 1}, 1), 180) << "it is 1";
    EXPECT_EQ(geo::beamHeading(equator, {-0.1, 1}, 1), 180) << "the same in the west";
    EXPECT_EQ(geo::beamHeading(equator, {0.1, 1.1}, 1), 180) << "it is above 1";
    EXPECT_EQ(headingError(equator, {0.1, -1}, 1), base::divisionByZero) << "it is -1";
    EXPECT_EQ(headingError(equator, {0.1, -1.1}, 1), base::invalidArgument) << "it is below -1";
    EXPECT_EQ(headingError(equator, {0.1, 0.5}, 0), base::divisionByZero) << "no angle";
}

/// A latitude that is seen from 0, 0 at `angle` in exactly this direction, before rounding, going east.
std::optional<double> latitudeSeenAt(double degrees, double angle)
{
    const auto direction = [&](double latitude) {
        const double y = std::sin(latitude) / std::sin(angle);
        return (std::atan(-y / std::sqrt(1 - y * y)) + 1.5708) * 180 / 3.14159265358979;
    };
    double latitude = std::asin(std::sin(angle) * std::cos(degrees * degree - 0.0000036732));
    for (int i = 0; i < 100000 && direction(latitude) != degrees; ++i)
        latitude = std::nextafter(latitude, direction(latitude) > degrees ? 2 : -2);
    return direction(latitude) == degrees ? std::optional(latitude) : std::nullopt;
}

TEST(Heading, IsRoundedAndATieGoesToTheEvenNumber)
{
    int ties = 0;
    for (int whole = 20; whole < 160; ++whole) {
        const auto latitude = latitudeSeenAt(whole + 0.5, 1);
        if (!latitude) continue;
        ++ties;
        const int even = whole % 2 == 0 ? whole : whole + 1;
        EXPECT_EQ(geo::beamHeading({0, 0}, {0.1, *latitude}, 1), even) << whole;
        EXPECT_EQ(geo::beamHeading({0, 0}, {-0.1, *latitude}, 1), 360 - even) << whole << " in the west";
    }
    EXPECT_GT(ties, 20) << "not many of the directions tried can be met exactly";
}

/// The operator of a station takes a locator.
class LocatorEntry : public testing::Test {
 protected:
    void SetUp() override { ownLocator("KN05OS"); }

    static void ownLocator(const std::string& locator)
    {
        Modul1.MyQRA = locator;
        Modul1.QraLoc = locator;
        geo::ClcCoord();
        Modul1.LonMy = Modul1.LonCur;
        Modul1.LatMy = Modul1.LatCur;
    }

    static void take(const std::string& locator, int contest)
    {
        Modul1.ConcId = static_cast<std::uint16_t>(contest);
        Modul1.QraLoc = locator;
        FrmQSO.QraRefuz = 0;
        FrmQSO.TxtRSTr3.Text = locator;
        FrmQSO.TxtRSTr3.Enabled = true;
        FrmQSO.TxtRez.SetFocus();
        geo::ClcCoord();
        geo::CLCRicht();
    }

    std::string refusalOf(const std::string& locator, int contest)
    {
        take(locator, contest);
        const auto box = program.box();
        EXPECT_EQ(FrmQSO.QraRefuz, box ? 100 : 0) << locator << " in " << contest;
        EXPECT_EQ(FrmQSO.TxtRSTr3.Text, box ? "" : locator) << locator << " in " << contest;
        EXPECT_EQ(FrmQSO.ActiveControl == &FrmQSO.TxtRSTr3, box.has_value()) << locator << " in " << contest;
        EXPECT_FALSE(program.box()) << locator << " in " << contest << ": one box is enough";
        if (!box) return "";
        EXPECT_EQ(box->request.title, "");
        return std::to_string(box->request.style) + "|" + box->request.text;
    }

    test::RunningProgram program;
};

constexpr std::array<int, 11> allContests = {0, 1, 2, 3, 4, 5, 6, 7, 8, 100, 101};
constexpr std::array<int, 4> romanianContests = {0, 1, 6, 7};
constexpr std::array<int, 7> openContests = {2, 3, 4, 5, 8, 100, 101};
constexpr std::array<int, 4> limitedContests = {3, 4, 5, 100};

const std::string incorrect = "48|QRALoc INCORECT. INTRODUCETI QRALoc CORECT !";

std::string otherField(const std::string& locator)
{
    return "0|QRA Loc introdus = " + locator + " Nu este in YO. Introduceti din nou QRA Loc";
}

std::string otherSquare(const std::string& locator)
{
    return "0|QRA Loc introdus = " + locator + " nu este in YO!!!. Introduceti din nou QRA Loc";
}

std::string tooFar(const std::string& locator)
{
    return "0|Distanta > 4000 Km. QRA Loc introdus = " + locator + " Introduceti din nou QRA Loc";
}

TEST_F(LocatorEntry, WritesThePositionAndItsConstants)
{
    Modul1.Pi = 0;
    Modul1.DegRad = 0;
    take("KN16AA", 3);
    EXPECT_EQ(Modul1.Pi, 3.14159265358979);
    EXPECT_EQ(Modul1.DegRad, 3.14159265358979 / 180);
    EXPECT_NEAR(Modul1.LonCur, 22 * degree, 1e-12);
    EXPECT_NEAR(Modul1.LatCur, 46 * degree, 1e-12);
    EXPECT_NEAR(Modul1.LonMy, (20 + 14.0 / 12) * degree, 1e-12);
    EXPECT_NEAR(Modul1.LatMy, 45.75 * degree, 1e-12);
}

struct DistanceRow {
    const char* own;
    const char* other;
    double km;
    int beam;
    const char* note;
};

constexpr DistanceRow distanceRows[] = {
    {"KN05OS", "KN16AA", 70, 66, "north-east"},
    {"KN05OS", "KN04FF", 181, 199, "south-west"},
    {"KN05OS", "JN88TT", 433, 323, "north-west"},
    {"KN05OS", "KN44HK", 601, 102, "south-east"},
    {"KN05OS", "IO91WM", 1686, 300, "far"},
    {"KN05OS", "KP20KE", 1621, 7, "north"},
    {"KN05OS", "JM77AA", 1141, 214, "south"},
    {"KN05OS", "FN31PR", 7098, 304, "over the ocean"},
    {"KN05OS", "KN05OT", 5, 6, "one subsquare to the north: the short constant turns it"},
    {"KN05OS", "KN05OR", 5, 174, "one subsquare to the south"},
    {"KN05OS", "KN00CW", 544, 189, "543.4893 with a longer constant"},
    {"KN05OS", "KN00JM", 585, 183, "183.5001 with a longer constant"},
    {"KN05OS", "KN07BA", 162, 329, "329.5002 with a longer constant"},
    {"JJ00AA", "JJ10AA", 222, 360, "due east along the equator: 360, not 90"},
    {"JJ00AA", "IJ90AA", 222, 0, "due west along the equator: 0, not 270"},
    {"KN05OS", "KN05OS", 1, 360, "the own locator"},
    {"KN05", "KN05MM", 40031, 360, "one position in two texts: the full circle"},
    {"KO03", "KO03MM", 40031, 360, "the same where rounding alone would end below 1"},
    {"KN05MM", "KN05MM", 1, 360, "the same in one text"},
    {" KN05OS ", "KN05OS", 1, 0, "blanks around the own locator"},
    {"JJ00AA", "AJ00AA", 20015, 0, "antipodes"},
};

TEST_F(LocatorEntry, GivesDistanceAndHeading)
{
    for (const DistanceRow& row : distanceRows) {
        SCOPED_TRACE(std::string(row.own) + " to " + row.other + ", " + row.note);
        ownLocator(row.own);
        EXPECT_EQ(refusalOf(row.other, 2), "");
        EXPECT_EQ(Modul1.Qrb, row.km);
        EXPECT_EQ(FrmQSO.LblQRB1.Caption, std::to_string(std::lround(row.km)) + " Km");
        if (row.own[0] == ' ') continue;
        EXPECT_EQ(FrmQSO.Beam, row.beam);
        EXPECT_EQ(FrmQSO.LblBeam1.Caption, std::to_string(row.beam) + " °");
    }
}

TEST_F(LocatorEntry, FullCircleIsTooFarWhereThereIsALimit)
{
    ownLocator("KN05");
    for (const int contest : limitedContests)
        EXPECT_EQ(refusalOf("KN05MM", contest), tooFar("KN05MM")) << contest;
    for (const int contest : {0, 1, 2, 6, 7, 8, 101}) {
        EXPECT_EQ(refusalOf("KN05MM", contest), "") << contest;
        EXPECT_EQ(Modul1.Qrb, 40031) << contest;
    }
}

TEST_F(LocatorEntry, OwnLocatorIsNeverTooFar)
{
    for (const int contest : allContests) {
        EXPECT_EQ(refusalOf("KN05OS", contest), "") << contest;
        EXPECT_EQ(FrmQSO.LblQRB1.Caption, "1 Km") << contest;
    }
}

struct LimitRow {
    const char* locator;
    double km;
};

TEST_F(LocatorEntry, LimitIsFourThousandKilometres)
{
    const LimitRow within[] = {
        {"HQ30AA", 3999}, {"KK61AA", 3999}, {"IK69AA", 4000}, {"JR01AA", 4000}, {"MQ37AA", 4000}};
    const LimitRow beyond[] = {{"IQ29AA", 4001}, {"HN47AA", 4002}, {"FN31PR", 7098}};
    for (const int contest : limitedContests) {
        for (const LimitRow& row : within) {
            EXPECT_EQ(refusalOf(row.locator, contest), "") << contest;
            EXPECT_EQ(Modul1.Qrb, row.km) << row.locator;
        }
        for (const LimitRow& row : beyond) {
            EXPECT_EQ(refusalOf(row.locator, contest), tooFar(row.locator)) << contest;
            EXPECT_EQ(Modul1.Qrb, row.km) << row.locator;
        }
    }
    for (const int contest : {2, 8, 101})
        for (const LimitRow& row : beyond)
            EXPECT_EQ(refusalOf(row.locator, contest), "") << contest;
}

TEST_F(LocatorEntry, ALocatorTooFarAwayLeavesTheLabels)
{
    take("KN16AA", 3);
    take("FN31PR", 3);
    EXPECT_EQ(FrmQSO.LblQRB1.Caption, "70 Km");
    EXPECT_EQ(FrmQSO.LblBeam1.Caption, "66 °");
    EXPECT_EQ(FrmQSO.Beam, 66);
}

// The squares of KN, by their tens: "#" lies in Romania.
constexpr std::array<const char*, 10> romanianSquares = {
    // 0123456789
    "....####..",  //  0
    "...######.",  // 10
    "...#####..",  // 20
    "...######.",  // 30
    "...####...",  // 40
    "..........",  // 50
    "..........",  // 60
    "..........",  // 70
    "..........",  // 80
    "..........",  // 90
};

std::string square(std::size_t tens, std::size_t ones)
{
    return "KN" + std::to_string(tens) + std::to_string(ones) + "AA";
}

TEST_F(LocatorEntry, RomanianContestsTakeRomanianSquares)
{
    for (const int contest : romanianContests)
        for (std::size_t tens = 0; tens < 10; ++tens)
            for (std::size_t ones = 0; ones < 10; ++ones) {
                const std::string locator = square(tens, ones);
                const bool romanian = romanianSquares.at(tens)[ones] == '#';
                EXPECT_EQ(refusalOf(locator, contest), romanian ? "" : otherSquare(locator)) << contest;
            }
}

TEST_F(LocatorEntry, OtherContestsTakeAllSquares)
{
    for (const int contest : openContests)
        for (std::size_t tens = 0; tens < 10; ++tens)
            for (std::size_t ones = 0; ones < 10; ++ones)
                EXPECT_EQ(refusalOf(square(tens, ones), contest), "") << contest << " " << square(tens, ones);
}

TEST_F(LocatorEntry, RomanianContestsTakeNoOtherField)
{
    for (const char* locator : {"KO05AA", "JN05AA", "LN05AA", "KM05AA", "NK05AA", "ZZ05AA", "JJ00AA"}) {
        for (const int contest : romanianContests)
            EXPECT_EQ(refusalOf(locator, contest), otherField(locator)) << contest;
        EXPECT_EQ(refusalOf(locator, 2), "");
    }
}

TEST_F(LocatorEntry, RefusesWhatIsNoCapitalLetter)
{
    for (const char* locator :
         {"kN05OS", "Kn05OS", "KN05oS", "KN05Os", "kn05os", "1N05OS", "K105OS", "KN051S", "KN05O1", " N05OS", "KN05O ",
          "@N05OS", "[N05OS", "KN05@S", "KN05O[", "ŞN05OS", "KN05OŞ"})
        for (const int contest : allContests)
            EXPECT_EQ(refusalOf(locator, contest), incorrect) << locator << " in " << contest;
}

TEST_F(LocatorEntry, RefusesASquareThatIsNoNumber)
{
    for (const char* locator :
         {"KN3ABC", "KNA5OS", "KNABOS", "KN-5OS", "KN 5OS", "KN5 OS", "KN.5OS", "KN+5OS", "JN4ABC"})
        for (const int contest : allContests)
            EXPECT_EQ(refusalOf(locator, contest), incorrect) << locator << " in " << contest;
}

TEST_F(LocatorEntry, AShortLocatorIsLeftInSilence)
{
    take("KN16AA", 3);
    for (const char* locator : {"", "K", "KN", "KN1", "KN16", "KN16A"})
        for (const int contest : allContests) {
            EXPECT_EQ(refusalOf(locator, contest), "") << locator << " in " << contest;
            EXPECT_EQ(FrmQSO.LblQRB1.Caption, "70 Km") << locator;
            EXPECT_EQ(FrmQSO.LblBeam1.Caption, "66 °") << locator;
            EXPECT_EQ(Modul1.Qrb, 70) << locator;
        }
    EXPECT_EQ(refusalOf("k", 3), incorrect) << "the letters that are there are looked at in their order";
    EXPECT_TRUE(program.notices().empty());
}

TEST_F(LocatorEntry, ADirectionWithoutResultKeepsTheLastOne)
{
    take("KN16AA", 2);
    EXPECT_EQ(refusalOf("KA00OA", 2), "") << "due south to the pole: the cosine of the heading lies below -1";
    EXPECT_EQ(FrmQSO.LblQRB1.Caption, "15095 Km") << "the distance was there before";
    EXPECT_EQ(FrmQSO.LblBeam1.Caption, "66 °");
    EXPECT_EQ(FrmQSO.Beam, 66);
    EXPECT_EQ(FrmQSO.QraRefuz, 0);
    EXPECT_TRUE(program.notices().empty());
}

TEST_F(LocatorEntry, AShortOwnLocatorCountsFromTheMiddleOfItsSquare)
{
    const struct {
        const char* own;
        double km;
    } rows[] = {{"KN05", 95}, {"KN05A", 165}, {"KN05M", 95}};
    for (const auto& row : rows) {
        ownLocator(row.own);
        take("KN16AA", 2);
        EXPECT_EQ(Modul1.Qrb, row.km) << row.own;
    }
}

}  // namespace
