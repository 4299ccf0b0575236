#include "desktop/grid_columns.h"

#include <algorithm>
#include <numeric>

#include "desktop/characters.h"

namespace desktop {

namespace {

double sum(const std::vector<double>& values)
{
    return std::accumulate(values.begin(), values.end(), 0.0);
}

std::vector<std::size_t> columnsInSight(const app::GridPicture& grid)
{
    std::vector<std::size_t> columns;
    for (std::size_t column = 0; column < std::min(grid.titles.size(), grid.columnWidths.size()); ++column)
        if (grid.columnWidths[column] > 0) columns.push_back(column);
    return columns;
}

double widestText(const app::GridPicture& grid, std::size_t column, const QFontMetricsF& metrics)
{
    double widest = metrics.horizontalAdvance(toolkitText(grid.titles[column]));
    for (const storage::Row& row : grid.rows->rows)
        if (column < row.columns.size())
            widest = std::max(widest, metrics.horizontalAdvance(toolkitText(row.columns[column])));
    return widest;
}

bool isNumber(const std::string& text)
{
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

bool hasOnlyNumbers(const app::GridPicture& grid, std::size_t column)
{
    const std::vector<storage::Row>& rows = grid.rows->rows;
    return !rows.empty() && std::all_of(rows.begin(), rows.end(), [column](const storage::Row& row) {
        return column < row.columns.size() && isNumber(row.columns[column]);
    });
}

/// Widths of the form do not grow with the window, but the texts do. What little room is then left is shared out too.
void growWithWindow(std::vector<double>& widths, double designWidth, double room)
{
    constexpr double mostStretching = 1.3;
    const double width = sum(widths);
    if (width <= 0) return;
    const double wanted = std::max(width, designWidth);
    const double reached = room <= wanted * mostStretching ? room : wanted;
    const double growth = std::max(1.0, reached / width);
    for (double& each : widths)
        each *= growth;
}

}  // namespace

std::vector<double> sharedWidths(std::vector<double> widths, const std::vector<double>& needs, double room)
{
    const double squeeze = std::min(1.0, room / std::max(1.0, sum(widths)));
    double missing = 0;
    double spare = 0;
    for (std::size_t i = 0; i < widths.size(); ++i) {
        widths[i] *= squeeze;
        missing += std::max(0.0, needs[i] - widths[i]);
        spare += std::max(0.0, widths[i] - needs[i]);
    }
    if (missing <= 0) return widths;

    const double fromFreeRoom = std::min(missing, room - sum(widths));
    const double fromOthers = std::min(missing - fromFreeRoom, spare);
    const double shareGiven = spare > 0 ? fromOthers / spare : 0;
    const double shareTaken = (fromFreeRoom + fromOthers) / missing;
    for (std::size_t i = 0; i < widths.size(); ++i) {
        const double lack = needs[i] - widths[i];
        widths[i] += lack * (lack > 0 ? shareTaken : shareGiven);
    }
    return widths;
}

GridColumns layOutColumns(const app::ControlPicture& grid, const FormScale& scale, Fonts& fonts, double room,
                          int wantedFontPixels)
{
    const std::vector<std::size_t> seen = columnsInSight(*grid.grid);
    std::vector<double> widths;
    widths.reserve(seen.size());
    double designWidth = 0;
    for (std::size_t column : seen) {
        widths.push_back(scale.x(grid.grid->columnWidths[column]));
        designWidth += scale.designX(grid.grid->columnWidths[column]);
    }
    growWithWindow(widths, designWidth, room);

    GridColumns layout;
    layout.columns.reserve(seen.size());
    std::vector<double> needs;
    for (layout.fontPixels = wantedFontPixels;; --layout.fontPixels) {
        const QFontMetricsF& metrics = fonts.metrics(layout.fontPixels, grid.bold);
        needs.clear();
        for (std::size_t column : seen)
            needs.push_back(widestText(*grid.grid, column, metrics) + 2 * cellMargin + 1);
        if (sum(needs) <= room || layout.fontPixels <= smallestFontPixels) break;
    }
    const std::vector<double> shared = sharedWidths(widths, needs, room);
    for (std::size_t i = 0; i < seen.size(); ++i)
        layout.columns.push_back({seen[i], shared[i], hasOnlyNumbers(*grid.grid, seen[i])});
    return layout;
}

}  // namespace desktop
