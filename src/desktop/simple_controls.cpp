#include "desktop/simple_controls.h"

#include <QRegularExpression>
#include <QStringList>
#include <algorithm>
#include <cmath>
#include <vector>

#include "desktop/characters.h"

namespace desktop {

namespace {

constexpr int lineWidth = 2;
constexpr double titleTwips = 120;  ///< from the left edge of a frame to its title
constexpr double titleHeight = 15;  ///< of a frame on the design screen, pixels: below it stands what the frame holds

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

/// A long run of blanks in a text of several lines is where a line ends.
QString withLineEnds(QString text)
{
    static const QRegularExpression longRun(QStringLiteral(" {5,}"));
    return text.replace(longRun, QStringLiteral("\n"));
}

/// The words of a caption, each above the field that it heads, all in one size.
void paintHeads(Canvas& canvas, const app::ControlPicture& label, const QStringList& words)
{
    constexpr int flags = Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine;
    const QRect place = canvas.scale.pixels(label.place);
    std::vector<QRectF> rooms;
    int pixels = canvas.scale.fontPixels(label.fontPoints);
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QRect below = canvas.scale.pixels(label.heads[static_cast<std::size_t>(i)]);
        rooms.emplace_back(below.left() + 1, place.top(), below.width() - 2, place.height());
        pixels = canvas.fonts.fitting(words[i], rooms.back().size(), pixels, label.bold, flags);
    }
    canvas.painter.setFont(canvas.fonts.font(pixels, label.bold));
    for (qsizetype i = 0; i < words.size(); ++i)
        canvas.painter.drawText(rooms[static_cast<std::size_t>(i)], flags, words[i]);
}

/// A lamp: nothing but a colour.
void paintLamp(Canvas& canvas, const QRect& place, const QColor& colour)
{
    canvas.painter.fillRect(place, colour);
    canvas.painter.setPen(colour.darker(125));
    canvas.painter.drawRect(place.adjusted(0, 0, -1, -1));
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
    const QString text = toolkitText(label.text).trimmed();
    if (text.isEmpty()) {
        // A label that says nothing shall not blot out the field that its place reaches into.
        if (label.background != screen::buttonFace) paintLamp(canvas, place, toolkitColour(label.background));
        return;
    }
    canvas.painter.fillRect(place, toolkitColour(label.background));
    canvas.painter.setPen(textColourOf(label));
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (!label.heads.empty() && label.heads.size() == static_cast<std::size_t>(words.size()))
        return paintHeads(canvas, label, words);
    const int wanted = canvas.scale.fontPixels(label.fontPoints);
    const bool oneLine = place.height() < 2 * canvas.fonts.metrics(wanted, label.bold).height();
    const int across = label.rightAligned ? Qt::AlignRight : Qt::AlignLeft;
    const int down = oneLine ? Qt::AlignVCenter : Qt::AlignTop;
    paintFittedText(canvas, QRectF(place).adjusted(1, 0, -1, 0), oneLine ? text : withLineEnds(text), wanted,
                    label.bold, across | down | Qt::TextWordWrap);
}

void paintCommandButton(Canvas& canvas, const app::ControlPicture& button, bool pressed)
{
    QPainter& painter = canvas.painter;
    const QRect place = canvas.scale.pixels(button.place);
    const QColor face = faceColourOf(button);
    painter.fillRect(place, pressed ? face.darker(118) : face);
    painter.setPen(button.enabled ? edgeColour() : frameColour());
    painter.drawRect(place.adjusted(0, 0, -1, -1));
    if (button.enabled && !pressed) {
        painter.setPen(face.darker(122));
        painter.drawLine(place.left() + 1, place.bottom() - 1, place.right() - 1, place.bottom() - 1);
    }
    if (button.hasFocus) paintFocus(canvas, place);
    painter.setPen(textColourOf(button));
    const QRectF room = QRectF(place).adjusted(4, 2, -4, -2).translated(pressed ? 1 : 0, pressed ? 1 : 0);
    paintFittedText(canvas, room, toolkitText(button.text).trimmed(), canvas.scale.fontPixels(button.fontPoints),
                    button.bold, Qt::AlignCenter | Qt::TextWordWrap | Qt::TextShowMnemonic);
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
    painter.setPen(frameColour());
    painter.drawRect(place.adjusted(0, 0, -1, -1));

    constexpr int flags = Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine | Qt::TextShowMnemonic;
    const int wanted = canvas.scale.fontPixels(frame.fontPoints);
    const int margin = static_cast<int>(std::lround(canvas.scale.designX(titleTwips)));
    const int above = canvas.scale.designPixels(1.5);
    const QRectF room(place.left() + margin, place.top() + above, std::max(1, place.width() - 2 * margin),
                      canvas.scale.designPixels(titleHeight) - above);
    painter.setPen(textColourOf(frame));
    paintFittedText(canvas, room, toolkitText(frame.text).trimmed(), wanted, frame.bold, flags);
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
