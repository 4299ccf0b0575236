#include "desktop/scroll_bar.h"

#include <QPolygonF>
#include <algorithm>
#include <cmath>

namespace desktop {

namespace {

constexpr ScrollPart buttons[] = {ScrollPart::toFirst, ScrollPart::rowUp, ScrollPart::rowDown, ScrollPart::toLast};
/// More windows than any log has: the end is reached whatever stands between.
constexpr long windowsToTheEnd = 10000;

void paintArrow(QPainter& painter, const QRectF& box, bool up)
{
    const double left = box.left() + box.width() * 0.28;
    const double right = box.right() - box.width() * 0.28;
    const double base = up ? box.bottom() - box.height() * 0.32 : box.top() + box.height() * 0.32;
    const double tip = up ? box.top() + box.height() * 0.28 : box.bottom() - box.height() * 0.28;
    painter.drawPolygon(QPolygonF({{left, base}, {right, base}, {(left + right) / 2, tip}}));
}

}  // namespace

ScrollBar::ScrollBar(const QRect& place, const ScrollPlace& rows) : place_(place), rows_(rows)
{
}

QRect ScrollBar::buttonOf(ScrollPart part) const
{
    const int height = std::min(place_.width(), place_.height() / 5);
    int top = place_.top();
    if (part == ScrollPart::rowUp) top += height;
    if (part == ScrollPart::rowDown) top += place_.height() - 2 * height;
    if (part == ScrollPart::toLast) top += place_.height() - height;
    return {place_.left(), top, place_.width(), height};
}

QRect ScrollBar::trough() const
{
    return {QPoint(place_.left(), buttonOf(ScrollPart::rowUp).bottom() + 1),
            QPoint(place_.right(), buttonOf(ScrollPart::rowDown).top() - 1)};
}

QRect ScrollBar::thumb() const
{
    if (!rows_.moreAbove && !rows_.moreBelow) return {};
    const QRect room = trough();
    const int height = std::min(room.height(), std::max(room.width(), room.height() / 6));
    const double way = room.height() - height;
    return {room.left(), room.top() + static_cast<int>(std::lround(way * std::clamp(rows_.at, 0.0, 1.0))), room.width(),
            height};
}

double ScrollBar::placeOfThumb(int top) const
{
    const QRect room = trough();
    const double way = room.height() - thumb().height();
    return way <= 0 ? 0 : std::clamp((top - room.top()) / way, 0.0, 1.0);
}

bool ScrollBar::leadsOn(ScrollPart part) const
{
    const bool upwards = part == ScrollPart::toFirst || part == ScrollPart::rowUp || part == ScrollPart::pageUp;
    return upwards ? rows_.moreAbove : rows_.moreBelow;
}

ScrollPart ScrollBar::partAt(QPoint point) const
{
    if (!place_.contains(point)) return ScrollPart::none;
    if (thumb().contains(point)) return ScrollPart::thumb;
    ScrollPart part = point.y() < thumb().center().y() ? ScrollPart::pageUp : ScrollPart::pageDown;
    for (const ScrollPart button : buttons)
        if (buttonOf(button).contains(point)) part = button;
    return leadsOn(part) ? part : ScrollPart::none;
}

long ScrollBar::rowsOf(ScrollPart part, std::size_t capacity)
{
    const long page = std::max<long>(1, static_cast<long>(capacity) - 1);
    switch (part) {
        case ScrollPart::toFirst:
            return -windowsToTheEnd * static_cast<long>(capacity);
        case ScrollPart::rowUp:
            return -1;
        case ScrollPart::pageUp:
            return -page;
        case ScrollPart::pageDown:
            return page;
        case ScrollPart::rowDown:
            return 1;
        case ScrollPart::toLast:
            return windowsToTheEnd * static_cast<long>(capacity);
        case ScrollPart::thumb:
        case ScrollPart::none:
            break;
    }
    return 0;
}

void ScrollBar::paint(Canvas& canvas) const
{
    QPainter& painter = canvas.painter;
    painter.save();
    painter.fillRect(place_, QColor(236, 238, 241));
    if (!rows_.moreAbove && !rows_.moreBelow) return painter.restore();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (ScrollPart part : buttons) {
        const QRectF box = buttonOf(part);
        const bool up = part == ScrollPart::toFirst || part == ScrollPart::rowUp;
        painter.setBrush(leadsOn(part) ? QColor(60, 60, 60) : QColor(176, 176, 176));
        if (part == ScrollPart::rowUp || part == ScrollPart::rowDown) {
            paintArrow(painter, box, up);
            continue;
        }
        const double half = box.height() / 2;
        paintArrow(painter, box.adjusted(0, 1, 0, -half + 1), up);
        paintArrow(painter, box.adjusted(0, half - 1, 0, -1), up);
    }
    if (!thumb().isNull()) {
        painter.setBrush(QColor(150, 150, 150));
        painter.drawRoundedRect(QRectF(thumb()).adjusted(3, 0, -3, 0), 2, 2);
    }
    painter.restore();
}

}  // namespace desktop
