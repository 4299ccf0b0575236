#include "app/grid_view.h"

#include <algorithm>
#include <iterator>

#include "base/runtime_error.h"
#include "base/text.h"

namespace app {

namespace {

constexpr double headerTwips = 285;
constexpr double rowTwips = 255;
/// Scrolling farther than this many windows goes straight to the end that it heads for.
constexpr long farWindows = 20;

std::size_t roomOf(const screen::Grid& grid)
{
    return static_cast<std::size_t>(std::max(1.0, (grid.Height - headerTwips) / rowTwips));
}

storage::Row currentRow(const storage::RecordSet& set)
{
    storage::Row row;
    row.key = set.currentKey().value_or(0);
    for (std::size_t column = 0; column < set.columnNames().size(); ++column)
        row.columns.push_back(set.Field(static_cast<int>(column)));
    return row;
}

/// As many rows as have room, with the current one among them: at the foot when enough rows stand before it.
std::vector<storage::Row> rowsAroundCurrent(const storage::RecordSet& set, std::size_t capacity)
{
    if (!set.currentKey()) return set.firstRows(capacity);
    const storage::Row current = currentRow(set);
    std::vector<storage::Row> rows = set.rowsBefore(current, capacity - 1);
    rows.push_back(current);
    if (rows.size() < capacity) {
        std::vector<storage::Row> behind = set.rowsAfter(current, capacity - rows.size());
        std::move(behind.begin(), behind.end(), std::back_inserter(rows));
    }
    return rows;
}

bool contains(const std::vector<storage::Row>& rows, std::int64_t key)
{
    return std::any_of(rows.begin(), rows.end(), [&](const storage::Row& row) { return row.key == key; });
}

std::vector<storage::Row> scrolled(const storage::RecordSet& set, std::vector<storage::Row> rows, long by,
                                   std::size_t capacity)
{
    const long far = farWindows * static_cast<long>(capacity);
    if (rows.empty() || by <= -far) return set.firstRows(capacity);
    if (by >= far) return set.lastRows(capacity);
    if (by > 0) {
        std::vector<storage::Row> more = set.rowsAfter(rows.back(), static_cast<std::size_t>(by));
        std::move(more.begin(), more.end(), std::back_inserter(rows));
        if (rows.size() > capacity) rows.erase(rows.begin(), rows.end() - static_cast<std::ptrdiff_t>(capacity));
    }
    if (by < 0) {
        std::vector<storage::Row> more = set.rowsBefore(rows.front(), static_cast<std::size_t>(-by));
        rows.insert(rows.begin(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
        if (rows.size() > capacity) rows.resize(capacity);
    }
    return rows;
}

std::shared_ptr<const GridRows> inView(const storage::RecordSet& set, std::vector<storage::Row> rows)
{
    auto view = std::make_shared<GridRows>();
    if (!rows.empty()) {
        view->moreAbove = !set.rowsBefore(rows.front(), 1).empty();
        view->moreBelow = !set.rowsAfter(rows.back(), 1).empty();
    }
    view->rows = std::move(rows);
    return view;
}

}  // namespace

std::shared_ptr<const GridPicture> GridViews::pictureOf(const screen::Grid& grid)
{
    const View& view = fresh(grid);
    const std::vector<double> widths(grid.columnWidths.begin(), grid.columnWidths.end());
    if (view.picture->columnWidths == widths) return view.picture;
    auto picture = std::make_shared<GridPicture>(*view.picture);
    picture->columnWidths = widths;
    return views_[&grid].picture = picture;
}

GridViews::View& GridViews::fresh(const screen::Grid& grid)
{
    View& view = views_[&grid];
    const storage::RecordSet& set = grid.data->Recordset;
    const std::uint64_t generation = set.isOpen() ? set.generation() : 0;
    const std::int64_t currentKey = set.isOpen() ? set.currentKey().value_or(0) : 0;
    if (view.picture && view.generation == generation && view.currentKey == currentKey) return view;

    if (view.capacity == 0) view.capacity = roomOf(grid);
    auto picture = std::make_shared<GridPicture>();
    picture->generation = generation;
    picture->currentKey = currentKey;
    base::quietly<base::noCurrentRecord, base::rowGone>([&] {
        if (!set.isOpen()) return;
        picture->titles = set.columnNames();
        if (view.generation != generation || !contains(view.rows, currentKey))
            view.rows = rowsAroundCurrent(set, view.capacity);
        picture->rows = inView(set, view.rows);
    });
    if (!picture->rows) picture->rows = std::make_shared<GridRows>();
    view.generation = generation;
    view.currentKey = currentKey;
    view.picture = picture;
    return view;
}

void GridViews::scroll(const screen::Grid& grid, long rows, std::size_t capacity)
{
    View& view = fresh(grid);
    const storage::RecordSet& set = grid.data->Recordset;
    if (!set.isOpen()) return;
    auto picture = std::make_shared<GridPicture>(*view.picture);
    base::quietly<base::noCurrentRecord, base::rowGone>([&] {
        capacity = std::max<std::size_t>(1, capacity);
        if (capacity != view.capacity) view.rows = rowsAroundCurrent(set, capacity);
        view.capacity = capacity;
        if (rows != 0) view.rows = scrolled(set, std::move(view.rows), rows, capacity);
        picture->rows = inView(set, view.rows);
    });
    view.picture = picture;
}

}  // namespace app
