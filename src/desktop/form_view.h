// The widget that paints a picture, whatever form it is of, and brings the pointer to the program.
#pragma once

#include <QBasicTimer>
#include <QWidget>
#include <map>
#include <memory>

#include "app/picture.h"
#include "app/queue.h"
#include "desktop/form_surface.h"
#include "desktop/pointer.h"

namespace desktop {

class FormView final : public QWidget {
    Q_OBJECT
 public:
    using Poster = std::function<void(const app::QueueEntry&)>;

    /// `post` brings entries to the program.
    explicit FormView(Poster post, QWidget* parent = nullptr);

    /// Shows the next picture; only what differs from the one before is painted.
    void setPicture(const std::shared_ptr<const app::Picture>& picture);
    const app::Picture& picture() const { return surface_.picture(); }

    /// Where a control stands in the window, in pixels; empty when it is not seen.
    QRect placeOf(const screen::Control* control) const;

    /// For those who tell of the picture in other ways than by painting it.
    FormSurface& surface() const { return surface_; }
    /// Brings an entry to the program, as the pointer does.
    void post(const app::QueueEntry& entry) const { post_(entry); }

    QSize sizeHint() const override { return {800, 560}; }
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

 protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;

 private:
    void announceCapacities();
    void followFocus();
    void restartCaret();
    void showToolTip(QPoint at, QPoint onScreen);

    Poster post_;
    mutable FormSurface surface_;  // laying out a text box remembers how far it is scrolled
    Pointer pointer_;
    std::map<const screen::Control*, std::size_t> capacities_;  ///< as the program knows them
    QBasicTimer caretTimer_;
};

}  // namespace desktop
