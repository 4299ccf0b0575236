#include "desktop/accessible_text_box.h"

#include <algorithm>
#include <cmath>

#include "desktop/characters.h"

namespace desktop {

namespace {

QString textOf(const app::ControlPicture* box)
{
    return box == nullptr ? QString() : toolkitText(box->text);
}

int offsetOf(const QString& text, std::size_t character)
{
    qsizetype offset = 0;
    for (; character > 0 && offset < text.size(); --character)
        offset += text.at(offset).isHighSurrogate() && offset + 1 < text.size() ? 2 : 1;
    return static_cast<int>(offset);
}

/// Characters in front of an offset.
std::size_t characterAt(const QString& text, int offset)
{
    return static_cast<std::size_t>(text.left(std::max(0, offset)).toUcs4().size());
}

}  // namespace

CaretOffsets caretOffsets(const app::ControlPicture& box)
{
    const QString text = toolkitText(box.text);
    return {offsetOf(text, box.caret), offsetOf(text, box.selStart), offsetOf(text, box.selStart + box.selLength)};
}

QString AccessibleTextBox::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? textOf(picture()) : AccessibleControl::text(kind);
}

QAccessible::State AccessibleTextBox::state() const
{
    QAccessible::State state = AccessibleControl::state();
    state.editable = !state.disabled && !state.invisible;
    state.selectableText = true;
    return state;
}

void* AccessibleTextBox::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
    return AccessibleControl::interface_cast(type);
}

void AccessibleTextBox::selection(int index, int* start, int* end) const
{
    const app::ControlPicture* box = picture();
    const CaretOffsets offsets = box == nullptr || index != 0 ? CaretOffsets{} : caretOffsets(*box);
    *start = offsets.selectionStart;
    *end = offsets.selectionEnd;
}

int AccessibleTextBox::selectionCount() const
{
    const app::ControlPicture* box = picture();
    return box != nullptr && box->selLength > 0 ? 1 : 0;
}

void AccessibleTextBox::addSelection(int start, int end)
{
    setSelection(0, start, end);
}

void AccessibleTextBox::removeSelection(int index)
{
    if (index == 0 && selectionCount() > 0) setCursorPosition(cursorPosition());
}

void AccessibleTextBox::setSelection(int index, int start, int end)
{
    if (index != 0) return;
    placeCaret(start, false);
    placeCaret(end, true);
}

int AccessibleTextBox::cursorPosition() const
{
    const app::ControlPicture* box = picture();
    return box == nullptr ? 0 : caretOffsets(*box).caret;
}

void AccessibleTextBox::setCursorPosition(int position)
{
    placeCaret(position, false);
}

void AccessibleTextBox::placeCaret(int offset, bool extend) const
{
    const app::ControlPicture* box = picture();
    if (box == nullptr || !box->enabled) return;
    post(app::CaretPlaced{box->control, characterAt(textOf(box), offset), extend});
}

QString AccessibleTextBox::text(int start, int end) const
{
    return textOf(picture()).mid(start, end - start);
}

int AccessibleTextBox::characterCount() const
{
    return static_cast<int>(textOf(picture()).size());
}

QRect AccessibleTextBox::characterRect(int offset) const
{
    const app::ControlPicture* box = picture();
    if (box == nullptr || offset < 0 || offset > characterCount()) return {};
    const TextBoxLayout layout = surface().textBox(*box);
    const std::size_t character = characterAt(layout.text, offset);
    const double left = layout.caretX(character);
    const double right = std::max(left + 1, layout.caretX(character + 1));
    return onScreen(QRectF(left, layout.inner.top(), right - left, layout.inner.height()).toAlignedRect());
}

int AccessibleTextBox::offsetAtPoint(const QPoint& point) const
{
    const app::ControlPicture* box = picture();
    const QPoint at = form().view().mapFromGlobal(point);
    if (box == nullptr || !surface().scale().pixels(box->place).contains(at)) return -1;
    const TextBoxLayout layout = surface().textBox(*box);
    return offsetOf(layout.text, layout.caretAt(at.x()));
}

QString AccessibleTextBox::attributes(int /*offset*/, int* start, int* end) const
{
    *start = 0;
    *end = characterCount();
    return {};
}

}  // namespace desktop
