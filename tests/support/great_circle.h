// Distance and heading on the sphere by vectors and with more digits than the program has: a second opinion on its
// arithmetic, and how far the program may be from it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace test {

/// The sphere of the program.
constexpr long double sphereKm = 6371.1L;

/// A position in radians, east and north positive.
struct Place {
    long double longitude = 0;
    long double latitude = 0;
};

/// Where a locator of four or six capital letters and digits lies: the south-west corner of the subsquare "MM" when it
/// has four, of its own subsquare when it has six.
Place placeOf(std::string_view locator);

/// The way from one place to another.
struct Way {
    long double angle = 0;    ///< at the centre of the sphere, 0 to pi
    long double heading = 0;  ///< from north through east, 0 to 2 pi
};

/// By the vectors from the centre to both places.
Way wayByVectors(const Place& from, const Place& to);

/// Two stations.
struct LocatorPair {
    std::string own;
    std::string other;
};

/// Pairs of different locators: two of five over the whole world, two of five in Europe, one of five next to each
/// other. Every run gives the same ones.
std::vector<LocatorPair> randomPairs(std::size_t count);

/// What the program gives for a pair: -1 for a heading that it does not have.
struct ProgramResult {
    double km = 0;
    int heading = -1;
};
ProgramResult programResult(const LocatorPair& pair);

/// The program adds 1.5708 to an arc tangent where half of pi belongs: its angles are longer by this.
long double angleExcess();

/// Kilometres as the program has to round them.
long double expectedKilometres(const Way& way);

/// Why the distance of the program cannot be right, empty when it is. It is the rounded one of the way that is longer
/// by angleExcess(), but for those so near to a half kilometre that the digits of a double do not tell on which side.
std::string distanceComplaint(const LocatorPair& pair, const Way& way);

/// Why the heading of the program cannot be right, empty when it is. angleExcess() moves the cosine of the heading by
/// at most angleExcess() * cos(other latitude) / (sin(angle) * cos(own latitude)); the heading must be one of those
/// between.
std::string headingComplaint(const LocatorPair& pair, const Way& way);

/// Degrees from the heading of the program to that of the way, the short way round; 180 when the program has none.
double headingError(const LocatorPair& pair, const Way& way);

}  // namespace test
