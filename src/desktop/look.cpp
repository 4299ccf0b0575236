#include "desktop/look.h"

#include <QApplication>
#include <cmath>

namespace desktop {

namespace {

constexpr double enoughContrast = 4.5;

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

/// As near to the background as can still be read.
QColor greyedOn(const QColor& background, const QColor& text)
{
    constexpr double steps[] = {0.6, 0.55, 0.5, 0.45, 0.4, 0.35, 0.3, 0.25, 0.2, 0.15, 0.1};
    for (double step : steps) {
        const QColor grey = mixed(text, background, step);
        if (contrast(grey, background) >= enoughContrast) return grey;
    }
    return text;
}

int whiteThickness(const FormScale& scale)
{
    return std::max(1, scale.designPixels(1));
}

void paintBorder(QPainter& painter, const QRect& place, int thickness, const QColor& colour)
{
    painter.save();
    QPen pen(colour, thickness);
    pen.setJoinStyle(Qt::MiterJoin);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    const double half = thickness / 2.0;
    painter.drawRect(QRectF(place).adjusted(half, half, -half, -half));
    painter.restore();
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
    return {199, 221, 247};
}

QColor edgeColour()
{
    return {120, 124, 130};
}

QColor frameColour()
{
    return {186, 190, 196};
}

QColor faintLineColour()
{
    return {226, 228, 231};
}

QColor faceColourOf(const app::ControlPicture& button)
{
    const bool plain = button.background == screen::buttonFace && button.enabled;
    return plain ? QColor(253, 253, 253) : toolkitColour(button.background);
}

QPalette readable(QPalette colours)
{
    constexpr QPalette::ColorRole texts[] = {QPalette::WindowText, QPalette::Text, QPalette::ButtonText};
    for (const QPalette::ColorRole role : texts)
        colours.setColor(QPalette::Disabled, role,
                         greyedOn(colours.color(QPalette::Window), colours.color(QPalette::Active, role)));
    return colours;
}

void styleApplication()
{
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setPalette(readable(QApplication::palette()));
}

QColor textColourOf(const app::ControlPicture& control)
{
    const QColor text = toolkitColour(control.foreground);
    return control.enabled ? text : greyedOn(toolkitColour(control.background), text);
}

void paintFocus(Canvas& canvas, const QRect& place)
{
    const int white = whiteThickness(canvas.scale);
    const int dark = focusThickness(canvas.scale) - white;
    paintBorder(canvas.painter, place, dark, focusColour());
    paintBorder(canvas.painter, place.adjusted(dark, dark, -dark, -dark), white, Qt::white);
}

int focusThickness(const FormScale& scale)
{
    return std::max(2, scale.designPixels(2)) + whiteThickness(scale);
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
