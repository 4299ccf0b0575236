#include "desktop/text_box.h"

#include <algorithm>
#include <cmath>

#include "desktop/characters.h"

namespace desktop {

namespace {

/// A text gets this much smaller before it is scrolled instead.
constexpr double leastShrinking = 0.7;

std::vector<qsizetype> characterStarts(const QString& text)
{
    std::vector<qsizetype> starts;
    for (qsizetype i = 0; i < text.size(); ++i)
        if (!text.at(i).isLowSurrogate()) starts.push_back(i);
    starts.push_back(text.size());
    return starts;
}

std::vector<double> characterEdges(const TextBoxLayout& layout, const QFontMetricsF& metrics)
{
    std::vector<double> edges;
    edges.reserve(layout.starts.size());
    for (qsizetype start : layout.starts)
        edges.push_back(metrics.horizontalAdvance(layout.text, static_cast<int>(start)));
    return edges;
}

double scrolledOffset(const TextBoxLayout& layout, std::size_t caret, double offset)
{
    const double room = layout.inner.width() - 1;
    const double end = layout.edges.back();
    if (end <= room) return 0;
    const double x = layout.edges.at(std::min(caret, layout.edges.size() - 1));
    if (x < offset) offset = x;
    if (x > offset + room) offset = x - room;
    return std::clamp(offset, 0.0, end - room);
}

}  // namespace

std::size_t TextBoxLayout::caretAt(double x) const
{
    const double inText = x - inner.left() + offset;
    for (std::size_t i = 0; i + 1 < edges.size(); ++i)
        if (inText < (edges[i] + edges[i + 1]) / 2) return i;
    return edges.size() - 1;
}

double TextBoxLayout::caretX(std::size_t character) const
{
    return inner.left() - offset + edges.at(std::min(character, edges.size() - 1));
}

TextBoxLayout layOutTextBox(const app::ControlPicture& box, const FormScale& scale, Fonts& fonts, double offset)
{
    TextBoxLayout layout;
    layout.place = scale.pixels(box.place);
    const int edge = focusThickness(scale);
    layout.inner = QRectF(layout.place).adjusted(edge + 2, 1, -edge - 1, -1);  // capitals leave room above and below
    layout.face = box.inputMethod ? Face::text : Face::code;
    layout.text = toolkitText(box.text);
    layout.starts = characterStarts(layout.text);

    const int highest = fonts.fitting(QStringLiteral("X"), layout.inner.size(), scale.fontPixels(box.fontPoints),
                                      box.bold, Qt::TextSingleLine, layout.face);
    const int lowest = std::max(smallestFontPixels, static_cast<int>(std::ceil(highest * leastShrinking)));
    layout.fontPixels = highest;
    while (layout.fontPixels > lowest &&
           fonts.metrics(layout.fontPixels, box.bold, layout.face).horizontalAdvance(layout.text) + 1 >
               layout.inner.width())
        --layout.fontPixels;
    layout.edges = characterEdges(layout, fonts.metrics(layout.fontPixels, box.bold, layout.face));
    layout.offset = box.hasFocus ? scrolledOffset(layout, box.caret, offset) : 0;
    return layout;
}

void paintTextBox(Canvas& canvas, const app::ControlPicture& box, const TextBoxLayout& layout, bool caretShown)
{
    QPainter& painter = canvas.painter;
    painter.fillRect(layout.place, toolkitColour(box.background));
    painter.setPen(box.enabled ? edgeColour() : frameColour());
    painter.drawRect(layout.place.adjusted(0, 0, -1, -1));
    if (box.hasFocus) paintFocus(canvas, layout.place);

    painter.save();
    painter.setClipRect(layout.inner.adjusted(-1, 0, 1, 0), Qt::IntersectClip);
    const QFontMetricsF& metrics = canvas.fonts.metrics(layout.fontPixels, box.bold, layout.face);
    const double top = layout.inner.center().y() - metrics.height() / 2;
    const QPointF baseLine(layout.inner.left() - layout.offset, std::round(top + metrics.ascent()));
    painter.setFont(canvas.fonts.font(layout.fontPixels, box.bold, layout.face));
    painter.setPen(textColourOf(box));
    painter.drawText(baseLine, layout.text);

    if (box.hasFocus && box.selLength > 0) {
        const double from = layout.caretX(box.selStart);
        const double to = layout.caretX(box.selStart + box.selLength);
        const QRectF selection(from, top, to - from, metrics.height());
        painter.fillRect(selection, selectionColour());
        painter.setClipRect(selection, Qt::IntersectClip);
        painter.setPen(selectedTextColour());
        painter.drawText(baseLine, layout.text);
    } else if (box.hasFocus && caretShown) {
        const int width = std::max(1, canvas.scale.designPixels(1.4));
        painter.fillRect(QRectF(std::floor(layout.caretX(box.caret)), top, width, metrics.height()), Qt::black);
    }
    painter.restore();
}

}  // namespace desktop
