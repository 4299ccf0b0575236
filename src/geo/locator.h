// From a QRA locator to coordinates, and from two positions to distance and beam heading.
#pragma once

#include <optional>
#include <string_view>

namespace geo {

/// The circle constant with the digits that all results of this program rest on.
constexpr double shortPi = 3.14159265358979;

/// A position in radians, east and north positive.
struct Position {
    double longitude = 0;
    double latitude = 0;
};

/// Position of a Maidenhead locator (IARU Region 1, 1980): the south-west corner of a subsquare; a missing fifth or
/// sixth letter counts as "M", a missing first or second as "J", a missing digit as 0. Nothing is checked: a wrong
/// character gives a wrong position.
Position positionOf(std::string_view locator);

/// Cosine of the central angle between two positions, exactly 1 for equal ones.
double angleCosine(const Position& a, const Position& b);

/// Central angle in radians for its cosine. From 1 on it is the full circle, not zero.
double centralAngle(double cosine);

/// Kilometres on a sphere of 6371.1 km for a central angle, whole.
double kilometres(double angle);

/// Beam heading from `own` to `other` in whole degrees, 0 to 360; `angle` is their central angle. Errors 5 and 11 where
/// the arithmetic has no result.
int beamHeading(const Position& own, const Position& other, double angle);

/// `QraLoc` to `LonCur`, `LatCur`.
void ClcCoord();

/// Judges `QraLoc` by the rules of the contest, then distance, beam heading and their labels.
void CLCRicht();

}  // namespace geo
