// The window of the program without the program: what it leaves to the form, and its menu.
#pragma once

#include "desktop/main_window.h"
#include "layout_inspector.h"

namespace layout {

class Window {
 public:
    /// A window over the whole of a screen of `screen` pixels, below the bar of its window manager.
    explicit Window(QSize screen);

    /// Shows a page with its menu. Pages of the same menu are the same to the window.
    void show(const app::Picture& page);

    /// Pixels that the form has for the page.
    QSize room() const { return window_.form().size(); }

    /// What is wrong with the menu of the page, and with the line at the foot.
    const Findings& findings() const { return findings_; }

 private:
    void inspectBar();
    void inspectMenus();
    void inspectNotice();
    void inspectTexts(QWidget& widget, const std::string& name);

    mutable desktop::MainWindow window_{[](const app::QueueEntry&) {}};
    std::vector<app::MenuPicture> menu_;
    Findings findings_;
};

}  // namespace layout
