#include "desktop/notice_line.h"

#include <QPainter>

#include "desktop/look.h"

namespace desktop {

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
    painter.setPen(QColor(70, 70, 70));
    const QRect room = rect().adjusted(6, 1, -6, 0);
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                     fontMetrics().elidedText(notice_, Qt::ElideRight, room.width()));
}

}  // namespace desktop
