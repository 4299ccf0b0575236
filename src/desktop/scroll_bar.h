// The bar at the right edge of a grid or list: double arrows lead to the ends, arrows a row on, the room between them a
// page on, and the thumb shows the place and is dragged to another. How many rows there are in all nobody counts, so
// the thumb has one size.
#pragma once

#include <QRect>

#include "desktop/look.h"

namespace desktop {

enum class ScrollPart { none, toFirst, rowUp, pageUp, thumb, pageDown, rowDown, toLast };

/// Where the rows in view stand among all.
struct ScrollPlace {
    bool moreAbove = false;
    bool moreBelow = false;
    double at = 0;  ///< 0 the first rows, 1 the last
};

class ScrollBar {
 public:
    ScrollBar() = default;
    ScrollBar(const QRect& place, const ScrollPlace& rows);

    /// Width of a bar at this scale, in pixels.
    static int widthAt(const FormScale& scale) { return std::max(14, scale.designPixels(15)); }

    const QRect& place() const { return place_; }

    /// The part under a point; none outside the bar, and where there is nothing to scroll to.
    ScrollPart partAt(QPoint point) const;

    /// Rows that a part scrolls by in a window of `capacity` rows, down is positive.
    static long rowsOf(ScrollPart part, std::size_t capacity);

    /// The thumb, empty when there is nothing to scroll to.
    QRect thumb() const;
    /// The place, 0 to 1, to which the thumb is dragged when its top comes to `top`, in pixels of the window.
    double placeOfThumb(int top) const;
    /// Draws the thumb at a place of its own, where the pointer holds it.
    void holdThumb(double at) { rows_.at = at; }

    void paint(Canvas& canvas) const;

 private:
    QRect buttonOf(ScrollPart part) const;
    QRect trough() const;
    bool leadsOn(ScrollPart part) const;

    QRect place_;
    ScrollPlace rows_;
};

}  // namespace desktop
