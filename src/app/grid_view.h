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

    std::map<const screen::Grid*, View> views_;
};

}  // namespace app
