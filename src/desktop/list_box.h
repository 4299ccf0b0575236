// A list in the window. Which item stands at its top is the window's own matter.
#pragma once

#include <algorithm>

#include "desktop/scroll_bar.h"

namespace desktop {

struct ListLayout {
    QRect place;
    QRect body;
    int rowHeight = 1;
    int top = 0;       ///< item at the top, from 0
    int capacity = 1;  ///< items that have room
    int items = 0;
    ScrollBar scrollBar;

    /// The item at the top when the last one is at the foot.
    int lastTop() const { return std::max(0, items - capacity); }

    /// Item under a point, -1 where there is none.
    int itemAt(QPoint point) const;
};

/// `top` is the item that stood at the top before.
ListLayout layOutList(const app::ControlPicture& list, const FormScale& scale, int top);

/// The item at the top with which `item` is in view, as near to the present one as can be.
int topThatShows(const ListLayout& layout, int item);

void paintList(Canvas& canvas, const app::ControlPicture& list, const ListLayout& layout);

}  // namespace desktop
