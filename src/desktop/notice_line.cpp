#include "desktop/notice_line.h"

#include <QPainter>
#include <algorithm>

#include "desktop/accessible_news.h"
#include "desktop/look.h"

namespace desktop {

namespace {

/// Of the bar, in heights of the line.
constexpr int barHeights = 9;

}  // namespace

NoticeLine::NoticeLine(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void NoticeLine::setNotice(const QString& notice)
{
    if (notice == notice_) return;
    notice_ = notice;
    setToolTip(notice);
    update();
    if (isReadOut()) tellNotice(*this);
}

void NoticeLine::setProgress(const std::optional<ProgressShown>& progress)
{
    if (progress == progress_) return;
    const bool begins = !progress_;
    progress_ = progress;
    update();
    // Said once: a voice cannot follow the numbers.
    if (begins && isReadOut()) tellNotice(*this);
}

QSize NoticeLine::sizeHint() const
{
    return {100, fontMetrics().height() + 4};
}

void NoticeLine::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), formColour());
    painter.setPen(faintLineColour());
    painter.drawLine(rect().topLeft(), rect().topRight());
    QRect room = rect().adjusted(6, 1, -6, 0);
    if (progress_ && progress_->share) room = paintBar(painter, room);
    painter.setPen(QColor(70, 70, 70));
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                     fontMetrics().elidedText(shown(), Qt::ElideRight, room.width()));
}

/// The bar stands in front of the text, so that it stays where it is while the text grows. Returns the room behind it.
QRect NoticeLine::paintBar(QPainter& painter, const QRect& room) const
{
    constexpr int margin = 4;
    const int width = std::min(room.width() / 3, barHeights * room.height());
    const QRect bar(room.left(), room.top() + margin, width, room.height() - 2 * margin);
    const int filled = static_cast<int>(std::clamp(*progress_->share, 0.0, 1.0) * bar.width());
    painter.fillRect(bar, Qt::white);
    painter.fillRect(QRect(bar.topLeft(), QSize(filled, bar.height())), selectionColour());
    painter.setPen(edgeColour());
    painter.drawRect(bar.adjusted(0, 0, -1, -1));
    return room.adjusted(width + 2 * margin, 0, 0, 0);
}

}  // namespace desktop
