#include "script/rows_shown.h"

#include <algorithm>

#include "script/step_failed.h"

namespace script {

namespace {

StepFailed noSuchRow(const screen::Control& control, long number, long count)
{
    return {"row " + std::to_string(number) + " of " + control.name, std::to_string(count) + " rows"};
}

}  // namespace

long gridRowCount(const screen::Grid& grid)
{
    const storage::RecordSet& set = grid.data->Recordset;
    return set.isOpen() ? set.RecordCount() : 0;
}

storage::Row gridRow(const screen::Grid& grid, long number)
{
    const long count = gridRowCount(grid);
    const auto wanted = static_cast<std::size_t>(number < 0 ? -number : number);
    if (number == 0 || wanted > static_cast<std::size_t>(count)) throw noSuchRow(grid, number, count);
    const storage::RecordSet& set = grid.data->Recordset;
    return number > 0 ? set.firstRows(wanted).back() : set.lastRows(wanted).front();
}

std::vector<storage::Row> gridRows(const screen::Grid& grid)
{
    const long count = gridRowCount(grid);
    if (count == 0) return {};
    return grid.data->Recordset.firstRows(static_cast<std::size_t>(count));
}

std::vector<std::string> visibleValues(const screen::Grid& grid, const storage::Row& row)
{
    std::vector<std::string> values;
    const std::size_t columns = std::min(row.columns.size(), grid.columnWidths.size());
    for (std::size_t column = 0; column < columns; ++column)
        if (grid.columnWidths.at(column) > 0) values.push_back(row.columns[column]);
    return values;
}

long currentGridRow(const screen::Grid& grid)
{
    const storage::RecordSet& set = grid.data->Recordset;
    if (!set.isOpen() || !set.currentKey()) return 0;
    const std::vector<storage::Row> rows = gridRows(grid);
    const auto current = std::find_if(rows.begin(), rows.end(),
                                      [key = *set.currentKey()](const storage::Row& row) { return row.key == key; });
    return current == rows.end() ? 0 : static_cast<long>(current - rows.begin() + 1);
}

std::size_t listIndex(const screen::ListBox& list, long number)
{
    const long count = static_cast<long>(list.items.size());
    const long index = number < 0 ? count + number : number - 1;
    if (number == 0 || index < 0 || index >= count) throw noSuchRow(list, number, count);
    return static_cast<std::size_t>(index);
}

}  // namespace script
