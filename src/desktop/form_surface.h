// The picture laid out in the pixels of a window: what stands where, and painting it. No widget, no events.
#pragma once

#include <QPainter>
#include <QRegion>
#include <map>
#include <memory>

#include "desktop/fonts.h"
#include "desktop/form_scale.h"
#include "desktop/grid_box.h"
#include "desktop/list_box.h"
#include "desktop/text_box.h"

namespace desktop {

class FormSurface {
 public:
    FormSurface();

    /// Takes the next picture and returns the part of the window that it changes.
    QRegion setPicture(std::shared_ptr<const app::Picture> picture);
    const app::Picture& picture() const { return *picture_; }
    /// The same, to be kept while others follow.
    std::shared_ptr<const app::Picture> sharedPicture() const { return picture_; }

    void setSize(QSize size);
    QSize size() const { return size_; }
    const FormScale& scale() const { return scale_; }

    /// The control under a point of the window, the one drawn last where several are; nullptr where there is none.
    const app::ControlPicture* controlAt(QPoint point) const;
    /// The picture of a control, nullptr when it is not seen (any more).
    const app::ControlPicture* find(const screen::Control* control) const;
    /// The control with the focus, nullptr when none that is drawn has it.
    const app::ControlPicture* focused() const;

    TextBoxLayout textBox(const app::ControlPicture& box);
    GridLayout grid(const app::ControlPicture& grid) const;
    /// The columns of a grid. One that narrows to no row keeps those of the rows before: nothing jumps between two
    /// QSOs.
    GridColumns gridColumns(const app::ControlPicture& grid);
    ListLayout list(const app::ControlPicture& list) const;

    /// Scrolls a list by some items. False when it stands at that end already.
    bool scrollList(const app::ControlPicture& list, long items);

    /// The scroll bar of a grid or list, an empty one for other controls.
    ScrollBar scrollBarOf(const app::ControlPicture& control) const;

    /// Draws the thumb of a grid or list where the pointer holds it, whatever rows are in view there, until it lets go
    /// with nullptr.
    void holdThumb(const screen::Control* control, double place) { heldThumb_ = {control, place}; }

    /// The control that the pointer holds down, nullptr for none.
    void setPressed(const screen::Control* control) { pressed_ = control; }
    const screen::Control* pressed() const { return pressed_; }

    /// Whether the caret is in the bright half of its blinking.
    void setCaretShown(bool shown) { caretShown_ = shown; }
    bool caretShown() const { return caretShown_; }

    void paint(QPainter& painter, const QRegion& region);

 private:
    void paintControl(Canvas& canvas, const app::ControlPicture& control);
    void showChosenItems(const app::Picture& before);

    std::shared_ptr<const app::Picture> picture_;
    QSize size_{800, 600};
    FormScale scale_;
    Fonts fonts_;
    const screen::Control* pressed_ = nullptr;
    bool caretShown_ = true;
    std::map<const screen::Control*, double> textOffsets_;
    std::map<const screen::Control*, int> listTops_;
    std::map<const screen::Control*, std::shared_ptr<const app::GridPicture>> measuredGrids_;

    struct HeldThumb {
        const screen::Control* control = nullptr;
        double place = 0;
    };
    HeldThumb heldThumb_;
};

}  // namespace desktop
