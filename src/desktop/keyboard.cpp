#include "desktop/keyboard.h"

#include <QApplication>
#include <QClipboard>
#include <QWindow>

namespace desktop {

namespace {

/// How long a release waits for a press at the same instant. Some systems tell the two one after the other, and other
/// programs may run in between.
constexpr int releaseMilliseconds = 10;

bool isPaste(const QKeyEvent& event)
{
    return event.key() == Qt::Key_V && event.modifiers() == Qt::ControlModifier;
}

}  // namespace

Keyboard::Keyboard(QWidget& form, PolledKeys& polledKeys, Poster post)
    : form_(form), polledKeys_(polledKeys), post_(std::move(post))
{
    turn_.setSingleShot(true);
    turn_.setInterval(releaseMilliseconds);
    connect(&turn_, &QTimer::timeout, this, [this] { this->post(translator_.turned()); });
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state != Qt::ApplicationActive) letGo();
    });
    qApp->installEventFilter(this);
}

bool Keyboard::eventFilter(QObject* watched, QEvent* event)
{
    const bool onForm = watched == &form_;
    switch (event->type()) {
        case QEvent::ShortcutOverride: {
            // Accepted, a key comes to the form as a key; otherwise the menu bar may take it as its shortcut.
            if (!onForm || !isForForm(*static_cast<QKeyEvent*>(event))) return false;
            event->accept();
            return true;
        }
        case QEvent::KeyPress:
            if (isOtherWindow(*watched)) notePolled(*static_cast<QKeyEvent*>(event));
            // A key that is held answers no message box: neither the one that it raised, nor the next one.
            if (QApplication::activeModalWidget() != nullptr)
                return translator_.wentDown(*static_cast<QKeyEvent*>(event));
            if (!onForm || !isForForm(*static_cast<QKeyEvent*>(event))) {
                translator_.wentDown(*static_cast<QKeyEvent*>(event));
                return false;
            }
            wentDown(*static_cast<QKeyEvent*>(event));
            return true;
        case QEvent::KeyRelease:
            // Also over a message box: a key that went down in the form comes up in the form.
            cameUp(*static_cast<QKeyEvent*>(event));
            return onForm;
        default:
            return false;
    }
}

bool Keyboard::isForForm(const QKeyEvent& event) const
{
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (event.key() == Qt::Key_F10 || event.key() == Qt::Key_Alt || event.key() == Qt::Key_Menu) return false;
    if (modifiers != Qt::AltModifier) return true;
    return event.key() > 0xFFFF || !menuLetters_.contains(QChar(event.key()));
}

/// Each key passes through a window first, and through that once.
bool Keyboard::isOtherWindow(const QObject& watched) const
{
    return watched.isWindowType() && &watched != form_.window()->windowHandle();
}

/// What stops a message stops it in every window of the program, be it that of the help.
void Keyboard::notePolled(const QKeyEvent& event)
{
    const auto polled = polledKeyOf(event);
    if (polled && !event.isAutoRepeat()) polledKeys_.wentDown(*polled);
}

void Keyboard::wentDown(const QKeyEvent& event)
{
    if (isPaste(event)) {
        if (!translator_.wentDown(event)) post_(app::TextPasted{QGuiApplication::clipboard()->text().toStdString()});
        return;
    }
    notePolled(event);
    post(translator_.keyDown(event));
}

void Keyboard::cameUp(const QKeyEvent& event)
{
    const auto polled = polledKeyOf(event);
    if (polled && !event.isAutoRepeat()) polledKeys_.wentUp(*polled);
    post(translator_.keyUp(event));
    if (translator_.holdsRelease()) turn_.start();
}

void Keyboard::letGo()
{
    polledKeys_.allUp();
    post(translator_.allUp());
}

void Keyboard::post(const KeyTranslator::Entries& entries) const
{
    for (const app::QueueEntry& entry : entries)
        post_(entry);
}

}  // namespace desktop
