#include "desktop/rose.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "desktop/characters.h"

namespace desktop {

namespace {

constexpr double discTwips = 50;
constexpr double markTwips = 10;
constexpr int marks = 12;
constexpr double letterPoints = 8;
constexpr double lineOfFont = 1.2;  ///< how high a line is for its font

/// A disc that stays round, whatever the two scales are, and large enough to be seen.
void paintDisc(Canvas& canvas, QPointF middle, double twips, const QColor& colour)
{
    const double radius = std::max(2.0, canvas.scale.y(twips));
    canvas.painter.setBrush(colour);
    canvas.painter.setPen(QPen(colour.darker(170), 1));
    canvas.painter.drawEllipse(middle, radius, radius);
}

int letterPixels(const FormScale& scale)
{
    return std::max(smallestFontPixels, scale.fontPixels(letterPoints));
}

/// From the middle of the rose to that of its letters in pixels, outside the discs on its ring: across and down.
QPointF wayToLetters(const screen::Rose& rose, const FormScale& scale)
{
    constexpr double height = 0.73;  // of a capital, for its font
    constexpr double width = 1.1;    // of the widest one
    constexpr double gap = 2;
    const int pixels = letterPixels(scale);
    return scale.point(rose.R + discTwips, rose.R + discTwips) +
           QPointF(gap + pixels * width / 2, gap + pixels * height / 2);
}

/// From the middle of the rose to the outside of its letters, in pixels.
double reachOfLetters(const screen::Rose& rose, const FormScale& scale)
{
    const QPointF way = wayToLetters(rose, scale);
    return std::max(way.x(), way.y()) + letterPixels(scale) * lineOfFont / 2;
}

/// Nothing is painted of a label that says nothing, and the needle belongs to the rose.
bool takesPlace(const app::ControlPicture& control)
{
    if (control.kind == screen::Kind::line) return false;
    const bool blank = toolkitText(control.text).trimmed().isEmpty();
    return control.kind != screen::Kind::label || !blank || control.background != screen::buttonFace;
}

/// How far a square around `middle` may reach before it touches `place`.
double reachTo(const QRectF& place, QPointF middle)
{
    const double across = std::max(place.left() - middle.x(), middle.x() - place.right());
    const double down = std::max(place.top() - middle.y(), middle.y() - place.bottom());
    return std::max({0.0, across, down});
}

void paintDial(Canvas& canvas, QPointF middle, double radius)
{
    constexpr int ticks = 36;
    QPainter& painter = canvas.painter;
    painter.save();
    painter.translate(middle);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(edgeColour(), 1.2));
    painter.drawEllipse(QPointF(0, 0), radius, radius);
    for (int tick = 0; tick < ticks; ++tick) {
        const double length = tick % 3 == 0 ? 0.08 : 0.04;
        painter.drawLine(QPointF(0, -radius), QPointF(0, -radius * (1 - length)));
        painter.rotate(360.0 / ticks);
    }
    painter.restore();
}

void paintMarkOfHeading(Canvas& canvas, QPointF middle, double radius, double heading)
{
    QPainter& painter = canvas.painter;
    painter.save();
    painter.translate(middle);
    painter.rotate(heading);
    painter.setPen(Qt::NoPen);
    painter.setBrush(focusColour());
    painter.drawPolygon(QPolygonF({{0, -radius}, {-radius * 0.1, -radius * 0.85}, {radius * 0.1, -radius * 0.85}}));
    painter.restore();
}

void paintRing(Canvas& canvas, const screen::Rose& rose, QPointF middle)
{
    const FormScale& scale = canvas.scale;
    canvas.painter.setPen(QPen(edgeColour(), 1.5));
    canvas.painter.setBrush(Qt::NoBrush);
    canvas.painter.drawEllipse(middle, scale.x(rose.R), scale.y(rose.R));
    for (int mark = 1; mark <= marks; ++mark) {
        const double angle = mark * std::numbers::pi / 6;
        paintDisc(canvas, scale.point(rose.X0 + rose.R * std::cos(angle), rose.Y0 + rose.R * std::sin(angle)),
                  markTwips, Qt::yellow);
    }
}

/// The letters with the red discs that they belong to.
void paintLetters(Canvas& canvas, const screen::Rose& rose, QPointF middle)
{
    struct Axis {
        double x;
        double y;
        const char* letter;
    };
    constexpr std::array axes = {Axis{0, -1, "N"}, Axis{0, 1, "S"}, Axis{-1, 0, "W"}, Axis{1, 0, "E"}};

    const FormScale& scale = canvas.scale;
    const QPointF way = wayToLetters(rose, scale);
    const double box = 2.0 * letterPixels(scale);
    canvas.painter.setFont(canvas.fonts.font(letterPixels(scale), true));
    for (const Axis& axis : axes) {
        paintDisc(canvas, scale.point(rose.X0 + axis.x * rose.R, rose.Y0 + axis.y * rose.R), discTwips, Qt::red);
        const QPointF at = middle + QPointF(axis.x * way.x(), axis.y * way.y());
        canvas.painter.setPen(Qt::black);
        canvas.painter.drawText(QRectF(at.x() - box / 2, at.y() - box / 2, box, box), Qt::AlignCenter,
                                QLatin1String(axis.letter));
    }
}

}  // namespace

bool needleIsSeen(const app::Picture& picture)
{
    return std::any_of(picture.controls.begin(), picture.controls.end(),
                       [](const app::ControlPicture& control) { return control.kind == screen::Kind::line; });
}

double radiusOfDial(const app::Picture& picture, const FormScale& scale)
{
    constexpr double designRadius = 49;
    constexpr double gap = 3;  ///< pixels, to the letters and to what stands around
    const screen::Rose& rose = picture.rose;
    if (!rose.visible) return 0;
    const QPointF middle = scale.point(rose.X0, rose.Y0);
    double radius = scale.designPixels(designRadius);
    for (const app::ControlPicture& control : picture.controls)
        if (takesPlace(control)) radius = std::min(radius, reachTo(scale.pixels(control.place), middle) - gap);
    return radius < reachOfLetters(rose, scale) + gap ? 0 : radius;
}

QRect placeOfRose(const screen::Rose& rose, double dial, const FormScale& scale)
{
    const double reach = std::max(reachOfLetters(rose, scale), dial) + 2;
    const QPointF middle = scale.point(rose.X0, rose.Y0);
    return QRectF(middle - QPointF(reach, reach), middle + QPointF(reach, reach)).toAlignedRect();
}

void paintRose(Canvas& canvas, const app::Picture& picture)
{
    QPainter& painter = canvas.painter;
    const FormScale& scale = canvas.scale;
    const screen::Rose& rose = picture.rose;
    const double dial = radiusOfDial(picture, scale);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF middle = scale.point(rose.X0, rose.Y0);
    if (dial > 0) paintDial(canvas, middle, dial);
    if (dial > 0 && needleIsSeen(picture)) paintMarkOfHeading(canvas, middle, dial, rose.heading);
    paintRing(canvas, rose, middle);
    paintLetters(canvas, rose, middle);
    paintDisc(canvas, middle, discTwips, QColor(0, 255, 0));
    painter.restore();
}

}  // namespace desktop
