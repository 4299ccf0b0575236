#include "desktop/simple_controls.h"

#include <algorithm>
#include <cmath>

#include "desktop/characters.h"

namespace desktop {

namespace {

constexpr int lineWidth = 2;

/// A caption beside the mark of an option or a check box, on the background of the control.
struct MarkedCaption {
    QRect place;
    QRectF mark;
};

MarkedCaption paintCaptionBesideMark(Canvas& canvas, const app::ControlPicture& control)
{
    const QRect place = canvas.scale.pixels(control.place);
    const int wanted = canvas.scale.fontPixels(control.fontPoints);
    const double size = std::min<double>(place.height() - 2, std::max(10, wanted));
    const QRectF mark(place.left() + 3, std::round(place.center().y() + 0.5 - size / 2), size, size);
    canvas.painter.fillRect(place, toolkitColour(control.background));
    canvas.painter.setPen(textColourOf(control));
    const QRectF room = QRectF(place).adjusted(mark.right() - place.left() + 5, 1, -2, -1);
    paintFittedText(canvas, room, toolkitText(control.text), wanted, control.bold,
                    Qt::AlignVCenter | Qt::AlignLeft | Qt::TextWordWrap | Qt::TextShowMnemonic);
    if (control.hasFocus) paintFocus(canvas, place);
    return {place, mark};
}

QColor markBackground(const app::ControlPicture& control, bool pressed)
{
    if (pressed) return {208, 208, 208};
    return control.enabled ? QColor(Qt::white) : QColor(232, 232, 232);
}

}  // namespace

void paintLabel(Canvas& canvas, const app::ControlPicture& label)
{
    const QRect place = canvas.scale.pixels(label.place);
    const QString text = toolkitText(label.text);
    // A label that says nothing shall not blot out the field that its place reaches into.
    if (text.trimmed().isEmpty() && label.background == screen::buttonFace) return;
    canvas.painter.fillRect(place, toolkitColour(label.background));
    canvas.painter.setPen(textColourOf(label));
    const int wanted = canvas.scale.fontPixels(label.fontPoints);
    const bool oneLine = place.height() < 2 * canvas.fonts.metrics(wanted, label.bold).height();
    const int across = label.rightAligned ? Qt::AlignRight : Qt::AlignLeft;
    const int down = oneLine ? Qt::AlignVCenter : Qt::AlignTop;
    paintFittedText(canvas, QRectF(place).adjusted(1, 0, -1, 0), text, wanted, label.bold,
                    across | down | Qt::TextWordWrap);
}

void paintCommandButton(Canvas& canvas, const app::ControlPicture& button, bool pressed)
{
    QPainter& painter = canvas.painter;
    const QRect place = canvas.scale.pixels(button.place);
    const QColor face = toolkitColour(button.background);
    painter.fillRect(place, pressed ? face.darker(118) : face);
    painter.setPen(pressed ? face.darker(170) : face.lighter(112));
    painter.drawRect(place.adjusted(1, 1, -2, -2));
    painter.setPen(edgeColour());
    painter.drawRect(place.adjusted(0, 0, -1, -1));
    if (button.hasFocus) paintFocus(canvas, place);
    painter.setPen(textColourOf(button));
    const QRectF room = QRectF(place).adjusted(4, 2, -4, -2).translated(pressed ? 1 : 0, pressed ? 1 : 0);
    paintFittedText(canvas, room, toolkitText(button.text), canvas.scale.fontPixels(button.fontPoints), button.bold,
                    Qt::AlignCenter | Qt::TextWordWrap | Qt::TextShowMnemonic);
}

void paintOptionButton(Canvas& canvas, const app::ControlPicture& option, bool pressed)
{
    const MarkedCaption caption = paintCaptionBesideMark(canvas, option);
    QPainter& painter = canvas.painter;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(edgeColour(), 1));
    painter.setBrush(markBackground(option, pressed));
    painter.drawEllipse(caption.mark.adjusted(0.5, 0.5, -0.5, -0.5));
    if (option.checked) {
        const double inset = caption.mark.width() * 0.26;
        painter.setPen(Qt::NoPen);
        painter.setBrush(option.enabled ? focusColour() : edgeColour());
        painter.drawEllipse(caption.mark.adjusted(inset, inset, -inset, -inset));
    }
    painter.restore();
}

void paintCheckBox(Canvas& canvas, const app::ControlPicture& box, bool pressed)
{
    const MarkedCaption caption = paintCaptionBesideMark(canvas, box);
    QPainter& painter = canvas.painter;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(edgeColour(), 1));
    painter.setBrush(markBackground(box, pressed));
    painter.drawRect(caption.mark.adjusted(0.5, 0.5, -0.5, -0.5));
    if (box.checked) {
        const QRectF& mark = caption.mark;
        const auto at = [&mark](double x, double y) {
            return QPointF(mark.left() + x * mark.width(), mark.top() + y * mark.height());
        };
        painter.setPen(QPen(box.enabled ? focusColour() : edgeColour(), std::max(1.6, mark.width() / 6)));
        painter.drawPolyline(QPolygonF({at(0.22, 0.5), at(0.43, 0.72), at(0.78, 0.26)}));
    }
    painter.restore();
}

void paintFrame(Canvas& canvas, const app::ControlPicture& frame)
{
    QPainter& painter = canvas.painter;
    const QRect place = canvas.scale.pixels(frame.place);
    painter.fillRect(place, toolkitColour(frame.background));
    const QString caption = toolkitText(frame.text);
    constexpr int flags = Qt::AlignCenter | Qt::TextSingleLine | Qt::TextShowMnemonic;
    const int wanted = canvas.scale.fontPixels(frame.fontPoints);
    const QRectF room(place.left() + 8, place.top(), std::max(1, place.width() - 16), wanted * 1.4);
    const int pixels = canvas.fonts.fitting(caption, room.size(), wanted, frame.bold, flags);
    const QFontMetricsF& metrics = canvas.fonts.metrics(pixels, frame.bold);

    const int lineTop = caption.trimmed().isEmpty() ? 0 : static_cast<int>(metrics.height() / 2);
    painter.setPen(QColor(160, 160, 160));
    painter.drawRect(place.adjusted(0, lineTop, -1, -1));
    if (caption.trimmed().isEmpty()) return;
    const double width = metrics.size(flags, caption).width() + 6;
    const QRectF text(room.left(), room.top(), width, metrics.height());
    painter.fillRect(text, toolkitColour(frame.background));
    painter.setFont(canvas.fonts.font(pixels, frame.bold));
    painter.setPen(textColourOf(frame));
    painter.drawText(text, flags, caption);
}

void paintLine(Canvas& canvas, const app::ControlPicture& line)
{
    QPainter& painter = canvas.painter;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(toolkitColour(line.foreground), std::max(lineWidth, canvas.scale.designPixels(lineWidth))));
    painter.drawLine(canvas.scale.point(line.X1, line.Y1), canvas.scale.point(line.X2, line.Y2));
    painter.restore();
}

QRect placeOfLine(const app::ControlPicture& line, const FormScale& scale)
{
    const int margin = std::max(lineWidth, scale.designPixels(lineWidth)) + 1;
    const QRectF between(scale.point(line.X1, line.Y1), scale.point(line.X2, line.Y2));
    return between.normalized().toAlignedRect().adjusted(-margin, -margin, margin, margin);
}

}  // namespace desktop
