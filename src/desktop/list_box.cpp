#include "desktop/list_box.h"

#include <algorithm>

#include "desktop/characters.h"

namespace desktop {

namespace {

/// Rows for which a list has room. A low one would rather write a little smaller than show but one or two items.
int rowsIn(int height, int rowHeight, int items)
{
    constexpr int leastRows = 3;
    constexpr double mostSqueezing = 0.8;
    const int rows = height / rowHeight;
    const int least = std::min(items, leastRows);
    if (rows < least && height >= least * rowHeight * mostSqueezing) return least;
    return std::max(1, rows);
}

}  // namespace

int ListLayout::itemAt(QPoint point) const
{
    if (!body.contains(point)) return -1;
    const int item = top + (point.y() - body.top()) / rowHeight;
    return item < items ? item : -1;
}

ListLayout layOutList(const app::ControlPicture& list, const FormScale& scale, int top)
{
    ListLayout layout;
    layout.place = scale.pixels(list.place);
    const int edge = focusThickness(scale);
    layout.body = layout.place.adjusted(edge, 2, -edge, -2);
    layout.items = static_cast<int>(list.items.size());
    const int wanted = scale.fontPixels(list.fontPoints);
    layout.capacity = rowsIn(layout.body.height(), wanted + wanted / 5 + 1, layout.items);
    layout.rowHeight = std::max(1, layout.body.height() / layout.capacity);
    const int lastTop = layout.lastTop();
    layout.top = std::clamp(top, 0, lastTop);
    if (lastTop == 0) return layout;
    const int barWidth = ScrollBar::widthAt(scale);
    const QRect bar(layout.body.right() + 1 - barWidth, layout.body.top(), barWidth, layout.body.height());
    layout.scrollBar =
        ScrollBar(bar, {layout.top > 0, layout.top < lastTop, static_cast<double>(layout.top) / lastTop});
    layout.body.setRight(bar.left() - 1);
    return layout;
}

int topThatShows(const ListLayout& layout, int item)
{
    if (item < 0) return layout.top;
    return std::clamp(layout.top, item - layout.capacity + 1, item);
}

void paintList(Canvas& canvas, const app::ControlPicture& list, const ListLayout& layout)
{
    QPainter& painter = canvas.painter;
    painter.save();
    painter.fillRect(layout.place, toolkitColour(list.background));
    painter.setPen(edgeColour());
    painter.drawRect(layout.place.adjusted(0, 0, -1, -1));
    painter.save();
    painter.setClipRect(layout.body, Qt::IntersectClip);
    const int last = std::min(layout.items, layout.top + layout.capacity);
    for (int item = layout.top; item < last; ++item) {
        const QRect line(layout.body.left(), layout.body.top() + (item - layout.top) * layout.rowHeight,
                         layout.body.width(), layout.rowHeight);
        const bool chosen = item == list.listIndex;
        if (chosen) painter.fillRect(line, selectionColour());
        painter.setPen(chosen ? selectedTextColour() : textColourOf(list));
        paintFittedText(
            canvas, QRectF(line).adjusted(4, 0, -2, 0), toolkitText(list.items[static_cast<std::size_t>(item)]),
            canvas.scale.fontPixels(list.fontPoints), list.bold, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine);
    }
    painter.restore();
    if (!layout.scrollBar.place().isNull()) layout.scrollBar.paint(canvas);
    if (list.hasFocus) paintFocus(canvas, layout.place);
    painter.restore();
}

}  // namespace desktop
