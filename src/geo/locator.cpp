#include "geo/locator.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/number.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "platform/machine.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"

namespace geo {

namespace {

constexpr double degree = shortPi / 180;
constexpr double earthRadiusKm = 6371.1;
/// Not pi/2 to the last digit: all distances of past contests were computed with it.
constexpr double shortHalfPi = 1.5708;
constexpr double farthestKm = 4000;

double letterOr(std::string_view locator, std::size_t position, char missing)
{
    if (base::length(locator) < position) return missing;
    return static_cast<double>(base::characterAt(locator, position));
}

double digitOrZero(std::string_view locator, std::size_t position)
{
    const std::string digit = base::mid(locator, position, 1);
    return digit.size() == 1 && digit[0] >= '0' && digit[0] <= '9' ? digit[0] - '0' : 0;
}

bool contestIs(std::initializer_list<int> contests)
{
    return std::find(contests.begin(), contests.end(), int{Modul1.ConcId}) != contests.end();
}

/// Why a locator is refused.
struct Refusal {
    std::string message;
    int style = 0;
};

Refusal incorrect()
{
    return {"QRALoc INCORECT. INTRODUCETI QRALoc CORECT !", platform::iconExclamation};
}

/// The squares of KN that belong to Romania, by the tens digit of their number.
struct SquareRow {
    int first;
    int last;
};
constexpr std::array<SquareRow, 5> romanianSquares = {{{4, 7}, {13, 18}, {23, 27}, {33, 38}, {43, 46}}};

bool isRomanianSquare(int number)
{
    const auto tens = static_cast<std::size_t>(number / 10);
    return tens < romanianSquares.size() && number >= romanianSquares.at(tens).first &&
           number <= romanianSquares.at(tens).last;
}

/// Number of the square. Error 13 when it is none.
int squareNumber(const std::string& locator)
{
    const std::string digits = base::mid(locator, 3, 2);
    const bool number = !digits.empty() && digits.find_first_not_of("0123456789") == std::string::npos;
    if (!number) throw base::RuntimeError(base::notANumber, "The square of " + locator + " is no number");
    return static_cast<int>(base::numericValue(digits));
}

std::optional<Refusal> judge(const std::string& locator)
{
    for (const std::size_t position : {1U, 2U, 5U, 6U}) {
        const char32_t letter = base::characterAt(locator, position);
        if (letter < U'A' || letter > U'Z') return incorrect();
    }
    const int square = squareNumber(locator);
    if (!contestIs({0, 1, 6, 7})) return std::nullopt;
    if (base::left(locator, 2) != "KN")
        return Refusal{"QRA Loc introdus = " + locator + " Nu este in YO. Introduceti din nou QRA Loc"};
    if (!isRomanianSquare(square))
        return Refusal{"QRA Loc introdus = " + locator + " nu este in YO!!!. Introduceti din nou QRA Loc"};
    return std::nullopt;
}

std::optional<Refusal> judgeDistance(const std::string& locator)
{
    if (!contestIs({3, 4, 5, 100}) || Modul1.Qrb <= farthestKm) return std::nullopt;
    return Refusal{"Distanta > 4000 Km. QRA Loc introdus = " + locator + " Introduceti din nou QRA Loc"};
}

void refuse(const Refusal& refusal)
{
    platform::msgBox(refusal.message, refusal.style);
    FrmQSO.TxtRSTr3.Text = "";
    FrmQSO.TxtRSTr3.SetFocus();
    FrmQSO.QraRefuz = 100;
}

/// The checks, the distance and the heading. A refusal ends it.
std::optional<Refusal> distanceAndHeading()
{
    if (auto refusal = judge(Modul1.QraLoc)) return refusal;
    const Position own{Modul1.LonMy, Modul1.LatMy};
    const Position other{Modul1.LonCur, Modul1.LatCur};
    const double angle = centralAngle(angleCosine(own, other));
    Modul1.Qrb = kilometres(angle);
    if (base::trim(Modul1.MyQRA) == base::trim(Modul1.QraLoc)) Modul1.Qrb = 1;
    if (auto refusal = judgeDistance(Modul1.QraLoc)) return refusal;
    FrmQSO.LblQRB1.Caption = base::toText(std::llround(Modul1.Qrb)) + " Km";
    FrmQSO.Beam = base::toInt16(static_cast<long long>(beamHeading(own, other, angle)));
    FrmQSO.LblBeam1.Caption = base::toText(FrmQSO.Beam) + " °";
    return std::nullopt;
}

}  // namespace

Position positionOf(std::string_view locator)
{
    const double longitude =
        (letterOr(locator, 1, 'J') - 'J') * 20 + 2 * digitOrZero(locator, 3) + (letterOr(locator, 5, 'M') - 'A') / 12;
    const double latitude =
        (letterOr(locator, 2, 'J') - 'J') * 10 + digitOrZero(locator, 4) + (letterOr(locator, 6, 'M') - 'A') / 24;
    return {longitude * degree, latitude * degree};
}

double angleCosine(const Position& a, const Position& b)
{
    if (a.longitude == b.longitude && a.latitude == b.latitude) return 1;
    return std::sin(b.latitude) * std::sin(a.latitude) +
           std::cos(b.latitude) * std::cos(a.latitude) * std::cos(b.longitude - a.longitude);
}

double centralAngle(double cosine)
{
    if (cosine <= -1) return shortPi;
    if (cosine >= 1) return 2 * shortPi;
    return std::atan(-cosine / std::sqrt(1 - cosine * cosine)) + shortHalfPi;
}

double kilometres(double angle)
{
    return std::floor(angle * earthRadiusKm + 0.5);
}

int beamHeading(const Position& own, const Position& other, double angle)
{
    const double divisor = std::sin(angle) * std::cos(own.latitude);
    if (divisor == 0) throw base::RuntimeError(base::divisionByZero, "No heading leads from a pole");
    const double y = (std::sin(other.latitude) - std::cos(angle) * std::sin(own.latitude)) / divisor;
    if (y < -1) throw base::RuntimeError(base::invalidArgument, "The heading has no arc cosine");
    if (y == -1) throw base::RuntimeError(base::divisionByZero, "The heading has no arc cosine");

    double b = 0;
    if (y == 0)
        b = 2 * shortPi;
    else if (y >= 1)
        b = shortPi;
    else
        b = std::atan(-y / std::sqrt(1 - y * y)) + shortHalfPi;
    const double degrees = b * 180 / shortPi;
    const bool east = std::sin(other.longitude - own.longitude) >= 0;
    return static_cast<int>(base::roundHalfEven(east ? degrees : 360 - degrees));
}

void ClcCoord()
{
    Modul1.DegRad = degree;
    const Position position = positionOf(Modul1.QraLoc);
    Modul1.LonCur = position.longitude;
    Modul1.LatCur = position.latitude;
}

void CLCRicht()
{
    Modul1.Pi = shortPi;
    std::optional<Refusal> refusal;
    const int error = base::quietly<base::invalidArgument, base::divisionByZero, base::notANumber>(
        [&] { refusal = distanceAndHeading(); });
    if (error == base::notANumber) refusal = incorrect();
    if (refusal) refuse(*refusal);
}

}  // namespace geo
