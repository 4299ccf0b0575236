#include "keyer/morse.h"

#include "base/number.h"

namespace keyer {

namespace {

constexpr double ticksPerSecond = 18.2;
constexpr double millisecondsPerSecond = 1000;

double milliseconds(double ticks)
{
    return ticks * millisecondsPerSecond / ticksPerSecond;
}

}  // namespace

TimeUnits timeUnits(float wpm, std::int16_t tickBase)
{
    constexpr float slowestElements = 13;
    const auto base = static_cast<float>(tickBase);
    TimeUnits units;
    units.CharUnit = base / wpm;
    if (wpm <= 12) units.CharUnit = base / (wpm - 1);
    if (wpm <= 11) units.CharUnit = base / (wpm - 2);
    if (wpm <= 9) units.CharUnit = base / (wpm - 3);
    units.ElemUnit = wpm < slowestElements ? base / slowestElements : units.CharUnit;
    return units;
}

double elementTime(float elemUnit, float length)
{
    return milliseconds(double{elemUnit} * length);
}

double letterSpaceTime(float charUnit, float elemUnit)
{
    constexpr double unitsBetweenLetters = 3;
    return milliseconds(charUnit * unitsBetweenLetters - elemUnit);
}

double blankTime(float elemUnit)
{
    constexpr double unitsOfBlank = 4;
    return milliseconds(elemUnit * unitsOfBlank);
}

std::chrono::milliseconds wholeMilliseconds(double time)
{
    return std::chrono::milliseconds(static_cast<long long>(base::roundHalfEven(time)));
}

}  // namespace keyer
