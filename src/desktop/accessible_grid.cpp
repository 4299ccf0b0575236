#include "desktop/accessible_grid.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

#include "desktop/characters.h"

namespace desktop {

namespace {

const app::GridPicture* gridOf(const app::ControlPicture* control)
{
    return control == nullptr ? nullptr : control->grid.get();
}

/// Numbers in the record set of the columns that are seen.
std::vector<std::size_t> seenColumns(const app::GridPicture* grid)
{
    std::vector<std::size_t> columns;
    if (grid == nullptr) return columns;
    for (std::size_t column = 0; column < grid->titles.size() && column < grid->columnWidths.size(); ++column)
        if (grid->columnWidths[column] > 0) columns.push_back(column);
    return columns;
}

int rowsOf(const app::GridPicture* grid)
{
    return grid == nullptr ? 0 : static_cast<int>(grid->rows->rows.size());
}

QString textIn(const storage::Row& row, std::size_t column)
{
    return column < row.columns.size() ? toolkitText(row.columns[column]) : QString();
}

/// Where the cells of a grid lie in the window.
class CellPlaces {
 public:
    CellPlaces(FormSurface& surface, const app::ControlPicture& grid)
        : layout_(surface.grid(grid)), columns_(surface.gridColumns(grid).columns)
    {
    }

    /// Row -1 is the header. Empty for a cell that is not in view.
    QRect of(int row, int column) const
    {
        if (column >= static_cast<int>(columns_.size()) || row >= static_cast<int>(layout_.capacity)) return {};
        const double left = std::accumulate(columns_.begin(), columns_.begin() + column, 0.0,
                                            [](double sum, const GridColumn& each) { return sum + each.width; });
        const int from = layout_.body.left() + static_cast<int>(std::lround(left));
        const double width = columns_[static_cast<std::size_t>(column)].width;
        const int to = layout_.body.left() + static_cast<int>(std::lround(left + width));
        if (row < 0) return {from, layout_.header.top(), to - from, layout_.header.height()};
        return {from, layout_.body.top() + row * layout_.rowHeight, to - from, layout_.rowHeight};
    }

 private:
    GridLayout layout_;
    std::vector<GridColumn> columns_;
};

}  // namespace

QAccessibleInterface* AccessibleGrid::child(int index) const
{
    return index < childCount() ? form().ofPart(control(), index) : nullptr;
}

int AccessibleGrid::childCount() const
{
    return (rowCount() + 1) * columnCount();
}

int AccessibleGrid::indexOfChild(const QAccessibleInterface* child) const
{
    const auto* cell = dynamic_cast<const AccessibleCell*>(child);
    if (cell == nullptr || form().ofPart(control(), cell->number()) != child) return -1;
    return cell->number();
}

QAccessibleInterface* AccessibleGrid::childAt(int x, int y) const
{
    const app::ControlPicture* grid = picture();
    if (grid == nullptr) return nullptr;
    const CellPlaces places(surface(), *grid);
    const int columns = columnCount();
    for (int index = 0; index < childCount(); ++index)
        if (onScreen(places.of(index / columns - 1, index % columns)).contains(x, y)) return child(index);
    return nullptr;
}

void* AccessibleGrid::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
    return AccessibleControl::interface_cast(type);
}

QAccessibleInterface* AccessibleGrid::cellAt(int row, int column) const
{
    if (row < 0 || row >= rowCount() || column < 0 || column >= columnCount()) return nullptr;
    return child((row + 1) * columnCount() + column);
}

QList<QAccessibleInterface*> AccessibleGrid::selectedCells() const
{
    QList<QAccessibleInterface*> cells;
    for (int row : selectedRows())
        for (int column = 0; column < columnCount(); ++column)
            cells += cellAt(row, column);
    return cells;
}

QString AccessibleGrid::columnDescription(int column) const
{
    const app::GridPicture* grid = gridOf(picture());
    const auto columns = seenColumns(grid);
    if (column < 0 || column >= static_cast<int>(columns.size())) return {};
    return toolkitText(grid->titles[columns[static_cast<std::size_t>(column)]]);
}

QString AccessibleGrid::rowDescription(int row) const
{
    const app::GridPicture* grid = gridOf(picture());
    if (row < 0 || row >= rowsOf(grid)) return {};
    QStringList texts;
    for (std::size_t column : seenColumns(grid))
        texts += textIn(grid->rows->rows[static_cast<std::size_t>(row)], column);
    return texts.join(QLatin1Char(' '));
}

int AccessibleGrid::columnCount() const
{
    return static_cast<int>(seenColumns(gridOf(picture())).size());
}

int AccessibleGrid::rowCount() const
{
    return rowsOf(gridOf(picture()));
}

QList<int> AccessibleGrid::selectedRows() const
{
    const app::GridPicture* grid = gridOf(picture());
    if (grid == nullptr) return {};
    const auto& rows = grid->rows->rows;
    const auto current = std::ranges::find(rows, grid->currentKey, &storage::Row::key);
    return current == rows.end() ? QList<int>{} : QList<int>{static_cast<int>(current - rows.begin())};
}

bool AccessibleGrid::selectRow(int row)
{
    const app::ControlPicture* seen = picture();
    if (row < 0 || row >= rowCount() || !seen->enabled) return false;
    post(app::RowPicked{seen->control, seen->grid->rows->rows[static_cast<std::size_t>(row)].key, false});
    return true;
}

int AccessibleCell::columnCount() const
{
    return static_cast<int>(seenColumns(gridOf(picture())).size());
}

int AccessibleCell::columnIndex() const
{
    return columnCount() == 0 ? 0 : number_ % columnCount();
}

int AccessibleCell::rowIndex() const
{
    return columnCount() == 0 ? 0 : number_ / columnCount() - 1;
}

bool AccessibleCell::isValid() const
{
    return columnCount() > 0 && rowIndex() < rowsOf(gridOf(picture()));
}

QString AccessibleCell::text(QAccessible::Text kind) const
{
    if (kind != QAccessible::Name || !isValid()) return {};
    const app::GridPicture& grid = *picture()->grid;
    const std::size_t column = seenColumns(&grid)[static_cast<std::size_t>(columnIndex())];
    if (isTitle()) return toolkitText(grid.titles[column]);
    return textIn(grid.rows->rows[static_cast<std::size_t>(rowIndex())], column);
}

QRect AccessibleCell::rect() const
{
    if (!isValid()) return {};
    return onScreen(CellPlaces(surface(), *picture()).of(rowIndex(), columnIndex()));
}

QAccessible::State AccessibleCell::state() const
{
    QAccessible::State state;
    state.invisible = !isValid();
    if (state.invisible) return state;
    state.disabled = !picture()->enabled;
    state.readOnly = true;
    state.selectable = !isTitle();
    state.selected = isSelected();
    state.offscreen = rect().isEmpty();
    return state;
}

QStringList AccessibleCell::actionNames() const
{
    return isValid() && !isTitle() && picture()->enabled ? QStringList{pressAction()} : QStringList{};
}

void AccessibleCell::doAction(const QString& name)
{
    if (!actionNames().contains(name)) return;
    const auto& rows = picture()->grid->rows->rows;
    post(app::RowPicked{addressee(), rows[static_cast<std::size_t>(rowIndex())].key, false});
}

void* AccessibleCell::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableCellInterface) return static_cast<QAccessibleTableCellInterface*>(this);
    return AccessiblePart::interface_cast(type);
}

bool AccessibleCell::isSelected() const
{
    if (!isValid() || isTitle()) return false;
    const app::GridPicture& grid = *picture()->grid;
    return grid.rows->rows[static_cast<std::size_t>(rowIndex())].key == grid.currentKey;
}

QList<QAccessibleInterface*> AccessibleCell::columnHeaderCells() const
{
    return isTitle() ? QList<QAccessibleInterface*>{}
                     : QList<QAccessibleInterface*>{form().ofPart(control(), columnIndex())};
}

QString AccessibleCurrentRow::text(QAccessible::Text kind) const
{
    QAccessibleInterface* grid = parent();
    if (kind != QAccessible::Name || grid == nullptr) return {};
    const QList<int> rows = grid->tableInterface()->selectedRows();
    return rows.isEmpty() ? QString() : grid->tableInterface()->rowDescription(rows.first());
}

QRect AccessibleCurrentRow::rect() const
{
    QAccessibleInterface* grid = parent();
    return grid == nullptr ? QRect() : grid->rect();
}

}  // namespace desktop
