// What grids and lists show, row by row. Rows are counted from 1, negative ones from the end.
#pragma once

#include <string>
#include <vector>

#include "screen/control.h"

namespace script {

/// Number of rows of a grid; 0 while its record set was never opened.
long gridRowCount(const screen::Grid& grid);

/// Row `number` of a grid. StepFailed when there is none.
storage::Row gridRow(const screen::Grid& grid, long number);

/// All rows of a grid.
std::vector<storage::Row> gridRows(const screen::Grid& grid);

/// The values of a row in the columns that are seen.
std::vector<std::string> visibleValues(const screen::Grid& grid, const storage::Row& row);

/// Number of the row on which a grid stands, 0 for none.
long currentGridRow(const screen::Grid& grid);

/// Place of item `number` of a list, from 0. StepFailed when there is none.
std::size_t listIndex(const screen::ListBox& list, long number);

}  // namespace script
