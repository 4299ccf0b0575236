// From the pointer over the form to the entries of the program.
#pragma once

#include <QObject>
#include <QPoint>
#include <QRegion>
#include <QTimer>
#include <functional>

#include "app/queue.h"
#include "desktop/form_surface.h"

namespace desktop {

class Pointer final : public QObject {
    Q_OBJECT
 public:
    using Poster = std::function<void(const app::QueueEntry&)>;
    /// Asks for a part of the window to be painted anew.
    using Repainter = std::function<void(const QRect&)>;

    /// `surface` outlives the pointer.
    Pointer(FormSurface& surface, Poster post, Repainter repaint);

    /// The main button went down; `extend` with Shift.
    void press(QPoint at, bool extend);
    /// It went down a second time, soon after the first.
    void pressAgain(QPoint at);
    void move(QPoint at);
    void release(QPoint at);
    /// The wheel turned over `at` by eighths of degrees, upwards is positive.
    void turnWheel(QPoint at, int eighths);

 private:
    void pressTextBox(const app::ControlPicture& box, QPoint at, bool extend);
    void dragSelection(const app::ControlPicture& box, QPoint at);
    bool pressScrollBar(const app::ControlPicture& control, QPoint at);
    void scroll(const app::ControlPicture& control, long rows);
    void dragThumb(const app::ControlPicture& control, QPoint at);
    void letThumbGo();
    void scrollOn();
    void pickRow(const app::ControlPicture& grid, QPoint at, bool doubleClick);
    void setPressedLook(const app::ControlPicture* control);

    FormSurface& surface_;
    Poster post_;
    Repainter repaint_;
    screen::Control* held_ = nullptr;  ///< what the button went down on
    QPoint heldAt_;
    bool dragged_ = false;
    std::size_t caret_ = 0;  ///< where the drag has put it last
    ScrollPart scrolling_ = ScrollPart::none;
    int thumbGrip_ = 0;  ///< pixels from the top of the thumb to where the pointer holds it
    double thumbPlace_ = 0;
    QTimer scrollTimer_;
    int wheel_ = 0;  ///< eighths of degrees that have not made a row yet
};

}  // namespace desktop
