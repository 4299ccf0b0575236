// Distance and heading of the program against GeographicLib, on the sphere of the program; and how far that sphere is
// from the shape of the Earth.
#include <gtest/gtest.h>

#include <GeographicLib/Geodesic.hpp>
#include <cmath>
#include <numbers>
#include <string>
#include <vector>

#include "support/great_circle.h"

namespace {

using test::LocatorPair;
using test::Way;

constexpr std::size_t pairCount = 100000;
constexpr double degree = std::numbers::pi / 180;

struct Degrees {
    double latitude, longitude;
};

Degrees degreesOf(const std::string& locator)
{
    const test::Place place = test::placeOf(locator);
    return {static_cast<double>(place.latitude / degree), static_cast<double>(place.longitude / degree)};
}

Way wayByLibrary(const LocatorPair& pair)
{
    static const GeographicLib::Geodesic sphere(static_cast<double>(test::sphereKm), 0);
    const Degrees own = degreesOf(pair.own);
    const Degrees other = degreesOf(pair.other);
    double km = 0;
    double heading = 0;
    double arrival = 0;
    sphere.Inverse(own.latitude, own.longitude, other.latitude, other.longitude, km, heading, arrival);
    if (heading < 0) heading += 360;
    return {km / test::sphereKm, heading * std::numbers::pi_v<long double> / 180};
}

TEST(Library, AgreesWithTheVectors)
{
    for (const LocatorPair& pair : test::randomPairs(pairCount)) {
        const Way vectors = test::wayByVectors(test::placeOf(pair.own), test::placeOf(pair.other));
        const Way library = wayByLibrary(pair);
        ASSERT_LT(std::fabs(library.angle - vectors.angle), 1e-14L) << pair.own << " " << pair.other;
        // What a double leaves of a direction, the nearer the two and the nearer to a pole.
        const long double digits =
            1e-14L / std::fabs(std::sin(vectors.angle) * std::cos(test::placeOf(pair.own).latitude));
        ASSERT_LT(std::fabs(std::sin((library.heading - vectors.heading) / 2)), digits)
            << pair.own << " " << pair.other;
    }
}

TEST(Distance, OfRandomPairsIsThatOfTheLibrary)
{
    for (const LocatorPair& pair : test::randomPairs(pairCount))
        ASSERT_EQ(test::distanceComplaint(pair, wayByLibrary(pair)), "");
}

TEST(Heading, OfRandomPairsIsThatOfTheLibrary)
{
    for (const LocatorPair& pair : test::randomPairs(pairCount))
        ASSERT_EQ(test::headingComplaint(pair, wayByLibrary(pair)), "");
}

/// The Earth is flattened by 1 in 298: on the sphere a way is up to about as much too long or too short, half a
/// kilometre for the rounding.
TEST(Sphere, IsWithinSixPerMilleOfTheEarth)
{
    double worst = 0;
    for (const LocatorPair& pair : test::randomPairs(pairCount)) {
        const Degrees own = degreesOf(pair.own);
        const Degrees other = degreesOf(pair.other);
        double metres = 0;
        GeographicLib::Geodesic::WGS84().Inverse(own.latitude, own.longitude, other.latitude, other.longitude, metres);
        const double km = metres / 1000;
        const double off = std::abs(test::programResult(pair).km - km) - 0.53;
        worst = std::max(worst, off / km);
        ASSERT_LE(off, 0.006 * km) << pair.own << " " << pair.other << " " << km;
    }
    EXPECT_GT(worst, 0.005) << "the page says more than there is";
}

}  // namespace
