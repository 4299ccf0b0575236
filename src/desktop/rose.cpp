#include "desktop/rose.h"

#include <array>
#include <cmath>
#include <numbers>

namespace desktop {

namespace {

constexpr double discTwips = 50;
constexpr double markTwips = 10;
constexpr double lettersTwips = 200;  ///< from the ring to the middle of the letters
constexpr int marks = 12;
constexpr double letterPoints = 8;

/// A disc that stays round, whatever the two scales are, and large enough to be seen.
void paintDisc(Canvas& canvas, QPointF middle, double twips, const QColor& colour)
{
    const double radius = std::max(2.0, canvas.scale.y(twips));
    canvas.painter.setBrush(colour);
    canvas.painter.setPen(QPen(colour.darker(170), 1));
    canvas.painter.drawEllipse(middle, radius, radius);
}

}  // namespace

QRect placeOfRose(const screen::Rose& rose, const FormScale& scale)
{
    const double reach = rose.R + 2 * lettersTwips;
    return scale.pixels({rose.X0 - reach, rose.Y0 - reach, 2 * reach, 2 * reach});
}

void paintRose(Canvas& canvas, const screen::Rose& rose)
{
    struct Axis {
        double x;
        double y;
        const char* letter;
    };
    constexpr std::array axes = {Axis{0, -1, "N"}, Axis{0, 1, "S"}, Axis{-1, 0, "W"}, Axis{1, 0, "E"}};

    QPainter& painter = canvas.painter;
    const FormScale& scale = canvas.scale;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(edgeColour(), 1));
    painter.setBrush(Qt::NoBrush);
    const QPointF middle = scale.point(rose.X0, rose.Y0);
    painter.drawEllipse(middle, scale.x(rose.R), scale.y(rose.R));
    for (int mark = 1; mark <= marks; ++mark) {
        const double angle = mark * std::numbers::pi / 6;
        paintDisc(canvas, scale.point(rose.X0 + rose.R * std::cos(angle), rose.Y0 + rose.R * std::sin(angle)),
                  markTwips, Qt::yellow);
    }
    painter.setFont(canvas.fonts.font(std::max(smallestFontPixels, scale.fontPixels(letterPoints)), true));
    for (const Axis& axis : axes) {
        paintDisc(canvas, scale.point(rose.X0 + axis.x * rose.R, rose.Y0 + axis.y * rose.R), discTwips, Qt::red);
        const double out = rose.R + lettersTwips;
        const QPointF at = scale.point(rose.X0 + axis.x * out, rose.Y0 + axis.y * out);
        painter.setPen(Qt::black);
        painter.drawText(QRectF(at.x() - 20, at.y() - 20, 40, 40), Qt::AlignCenter, QLatin1String(axis.letter));
    }
    paintDisc(canvas, middle, discTwips, QColor(0, 255, 0));
    painter.restore();
}

}  // namespace desktop
