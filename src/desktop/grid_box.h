// A grid in the window: header, rows and scroll bar.
#pragma once

#include <optional>

#include "desktop/grid_columns.h"
#include "desktop/scroll_bar.h"

namespace desktop {

struct GridLayout {
    QRect place;
    QRect header;
    QRect body;  ///< all rows
    int rowHeight = 0;
    std::size_t capacity = 1;  ///< rows that have room
    ScrollBar scrollBar;

    /// Row in view under a point, from 0; nothing where there is no room for one.
    std::optional<std::size_t> rowAt(QPoint point) const;
};

GridLayout layOutGrid(const app::ControlPicture& grid, const FormScale& scale);

/// The columns that what is in view asks for.
GridColumns columnsOf(const app::ControlPicture& grid, const GridLayout& layout, const FormScale& scale, Fonts& fonts);

void paintGrid(Canvas& canvas, const app::ControlPicture& grid, const GridLayout& layout, const GridColumns& columns);

}  // namespace desktop
