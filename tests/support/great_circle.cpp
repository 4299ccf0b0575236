#include "support/great_circle.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iomanip>
#include <limits>
#include <numbers>
#include <random>
#include <sstream>

#include "base/runtime_error.h"
#include "geo/locator.h"

namespace test {

namespace {

constexpr long double pi = std::numbers::pi_v<long double>;
constexpr long double degree = pi / 180;

using Vector = std::array<long double, 3>;

Vector vectorTo(const Place& place)
{
    return {std::cos(place.latitude) * std::cos(place.longitude), std::cos(place.latitude) * std::sin(place.longitude),
            std::sin(place.latitude)};
}

long double scalar(const Vector& a, const Vector& b)
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

Vector cross(const Vector& a, const Vector& b)
{
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

/// The same numbers with every library.
class Dice {
 public:
    int upTo(int sides) { return static_cast<int>(engine_() % static_cast<unsigned>(sides)); }
    char letter(char first, int count) { return static_cast<char>(first + upTo(count)); }
    char digit() { return static_cast<char>('0' + upTo(10)); }

 private:
    std::mt19937 engine_{2026};
};

std::string anywhere(Dice& dice)
{
    std::string locator{dice.letter('A', 18), dice.letter('A', 18)};
    return locator + dice.digit() + dice.digit() + dice.letter('A', 24) + dice.letter('A', 24);
}

std::string inEurope(Dice& dice)
{
    std::string locator{dice.letter('I', 4), dice.letter('M', 4)};
    return locator + dice.digit() + dice.digit() + dice.letter('A', 24) + dice.letter('A', 24);
}

std::string inTheSquareOf(const std::string& locator, Dice& dice)
{
    return locator.substr(0, 4) + dice.letter('A', 24) + dice.letter('A', 24);
}

LocatorPair randomPair(std::size_t number, Dice& dice)
{
    const std::size_t kind = number % 5;
    if (kind < 2) return {anywhere(dice), anywhere(dice)};
    std::string own = inEurope(dice);
    if (kind < 4) return {own, inEurope(dice)};
    std::string other = inTheSquareOf(own, dice);
    return {std::move(own), std::move(other)};
}

/// Rounding of a double, some steps of it.
constexpr long double fewRoundings = 16 * static_cast<long double>(std::numeric_limits<double>::epsilon());

/// An arc cosine of something a little outside.
long double arcCosine(long double x)
{
    return std::acos(std::clamp(x, -1.0L, 1.0L));
}

std::string describe(const LocatorPair& pair, const Way& way)
{
    std::ostringstream text;
    text << pair.own << " to " << pair.other << ", " << std::setprecision(12) << way.angle * sphereKm << " km, "
         << way.heading / degree << " degrees: ";
    return text.str();
}

/// The heading counted from north to either side, in radians.
long double folded(long double heading)
{
    return heading <= pi ? heading : 2 * pi - heading;
}

/// How far the cosine of the heading may be from the true one.
long double cosineTolerance(const Place& own, const Place& other, long double angle)
{
    const long double divisor = std::fabs(std::sin(angle) * std::cos(own.latitude));
    const long double secondOrder = 1 + 4 * std::fabs(angleExcess()) / std::sin(angle);
    return (std::fabs(angleExcess()) * std::cos(other.latitude) * secondOrder + fewRoundings) / divisor;
}

bool onTheEquator(const LocatorPair& pair)
{
    return placeOf(pair.own).latitude == 0 && placeOf(pair.other).latitude == 0;
}

/// Of the two folds of a whole heading the one to which `way` belongs; due north and due south belong to both.
bool between(int heading, const Way& way, long double least, long double most)
{
    const long double tolerance = 0.5L + std::fabs(angleExcess()) / degree + 1e-6L;
    const auto fits = [&](long double degrees) {
        return degrees >= least / degree - tolerance && degrees <= most / degree + tolerance;
    };
    const bool dueNorthOrSouth = std::fabs(std::sin(way.heading)) < 1e-12L;
    const bool east = way.heading <= pi;
    return ((east || dueNorthOrSouth) && fits(heading)) || ((!east || dueNorthOrSouth) && fits(360 - heading));
}

}  // namespace

Place placeOf(std::string_view locator)
{
    const bool six = locator.size() == 6;
    const int fifth = six ? locator[4] - 'A' : 'M' - 'A';
    const int sixth = six ? locator[5] - 'A' : 'M' - 'A';
    // In whole twelfths of a degree of longitude, and twenty-fourths of latitude, from the corner at 180 W, 90 S.
    const int east = (locator[0] - 'A') * 240 + (locator[2] - '0') * 24 + fifth;
    const int north = (locator[1] - 'A') * 240 + (locator[3] - '0') * 24 + sixth;
    return {(east - 2160) * degree / 12, (north - 2160) * degree / 24};
}

Way wayByVectors(const Place& from, const Place& to)
{
    const Vector a = vectorTo(from);
    const Vector b = vectorTo(to);
    const Vector normal = cross(a, b);
    const Vector east = {-std::sin(from.longitude), std::cos(from.longitude), 0};
    const Vector north = cross(a, east);
    const long double heading = std::atan2(scalar(b, east), scalar(b, north));
    return {std::atan2(std::sqrt(scalar(normal, normal)), scalar(a, b)), heading < 0 ? heading + 2 * pi : heading};
}

std::vector<LocatorPair> randomPairs(std::size_t count)
{
    Dice dice;
    std::vector<LocatorPair> pairs;
    for (std::size_t number = 0; pairs.size() < count; ++number) {
        LocatorPair pair = randomPair(number, dice);
        if (pair.own != pair.other) pairs.push_back(std::move(pair));
    }
    return pairs;
}

ProgramResult programResult(const LocatorPair& pair)
{
    const geo::Position own = geo::positionOf(pair.own);
    const geo::Position other = geo::positionOf(pair.other);
    const double angle = geo::centralAngle(geo::angleCosine(own, other));
    ProgramResult result{geo::kilometres(angle), -1};
    base::quietly<base::invalidArgument, base::divisionByZero>(
        [&] { result.heading = geo::beamHeading(own, other, angle); });
    return result;
}

long double angleExcess()
{
    return 1.5708L - pi / 2;
}

long double expectedKilometres(const Way& way)
{
    return std::floor((way.angle + angleExcess()) * sphereKm + 0.5L);
}

std::string distanceComplaint(const LocatorPair& pair, const Way& way)
{
    const long double km = (way.angle + angleExcess()) * sphereKm;
    const long double digits = sphereKm * fewRoundings / std::sin(way.angle);
    const double program = programResult(pair).km;
    if (program >= std::floor(km - digits + 0.5L) && program <= std::floor(km + digits + 0.5L)) return {};
    return describe(pair, way) + std::to_string(program) + " km";
}

std::string headingComplaint(const LocatorPair& pair, const Way& way)
{
    const int program = programResult(pair).heading;
    const std::string complaint = describe(pair, way) + std::to_string(program) + " degrees";
    if (onTheEquator(pair)) return program == (way.heading <= pi ? 360 : 0) ? "" : complaint;

    const long double cosine = std::cos(folded(way.heading));
    const long double tolerance = cosineTolerance(placeOf(pair.own), placeOf(pair.other), way.angle);
    // Beyond the ends there is no heading, or the opposite one.
    if (program < 0) return cosine - tolerance <= -1 ? "" : complaint;
    if (program == 180 && cosine + tolerance >= 1) return {};
    const bool right = between(program, way, arcCosine(cosine + tolerance), arcCosine(cosine - tolerance));
    return right ? "" : complaint;
}

double headingError(const LocatorPair& pair, const Way& way)
{
    const int program = programResult(pair).heading;
    if (program < 0) return 180;
    const long double difference = std::fabs(program - way.heading / degree);
    return static_cast<double>(std::min(difference, 360 - difference));
}

}  // namespace test
