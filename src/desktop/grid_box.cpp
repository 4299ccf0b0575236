#include "desktop/grid_box.h"

#include <algorithm>
#include <cmath>

#include "desktop/characters.h"

namespace desktop {

namespace {

constexpr double headerTwips = 285;
constexpr double rowTwips = 255;
constexpr int currentRowMark = 3;  ///< pixels, as the margin of a cell
constexpr QColor headerColour(226, 230, 236);

class GridPainter {
 public:
    GridPainter(Canvas& canvas, const app::ControlPicture& grid, const GridLayout& layout, const GridColumns& columns)
        : canvas_(canvas),
          grid_(grid),
          layout_(layout),
          columns_(columns),
          metrics_(canvas.fonts.metrics(columns_.fontPixels, grid.bold))
    {
    }

    void paint()
    {
        QPainter& painter = canvas_.painter;
        painter.save();
        painter.setClipRect(layout_.place, Qt::IntersectClip);
        painter.fillRect(layout_.place, toolkitColour(grid_.background));
        painter.setFont(canvas_.fonts.font(columns_.fontPixels, grid_.bold));
        paintHeader();
        paintRows();
        paintColumnLines();
        layout_.scrollBar.paint(canvas_);
        painter.setPen(edgeColour());
        painter.drawRect(layout_.place.adjusted(0, 0, -1, -1));
        painter.restore();
    }

 private:
    /// The texts of one line, `textOf` gives that of a column of the record set.
    template <typename TextOf>
    void paintCells(int top, int height, TextOf&& textOf)
    {
        double left = layout_.body.left();
        for (const GridColumn& column : columns_.columns) {
            const QRectF cell(left + cellMargin, top, column.width - 2 * cellMargin, height);
            const QString shown = metrics_.elidedText(toolkitText(textOf(column.number)), Qt::ElideRight, cell.width());
            const int across = column.figures ? Qt::AlignRight : Qt::AlignLeft;
            canvas_.painter.drawText(cell, Qt::AlignVCenter | across | Qt::TextSingleLine, shown);
            left += column.width;
        }
    }

    void paintHeader()
    {
        QPainter& painter = canvas_.painter;
        painter.fillRect(layout_.header, headerColour);
        painter.setPen(Qt::black);
        paintCells(layout_.header.top(), layout_.header.height(),
                   [this](std::size_t column) { return grid_.grid->titles[column]; });
        painter.setPen(edgeColour());
        painter.drawLine(layout_.header.bottomLeft(), layout_.header.bottomRight());
    }

    void paintColumnLines()
    {
        double right = layout_.body.left();
        for (const GridColumn& column : columns_.columns) {
            right += column.width;
            const int x = static_cast<int>(std::lround(right)) - 1;
            canvas_.painter.setPen(frameColour());
            canvas_.painter.drawLine(x, layout_.header.top(), x, layout_.header.bottom());
            canvas_.painter.setPen(faintLineColour());
            canvas_.painter.drawLine(x, layout_.body.top(), x, layout_.body.bottom());
        }
    }

    void paintRows()
    {
        const auto& rows = grid_.grid->rows->rows;
        const std::size_t count = std::min(rows.size(), layout_.capacity);
        for (std::size_t i = 0; i < count; ++i)
            paintRow(rows[i], layout_.body.top() + static_cast<int>(i) * layout_.rowHeight);
    }

    void paintRow(const storage::Row& row, int top)
    {
        QPainter& painter = canvas_.painter;
        const QRect line(layout_.body.left(), top, layout_.body.width(), layout_.rowHeight);
        const bool current = row.key == grid_.grid->currentKey;
        if (current) painter.fillRect(line, currentRowColour());
        painter.setPen(faintLineColour());
        painter.drawLine(line.bottomLeft(), line.bottomRight());
        painter.setPen(textColourOf(grid_));
        paintCells(top, layout_.rowHeight, [&row](std::size_t column) {
            return column < row.columns.size() ? row.columns[column] : std::string();
        });
        if (!current) return;
        painter.fillRect(line.left(), line.top(), currentRowMark, line.height(), focusColour());
    }

    Canvas& canvas_;
    const app::ControlPicture& grid_;
    const GridLayout& layout_;
    const GridColumns& columns_;
    const QFontMetricsF& metrics_;
};

}  // namespace

std::optional<std::size_t> GridLayout::rowAt(QPoint point) const
{
    if (!body.contains(point)) return std::nullopt;
    const auto row = static_cast<std::size_t>((point.y() - body.top()) / rowHeight);
    if (row >= capacity) return std::nullopt;
    return row;
}

GridLayout layOutGrid(const app::ControlPicture& grid, const FormScale& scale)
{
    GridLayout layout;
    layout.place = scale.pixels(grid.place);
    const QRect inside = layout.place.adjusted(1, 1, -1, -1);
    const int wanted = scale.fontPixels(grid.fontPoints);
    layout.rowHeight = std::max({1, scale.designPixels(rowTwips / 15), wanted + wanted / 3});
    const int barWidth = ScrollBar::widthAt(scale);
    layout.header = inside;
    layout.header.setHeight(std::max(layout.rowHeight, scale.designPixels(headerTwips / 15)));
    layout.body = QRect(QPoint(inside.left(), layout.header.bottom() + 1), inside.bottomRight());
    layout.body.setWidth(std::max(1, inside.width() - barWidth));
    layout.capacity = static_cast<std::size_t>(std::max(1, layout.body.height() / layout.rowHeight));
    const QRect bar(layout.body.right() + 1, layout.body.top(), barWidth, layout.body.height());
    const app::GridRows& rows = *grid.grid->rows;
    layout.scrollBar = ScrollBar(bar, {rows.moreAbove, rows.moreBelow, rows.place});
    return layout;
}

GridColumns columnsOf(const app::ControlPicture& grid, const GridLayout& layout, const FormScale& scale, Fonts& fonts)
{
    const int wantedFontPixels = std::min(scale.fontPixels(grid.fontPoints), layout.rowHeight - 2);
    return layOutColumns(grid, scale, fonts, layout.body.width(), wantedFontPixels);
}

void paintGrid(Canvas& canvas, const app::ControlPicture& grid, const GridLayout& layout, const GridColumns& columns)
{
    GridPainter(canvas, grid, layout, columns).paint();
}

}  // namespace desktop
