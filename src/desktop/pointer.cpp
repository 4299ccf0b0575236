#include "desktop/pointer.h"

#include <cmath>

namespace desktop {

namespace {

using screen::Kind;

constexpr int firstScrollMilliseconds = 350;
constexpr int nextScrollMilliseconds = 60;
constexpr int eighthsPerRow = 40;  // a notch of the wheel, 120, moves three rows

bool hasPressedLook(Kind kind)
{
    return kind == Kind::commandButton || kind == Kind::optionButton || kind == Kind::checkBox;
}

}  // namespace

Pointer::Pointer(FormSurface& surface, Poster post, Repainter repaint)
    : surface_(surface), post_(std::move(post)), repaint_(std::move(repaint))
{
    connect(&scrollTimer_, &QTimer::timeout, this, &Pointer::scrollOn);
}

void Pointer::press(QPoint at, bool extend)
{
    held_ = nullptr;
    const app::ControlPicture* control = surface_.controlAt(at);
    if (control == nullptr || !control->enabled) return;
    held_ = control->control;
    heldAt_ = at;
    dragged_ = false;
    if (control->kind == Kind::textBox) pressTextBox(*control, at, extend);
    if (hasPressedLook(control->kind)) setPressedLook(control);
    pressScrollBar(*control, at);
}

void Pointer::pressAgain(QPoint at)
{
    const app::ControlPicture* control = surface_.controlAt(at);
    if (control == nullptr || !control->enabled) return;
    if (hasPressedLook(control->kind)) return press(at, false);
    held_ = nullptr;
    if (pressScrollBar(*control, at)) {
        held_ = control->control;
        return;
    }
    if (control->kind == Kind::grid) return pickRow(*control, at, true);
    post_(app::ControlDoubleClicked{control->control});
}

void Pointer::pressTextBox(const app::ControlPicture& box, QPoint at, bool extend)
{
    caret_ = surface_.textBox(box).caretAt(at.x());
    dragged_ = extend;
    post_(app::CaretPlaced{box.control, caret_, extend});
}

void Pointer::dragSelection(const app::ControlPicture& box, QPoint at)
{
    const std::size_t caret = surface_.textBox(box).caretAt(at.x());
    if (caret == caret_) return;
    caret_ = caret;
    dragged_ = true;
    post_(app::CaretPlaced{box.control, caret, true});
}

void Pointer::move(QPoint at)
{
    const app::ControlPicture* control = surface_.find(held_);
    if (control == nullptr) return;
    if (control->kind == Kind::textBox) return dragSelection(*control, at);
    if (scrolling_ == ScrollPart::thumb) return dragThumb(*control, at);
    if (!hasPressedLook(control->kind)) return;
    setPressedLook(surface_.scale().pixels(control->place).contains(at) ? control : nullptr);
}

void Pointer::release(QPoint at)
{
    scrollTimer_.stop();
    setPressedLook(nullptr);
    if (scrolling_ == ScrollPart::thumb) letThumbGo();
    const bool scrolled = std::exchange(scrolling_, ScrollPart::none) != ScrollPart::none;
    const app::ControlPicture* control = surface_.find(std::exchange(held_, nullptr));
    if (control == nullptr || scrolled || !surface_.scale().pixels(control->place).contains(at)) return;
    switch (control->kind) {
        case Kind::textBox:
            if (!dragged_) post_(app::ControlClicked{control->control});
            return;
        case Kind::grid:
            return pickRow(*control, at, false);
        case Kind::listBox: {
            const int item = surface_.list(*control).itemAt(at);
            if (item >= 0) post_(app::ListItemPicked{control->control, item});
            return;
        }
        default:
            post_(app::ControlClicked{control->control});
    }
}

void Pointer::pickRow(const app::ControlPicture& grid, QPoint at, bool doubleClick)
{
    const GridLayout layout = surface_.grid(grid);
    const auto row = layout.rowAt(at);
    const auto& rows = grid.grid->rows->rows;
    if (!row || *row >= rows.size()) return;
    // Pressed on one row and released on another: no row is meant.
    if (!doubleClick && layout.rowAt(heldAt_) != row) return;
    post_(app::RowPicked{grid.control, rows[*row].key, doubleClick});
}

bool Pointer::pressScrollBar(const app::ControlPicture& control, QPoint at)
{
    const ScrollBar bar = surface_.scrollBarOf(control);
    if (!bar.place().contains(at)) return false;
    heldAt_ = at;
    held_ = control.control;
    scrolling_ = bar.partAt(at);
    if (scrolling_ == ScrollPart::none) {
        held_ = nullptr;
        return true;
    }
    if (scrolling_ == ScrollPart::thumb) {
        thumbGrip_ = at.y() - bar.thumb().top();
        thumbPlace_ = bar.placeOfThumb(bar.thumb().top());
        return true;
    }
    scrollOn();
    scrollTimer_.start(firstScrollMilliseconds);
    return true;
}

/// Once more while the button is held on an arrow or beside the thumb.
void Pointer::scrollOn()
{
    scrollTimer_.setInterval(nextScrollMilliseconds);
    const app::ControlPicture* control = surface_.find(held_);
    if (control == nullptr) return scrollTimer_.stop();
    const bool grid = control->kind == Kind::grid;
    if (surface_.scrollBarOf(*control).partAt(heldAt_) != scrolling_) return scrollTimer_.stop();
    const std::size_t capacity =
        grid ? surface_.grid(*control).capacity : static_cast<std::size_t>(surface_.list(*control).capacity);
    scroll(*control, ScrollBar::rowsOf(scrolling_, capacity));
}

void Pointer::scroll(const app::ControlPicture& control, long rows)
{
    if (control.kind == Kind::grid) {
        post_(app::GridScrolled{control.control, rows, surface_.grid(control).capacity});
    } else if (surface_.scrollList(control, rows)) {
        repaint_(surface_.scale().pixels(control.place));
    }
}

/// The rows follow the thumb.
void Pointer::dragThumb(const app::ControlPicture& control, QPoint at)
{
    const double place = surface_.scrollBarOf(control).placeOfThumb(at.y() - thumbGrip_);
    if (place == thumbPlace_) return;
    thumbPlace_ = place;
    surface_.holdThumb(control.control, place);
    if (control.kind == Kind::grid) {
        post_(app::GridDragged{control.control, place, surface_.grid(control).capacity});
    } else {
        const ListLayout list = surface_.list(control);
        surface_.scrollList(control, std::lround(place * list.lastTop()) - list.top);
    }
    repaint_(surface_.scale().pixels(control.place));
}

/// It goes to where the rows in view have their place.
void Pointer::letThumbGo()
{
    surface_.holdThumb(nullptr, 0);
    const app::ControlPicture* control = surface_.find(held_);
    if (control != nullptr) repaint_(surface_.scale().pixels(control->place));
}

void Pointer::turnWheel(QPoint at, int eighths)
{
    const app::ControlPicture* control = surface_.controlAt(at);
    if (control == nullptr || (control->kind != Kind::grid && control->kind != Kind::listBox)) return;
    wheel_ += eighths;
    const int rows = wheel_ / eighthsPerRow;
    wheel_ -= rows * eighthsPerRow;
    if (rows != 0) scroll(*control, -rows);
}

void Pointer::setPressedLook(const app::ControlPicture* control)
{
    const screen::Control* pressed = control == nullptr ? nullptr : control->control;
    if (pressed == surface_.pressed()) return;
    const app::ControlPicture* before = surface_.find(surface_.pressed());
    surface_.setPressed(pressed);
    if (before != nullptr) repaint_(surface_.scale().pixels(before->place));
    if (control != nullptr) repaint_(surface_.scale().pixels(control->place));
}

}  // namespace desktop
