#include "desktop/form_view.h"

#include <QGuiApplication>
#include <QHelpEvent>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QStyleHints>
#include <QToolTip>

#include "desktop/accessible_form.h"
#include "desktop/accessible_news.h"
#include "desktop/characters.h"

namespace desktop {

using screen::Kind;

FormView::FormView(Poster post, QWidget* parent)
    : QWidget(parent), post_(std::move(post)), pointer_(surface_, post_, [this](const QRect& part) { update(part); })
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_InputMethodEnabled, false);
    setMouseTracking(true);
    setMinimumSize(320, 200);
    teachAccessibility();
}

void FormView::setPicture(const std::shared_ptr<const app::Picture>& picture)
{
    const app::ControlPicture* before = surface_.focused();
    const screen::Control* focusBefore = before == nullptr ? nullptr : before->control;
    const std::shared_ptr<const app::Picture> toldPicture = isReadOut() ? surface_.sharedPicture() : nullptr;
    const QRegion changed = surface_.setPicture(picture);
    if (!changed.isEmpty()) update(changed);
    announceCapacities();

    const app::ControlPicture* focused = surface_.focused();
    const bool moved = (focused == nullptr ? nullptr : focused->control) != focusBefore;
    if (moved) followFocus();
    const bool caretTouched = focused != nullptr && changed.intersects(surface_.scale().pixels(focused->place));
    if (moved || caretTouched) restartCaret();
    if (toldPicture) tellChanges(*this, *toldPicture);
}

QRect FormView::placeOf(const screen::Control* control) const
{
    const app::ControlPicture* picture = surface_.find(control);
    return picture == nullptr ? QRect() : surface_.scale().pixels(picture->place);
}

/// Tells the program how many rows the grids have room for, whenever that changes.
void FormView::announceCapacities()
{
    for (const app::ControlPicture& control : picture().controls) {
        if (control.kind != Kind::grid) continue;
        const std::size_t capacity = surface_.grid(control).capacity;
        std::size_t& known = capacities_[control.control];
        if (known == capacity) continue;
        known = capacity;
        post_(app::GridScrolled{control.control, 0, capacity});
    }
}

void FormView::followFocus()
{
    const app::ControlPicture* focused = surface_.focused();
    const bool composes = focused != nullptr && focused->kind == Kind::textBox && focused->inputMethod;
    setAttribute(Qt::WA_InputMethodEnabled, composes);
    QGuiApplication::inputMethod()->update(Qt::ImEnabled | Qt::ImCursorRectangle);
}

/// A caret that has just moved is seen at once, and blinks from then on.
void FormView::restartCaret()
{
    surface_.setCaretShown(true);
    const int period = QGuiApplication::styleHints()->cursorFlashTime();
    const app::ControlPicture* focused = surface_.focused();
    if (period >= 2 && focused != nullptr && focused->kind == Kind::textBox)
        caretTimer_.start(period / 2, this);
    else
        caretTimer_.stop();
}

void FormView::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != caretTimer_.timerId()) return QWidget::timerEvent(event);
    const app::ControlPicture* focused = surface_.focused();
    if (focused == nullptr) return caretTimer_.stop();
    surface_.setCaretShown(!surface_.caretShown() || !isActiveWindow());
    update(surface_.scale().pixels(focused->place));
}

void FormView::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    surface_.paint(painter, event->region());
}

void FormView::resizeEvent(QResizeEvent* event)
{
    surface_.setSize(event->size());
    update();
    announceCapacities();
}

bool FormView::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    showToolTip(help->pos(), help->globalPos());
    return true;
}

void FormView::showToolTip(QPoint at, QPoint onScreen)
{
    const app::ControlPicture* control = surface_.controlAt(at);
    if (control == nullptr || control->toolTip.empty()) return QToolTip::hideText();
    QToolTip::showText(onScreen, toolkitText(control->toolTip), this, surface_.scale().pixels(control->place));
}

void FormView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) return;
    pointer_.press(event->position().toPoint(), event->modifiers().testFlag(Qt::ShiftModifier));
}

void FormView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) pointer_.pressAgain(event->position().toPoint());
}

void FormView::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint at = event->position().toPoint();
    const app::ControlPicture* control = surface_.controlAt(at);
    const bool overText = control != nullptr && control->kind == Kind::textBox && control->enabled;
    setCursor(overText ? Qt::IBeamCursor : Qt::ArrowCursor);
    if (event->buttons().testFlag(Qt::LeftButton)) pointer_.move(at);
}

void FormView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) pointer_.release(event->position().toPoint());
}

void FormView::wheelEvent(QWheelEvent* event)
{
    pointer_.turnWheel(event->position().toPoint(), event->angleDelta().y());
    event->accept();
}

/// The toolkit tells that the form has the focus; which of its controls has it comes behind that.
void FormView::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    if (isReadOut())
        QMetaObject::invokeMethod(
            this, [this] { tellFocus(*this); }, Qt::QueuedConnection);
}

void FormView::inputMethodEvent(QInputMethodEvent* event)
{
    if (!event->commitString().isEmpty()) post_(app::TextPasted{event->commitString().toStdString()});
    event->accept();
}

QVariant FormView::inputMethodQuery(Qt::InputMethodQuery query) const
{
    const app::ControlPicture* focused = surface_.focused();
    if (query == Qt::ImEnabled) return testAttribute(Qt::WA_InputMethodEnabled);
    if (query != Qt::ImCursorRectangle || focused == nullptr || focused->kind != Kind::textBox)
        return QWidget::inputMethodQuery(query);
    const TextBoxLayout layout = surface_.textBox(*focused);
    return QRectF(layout.caretX(focused->caret), layout.inner.top(), 1, layout.inner.height());
}

}  // namespace desktop
