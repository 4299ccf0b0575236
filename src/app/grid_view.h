// Which rows of a record set a grid has in view.
#pragma once

#include <map>
#include <memory>

#include "app/picture.h"
#include "screen/control.h"

namespace app {

/// The rows in view of every grid, fetched as they are needed and kept until the record set or its position changes.
class GridViews {
 public:
    /// What is to be seen of a grid. A record set that was never opened gives an empty one.
    std::shared_ptr<const GridPicture> pictureOf(const screen::Grid& grid);

    /// Scrolls by `rows` (down is positive) in a window that has room for `capacity` rows.
    void scroll(const screen::Grid& grid, long rows, std::size_t capacity);

    /// Brings the rows at a place of the set into view, 0 for the first rows and 1 for the last.
    void drag(const screen::Grid& grid, double place, std::size_t capacity);

    /// Rows by which a page of the grid moves on: one of the page before stays in view.
    long pageOf(const screen::Grid& grid);

    /// Forgets everything: a new program run.
    void clear() { views_.clear(); }

 private:
    struct View {
        std::uint64_t generation = 0;
        std::int64_t currentKey = 0;
        std::size_t capacity = 0;
        std::vector<storage::Row> rows;
        std::shared_ptr<const GridPicture> picture;
    };

    View& fresh(const screen::Grid& grid);
    template <typename Move>
    void moveView(const screen::Grid& grid, std::size_t capacity, Move&& move);

    std::map<const screen::Grid*, View> views_;
};

}  // namespace app
