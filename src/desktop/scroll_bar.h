// The bar at the right edge of a grid or list. How many rows there are in all nobody counts, so it only knows whether
// there are more above and below: double arrows lead to the ends, arrows a row on, the room between them a page on.
#pragma once

#include <QRect>

#include "desktop/look.h"

namespace desktop {

enum class ScrollPart { none, toFirst, rowUp, pageUp, pageDown, rowDown, toLast };

class ScrollBar {
 public:
    ScrollBar() = default;
    ScrollBar(const QRect& place, bool moreAbove, bool moreBelow);

    /// Width of a bar at this scale, in pixels.
    static int widthAt(const FormScale& scale) { return std::max(14, scale.designPixels(15)); }

    const QRect& place() const { return place_; }

    /// The part under a point; none outside the bar, and where there is nothing to scroll to.
    ScrollPart partAt(QPoint point) const;

    /// Rows that a part scrolls by in a window of `capacity` rows, down is positive.
    static long rowsOf(ScrollPart part, std::size_t capacity);

    void paint(Canvas& canvas) const;

 private:
    QRect buttonOf(ScrollPart part) const;
    QRect trough() const;
    QRect thumb() const;

    QRect place_;
    bool moreAbove_ = false;
    bool moreBelow_ = false;
};

}  // namespace desktop
