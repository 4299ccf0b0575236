#include "geo/rose.h"

#include <cmath>

#include "base/number.h"
#include "runstate/contest_codes.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"

namespace geo {

namespace {

constexpr double designWidth = 12000;
constexpr double gapTwips = 50;  ///< between the needle and the discs at both of its ends

/// Centre and radius by the width of the form, and where the Maraton page puts the labels beside it.
screen::Rose placeRose()
{
    const double scale = Modul1.ScaleX;
    screen::Rose rose{true, 4300, 3500, 500, 0};
    if (Modul1.ConcId == runstate::maratonContest) {
        if (scale == 1.0) {
            rose.X0 = 4000;
            rose.Y0 = 800;
            FrmQSO.LblBeam1.Left = 4800;
            FrmQSO.LblBeam1.Top = 400;
        } else if (scale > 1.0) {
            rose.X0 = scale * 3300;
            rose.Y0 = scale * 3000;
            FrmQSO.LblQRB1.Left = scale * 1900;
        }
        return rose;
    }
    if (scale < 1.0) {
        rose.X0 = scale * 3800;
        rose.Y0 = scale * 3300;
        rose.R = scale * 500;
    } else if (scale > 1.0) {
        rose.X0 = scale * 4500;
        rose.Y0 = scale * 3000;
    }
    return rose;
}

void pointNeedle(const screen::Rose& rose)
{
    const double angle = base::toInt16(static_cast<long long>(FrmQSO.Beam) - 90) * Modul1.Pi / 180;
    const double outer = rose.R - gapTwips;
    FrmQSO.Line4.X1 = rose.X0 + gapTwips * std::cos(angle);
    FrmQSO.Line4.Y1 = rose.Y0 + gapTwips * std::sin(angle);
    FrmQSO.Line4.X2 = rose.X0 + outer * std::cos(angle);
    FrmQSO.Line4.Y2 = rose.Y0 + outer * std::sin(angle);
    FrmQSO.Line4.Visible = true;
}

}  // namespace

void Medalion()
{
    Modul1.ScaleX = static_cast<float>(FrmQSO.Width / designWidth);
    if (Modul1.ScaleX < 1.0F && Modul1.ConcId == runstate::maratonContest) return;
    screen::Rose rose = placeRose();
    rose.heading = FrmQSO.Beam;
    FrmQSO.rose = rose;
    pointNeedle(rose);
}

}  // namespace geo
