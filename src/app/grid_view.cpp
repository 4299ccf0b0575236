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

std::vector<storage::Row>::iterator findRow(std::vector<storage::Row>& rows, std::int64_t key)
{
    return std::find_if(rows.begin(), rows.end(), [&](const storage::Row& row) { return row.key == key; });
}

/// The rows that were in view, moved so that the current one is among them. A step out of the top of the window moves
/// it up no farther than that step.
std::vector<storage::Row> movedToCurrent(const storage::RecordSet& set, std::vector<storage::Row> rows,
                                         std::size_t capacity)
{
    const std::int64_t current = set.currentKey().value_or(0);
    if (rows.empty() || current == 0) return rowsAroundCurrent(set, capacity);
    if (findRow(rows, current) != rows.end()) return rows;
    std::vector<storage::Row> above = set.rowsBefore(rows.front(), capacity);
    const auto found = findRow(above, current);
    if (found == above.end()) return rowsAroundCurrent(set, capacity);
    rows.insert(rows.begin(), std::make_move_iterator(found), std::make_move_iterator(above.end()));
    rows.resize(std::min(rows.size(), capacity));
    return rows;
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

/// The share of the set in front of the last window, where the way of the thumb ends.
double lastShare(const storage::RecordSet& set, std::size_t capacity)
{
    const std::vector<storage::Row> last = set.lastRows(capacity);
    return last.empty() ? 0 : set.shareBefore(last.front());
}

std::vector<storage::Row> rowsAtPlace(const storage::RecordSet& set, double place, std::size_t capacity)
{
    if (place >= 1) return set.lastRows(capacity);
    return set.rowsAtShare(place * lastShare(set, capacity), capacity);
}

/// Only between the ends it has to be found out.
double placeOf(const storage::RecordSet& set, const GridRows& view, std::size_t capacity)
{
    if (!view.moreAbove) return 0;
    if (!view.moreBelow) return 1;
    const double last = lastShare(set, capacity);
    return last > 0 ? std::min(1.0, set.shareBefore(view.rows.front()) / last) : 0;
}

std::shared_ptr<const GridRows> inView(const storage::RecordSet& set, std::vector<storage::Row> rows,
                                       std::size_t capacity)
{
    auto view = std::make_shared<GridRows>();
    view->rows = std::move(rows);
    if (view->rows.empty()) return view;
    view->moreAbove = !set.rowsBefore(view->rows.front(), 1).empty();
    view->moreBelow = !set.rowsAfter(view->rows.back(), 1).empty();
    view->place = placeOf(set, *view, capacity);
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
        view.rows = view.generation == generation ? movedToCurrent(set, std::move(view.rows), view.capacity)
                                                  : rowsAroundCurrent(set, view.capacity);
        picture->rows = inView(set, view.rows, view.capacity);
    });
    if (!picture->rows) picture->rows = std::make_shared<GridRows>();
    view.generation = generation;
    view.currentKey = currentKey;
    view.picture = picture;
    return view;
}

/// `move` changes the rows of the view.
template <typename Move>
void GridViews::moveView(const screen::Grid& grid, std::size_t capacity, Move&& move)
{
    View& view = fresh(grid);
    const storage::RecordSet& set = grid.data->Recordset;
    if (!set.isOpen()) return;
    auto picture = std::make_shared<GridPicture>(*view.picture);
    base::quietly<base::noCurrentRecord, base::rowGone>([&] {
        capacity = std::max<std::size_t>(1, capacity);
        if (capacity != view.capacity) view.rows = rowsAroundCurrent(set, capacity);
        view.capacity = capacity;
        std::forward<Move>(move)(set, view);
        picture->rows = inView(set, view.rows, capacity);
    });
    view.picture = picture;
}

void GridViews::scroll(const screen::Grid& grid, long rows, std::size_t capacity)
{
    moveView(grid, capacity, [rows](const storage::RecordSet& set, View& view) {
        if (rows != 0) view.rows = scrolled(set, std::move(view.rows), rows, view.capacity);
    });
}

void GridViews::drag(const screen::Grid& grid, double place, std::size_t capacity)
{
    moveView(grid, capacity, [place](const storage::RecordSet& set, View& view) {
        view.rows = rowsAtPlace(set, place, view.capacity);
    });
}

long GridViews::pageOf(const screen::Grid& grid)
{
    return std::max(1L, static_cast<long>(fresh(grid).capacity) - 1);
}

}  // namespace app
