#include "desktop/form_surface.h"

#include <algorithm>

#include "desktop/picture_changes.h"
#include "desktop/rose.h"
#include "desktop/simple_controls.h"

namespace desktop {

using screen::Kind;

FormSurface::FormSurface() : picture_(std::make_shared<app::Picture>())
{
    setSize(size_);
}

QRegion FormSurface::setPicture(std::shared_ptr<const app::Picture> picture)
{
    const std::shared_ptr<const app::Picture> before = std::exchange(picture_, std::move(picture));
    if (!sameForm(*before, *picture_)) {
        textOffsets_.clear();
        listTops_.clear();
        measuredGrids_.clear();
        setSize(size_);
        return QRect(QPoint(0, 0), size_);
    }
    showChosenItems(*before);
    return changedRegion(*before, *picture_, scale_);
}

void FormSurface::setSize(QSize size)
{
    size_ = size;
    scale_ = FormScale(picture_->width, picture_->height, size);
}

const app::ControlPicture* FormSurface::controlAt(QPoint point) const
{
    const auto& controls = picture_->controls;
    const auto found = std::find_if(controls.rbegin(), controls.rend(), [&](const app::ControlPicture& control) {
        return control.kind != Kind::line && scale_.pixels(control.place).contains(point);
    });
    return found == controls.rend() ? nullptr : &*found;
}

const app::ControlPicture* FormSurface::find(const screen::Control* control) const
{
    const auto& controls = picture_->controls;
    const auto found = std::find_if(controls.begin(), controls.end(),
                                    [&](const app::ControlPicture& candidate) { return candidate.control == control; });
    return found == controls.end() ? nullptr : &*found;
}

const app::ControlPicture* FormSurface::focused() const
{
    const auto& controls = picture_->controls;
    const auto found = std::find_if(controls.begin(), controls.end(),
                                    [](const app::ControlPicture& control) { return control.hasFocus; });
    return found == controls.end() ? nullptr : &*found;
}

TextBoxLayout FormSurface::textBox(const app::ControlPicture& box)
{
    TextBoxLayout layout = layOutTextBox(box, scale_, fonts_, textOffsets_[box.control]);
    textOffsets_[box.control] = layout.offset;
    return layout;
}

GridLayout FormSurface::grid(const app::ControlPicture& grid) const
{
    GridLayout layout = layOutGrid(grid, scale_);
    if (heldThumb_.control == grid.control) layout.scrollBar.holdThumb(heldThumb_.place);
    return layout;
}

GridColumns FormSurface::gridColumns(const app::ControlPicture& grid)
{
    auto& kept = measuredGrids_[grid.control];
    const bool sameColumns = kept && kept->titles == grid.grid->titles && kept->columnWidths == grid.grid->columnWidths;
    if (!grid.grid->rows->rows.empty() || !sameColumns) kept = grid.grid;
    app::ControlPicture measured = grid;
    measured.grid = kept;
    return columnsOf(measured, this->grid(grid), scale_, fonts_);
}

ListLayout FormSurface::list(const app::ControlPicture& list) const
{
    const auto top = listTops_.find(list.control);
    ListLayout layout = layOutList(list, scale_, top == listTops_.end() ? 0 : top->second);
    if (heldThumb_.control == list.control) layout.scrollBar.holdThumb(heldThumb_.place);
    return layout;
}

ScrollBar FormSurface::scrollBarOf(const app::ControlPicture& control) const
{
    if (control.kind == Kind::grid) return grid(control).scrollBar;
    if (control.kind == Kind::listBox) return list(control).scrollBar;
    return {};
}

bool FormSurface::scrollList(const app::ControlPicture& list, long items)
{
    ListLayout layout = this->list(list);
    const long wanted = std::clamp<long>(layout.top + items, 0, layout.items);
    const int top = layOutList(list, scale_, static_cast<int>(wanted)).top;
    listTops_[list.control] = top;
    return top != layout.top;
}

/// An item that was chosen by a key comes into view.
void FormSurface::showChosenItems(const app::Picture& before)
{
    for (const app::ControlPicture& list : picture_->controls) {
        if (list.kind != Kind::listBox) continue;
        const auto old = std::find_if(before.controls.begin(), before.controls.end(),
                                      [&](const app::ControlPicture& other) { return other.control == list.control; });
        if (old != before.controls.end() && old->listIndex == list.listIndex) continue;
        listTops_[list.control] = topThatShows(this->list(list), list.listIndex);
    }
}

void FormSurface::paint(QPainter& painter, const QRegion& region)
{
    Canvas canvas{painter, scale_, fonts_};
    painter.setClipRegion(region);
    painter.fillRect(region.boundingRect(), formColour());
    if (picture_->rose.visible) paintRose(canvas, *picture_);
    for (const app::ControlPicture& control : picture_->controls)
        if (region.intersects(placeOfControl(control, scale_))) paintControl(canvas, control);
}

void FormSurface::paintControl(Canvas& canvas, const app::ControlPicture& control)
{
    const bool pressed = control.control == pressed_;
    switch (control.kind) {
        case Kind::label:
            return paintLabel(canvas, control);
        case Kind::textBox:
            return paintTextBox(canvas, control, textBox(control), caretShown_);
        case Kind::commandButton:
            return paintCommandButton(canvas, control, pressed);
        case Kind::optionButton:
            return paintOptionButton(canvas, control, pressed);
        case Kind::checkBox:
            return paintCheckBox(canvas, control, pressed);
        case Kind::frame:
            return paintFrame(canvas, control);
        case Kind::listBox:
            return paintList(canvas, control, list(control));
        case Kind::line:
            return paintLine(canvas, control);
        case Kind::grid:
            return paintGrid(canvas, control, grid(control), gridColumns(control));
        case Kind::timer:
        case Kind::menuEntry:
        case Kind::data:
        case Kind::serial:
            return;
    }
}

}  // namespace desktop
