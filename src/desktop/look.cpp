#include "desktop/look.h"

#include <cmath>

namespace desktop {

namespace {

constexpr double enoughContrast = 3.0;

double linear(double part)
{
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor& a, const QColor& b)
{
    const double lighter = std::max(luminance(a), luminance(b));
    const double darker = std::min(luminance(a), luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}

QColor mixed(const QColor& a, const QColor& b, double partOfB)
{
    const auto mix = [partOfB](int one, int other) {
        return static_cast<int>(std::lround(one + (other - one) * partOfB));
    };
    return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

}  // namespace

QColor toolkitColour(screen::Colour colour)
{
    return {colour.red, colour.green, colour.blue};
}

QColor formColour()
{
    return toolkitColour(screen::buttonFace);
}

QColor focusColour()
{
    return {0, 70, 210};
}

QColor selectionColour()
{
    return {0, 84, 166};
}

QColor selectedTextColour()
{
    return Qt::white;
}

QColor currentRowColour()
{
    return {190, 216, 246};
}

QColor edgeColour()
{
    return {110, 110, 110};
}

QColor faintLineColour()
{
    return {216, 216, 216};
}

QColor textColourOf(const app::ControlPicture& control)
{
    const QColor text = toolkitColour(control.foreground);
    if (control.enabled) return text;
    const QColor background = toolkitColour(control.background);
    constexpr double steps[] = {0.55, 0.45, 0.35, 0.25};
    for (double step : steps) {
        const QColor grey = mixed(text, background, step);
        if (contrast(grey, background) >= enoughContrast) return grey;
    }
    return text;
}

void paintFocus(Canvas& canvas, const QRect& place)
{
    const int thickness = std::max(2, canvas.scale.designPixels(2));
    QPainter& painter = canvas.painter;
    painter.save();
    QPen pen(focusColour(), thickness);
    pen.setJoinStyle(Qt::MiterJoin);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    const double half = thickness / 2.0;
    painter.drawRect(QRectF(place).adjusted(half, half, -half, -half));
    painter.restore();
}

void paintFittedText(Canvas& canvas, const QRectF& box, const QString& text, int wanted, bool bold, int flags)
{
    const int pixels = canvas.fonts.fitting(text, box.size(), wanted, bold, flags);
    canvas.painter.setFont(canvas.fonts.font(pixels, bold));
    const QFontMetricsF& metrics = canvas.fonts.metrics(pixels, bold);
    const bool oneLine = box.height() < 2 * metrics.height();
    const bool cut = oneLine && metrics.boundingRect(QRectF(0, 0, 100000, 100000), flags, text).width() > box.width();
    const QString shown = cut ? metrics.elidedText(text, Qt::ElideRight, box.width(), flags) : text;
    canvas.painter.drawText(box, cut ? flags & ~Qt::TextWordWrap : flags, shown);
}

}  // namespace desktop
