#include "layout_window.h"

#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>

#include "desktop/menu.h"

namespace layout {

namespace {

constexpr int titleBar = 30;  ///< pixels that a window manager takes

Drawing drawingOf(QWidget& widget)
{
    Recorder recorder(widget.size());
    widget.render(&recorder);
    return recorder.drawing();
}

/// A style may draw the text of an entry that is off twice, first its bright shadow.
bool isShadow(const std::vector<DrawnText>& texts, std::size_t number)
{
    const DrawnText& text = texts[number];
    return std::any_of(
        texts.begin() + static_cast<std::ptrdiff_t>(number) + 1, texts.end(),
        [&](const DrawnText& later) { return later.text == text.text && later.place.intersects(text.place); });
}

}  // namespace

Window::Window(QSize screen)
{
    window_.resize(screen.width(), screen.height() - titleBar);
    window_.show();
}

void Window::show(const app::Picture& page)
{
    if (desktop::sameMenu(page.menu, menu_)) return;
    menu_ = page.menu;
    window_.setPicture(std::make_shared<app::Picture>(page));
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    findings_.clear();
    inspectBar();
    inspectMenus();
    inspectNotice();
}

void Window::inspectBar()
{
    QMenuBar& bar = *window_.menuBar();
    for (QAction* entry : bar.actions()) {
        const QRect place = bar.actionGeometry(entry);
        if (place.isEmpty() || !bar.rect().contains(place))
            findings_.push_back({entry->text().toStdString(), "has no room in the menu bar"});
    }
    inspectTexts(bar, "the menu bar");
}

void Window::inspectMenus()
{
    for (QMenu* menu : window_.menuBar()->findChildren<QMenu*>()) {
        if (menu->title().isEmpty()) continue;  // the bar's own, for entries without room
        menu->resize(menu->sizeHint());
        const QSize size = menu->size();
        if (size.width() > window_.width() || size.height() > window_.form().height())
            findings_.push_back({menu->title().toStdString(), "opens a menu larger than the window"});
        inspectTexts(*menu, "the menu " + menu->title().toStdString());
    }
}

void Window::inspectNotice()
{
    const QString before = window_.noticeLine().notice();
    window_.noticeLine().setNotice(QStringLiteral("Notice"));
    inspectTexts(window_.noticeLine(), "the notice line");
    window_.noticeLine().setNotice(before);
}

/// What a widget of the toolkit draws, in its own font.
void Window::inspectTexts(QWidget& widget, const std::string& name)
{
    const QColor ground = widget.palette().color(QPalette::Active, QPalette::Window);
    const std::vector<DrawnText> texts = drawingOf(widget).texts;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (isShadow(texts, i)) continue;
        DrawnText text = texts[i];
        if (!text.ground.isValid()) text.ground = ground;
        const Findings faults = faultsOfText(name, text, text.fontPixels);
        findings_.insert(findings_.end(), faults.begin(), faults.end());
    }
}

}  // namespace layout
