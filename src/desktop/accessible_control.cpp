#include "desktop/accessible_control.h"

#include <algorithm>

#include "desktop/accessible_names.h"
#include "desktop/characters.h"
#include "screen/spoken_names.h"

namespace desktop {

using screen::Kind;

namespace {

bool isPressed(Kind kind)
{
    return kind == Kind::commandButton || kind == Kind::optionButton || kind == Kind::checkBox;
}

bool takesFocus(Kind kind)
{
    return isPressed(kind) || kind == Kind::textBox || kind == Kind::listBox;
}

QString pressNameOf(Kind kind)
{
    return kind == Kind::checkBox ? QAccessibleActionInterface::toggleAction()
                                  : QAccessibleActionInterface::pressAction();
}

}  // namespace

void* AccessiblePart::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ActionInterface) return static_cast<QAccessibleActionInterface*>(this);
    return nullptr;
}

const app::ControlPicture* AccessiblePart::picture() const
{
    return findControl(form_.picture(), &control_);
}

QRect AccessiblePart::onScreen(const QRect& pixels) const
{
    return {form_.view().mapToGlobal(pixels.topLeft()), pixels.size()};
}

screen::Control* AccessiblePart::addressee() const
{
    const app::ControlPicture* seen = picture();
    return seen == nullptr ? nullptr : seen->control;
}

QAccessibleInterface* AccessibleControl::parent() const
{
    const app::ControlPicture* seen = picture();
    QAccessibleInterface* frame = seen == nullptr ? nullptr : form().of(seen->frame);
    return frame == nullptr ? accessibleForm(form().view()) : frame;
}

QAccessibleInterface* AccessibleControl::child(int index) const
{
    const auto held = form().heldBy(control());
    if (index < 0 || index >= static_cast<int>(held.size())) return nullptr;
    return form().of(held[static_cast<std::size_t>(index)]);
}

int AccessibleControl::childCount() const
{
    return static_cast<int>(form().heldBy(control()).size());
}

int AccessibleControl::indexOfChild(const QAccessibleInterface* child) const
{
    const auto held = form().heldBy(control());
    const auto at =
        std::ranges::find_if(held, [&](const screen::Control* candidate) { return form().of(candidate) == child; });
    return at == held.end() ? -1 : static_cast<int>(at - held.begin());
}

QAccessibleInterface* AccessibleControl::childAt(int x, int y) const
{
    return form().under(control(), {x, y});
}

QString AccessibleControl::text(QAccessible::Text kind) const
{
    const app::ControlPicture* seen = picture();
    if (seen == nullptr) return {};
    switch (kind) {
        case QAccessible::Name:
            return accessibleName(*seen, form().picture());
        case QAccessible::Description:
            return accessibleDescription(*seen, form().picture());
        case QAccessible::Accelerator:
            return accessKeyText(*seen);
        default:
            return {};
    }
}

QRect AccessibleControl::rect() const
{
    const app::ControlPicture* seen = picture();
    return seen == nullptr ? QRect() : onScreen(surface().scale().pixels(seen->place));
}

QAccessible::Role AccessibleControl::role() const
{
    const app::ControlPicture* seen = picture();
    if (seen == nullptr) return QAccessible::NoRole;
    if (screen::isAnnounced(control())) return QAccessible::Notification;
    switch (seen->kind) {
        case Kind::label:
            return QAccessible::StaticText;
        case Kind::textBox:
            return QAccessible::EditableText;
        case Kind::commandButton:
            return QAccessible::PushButton;
        case Kind::optionButton:
            return QAccessible::RadioButton;
        case Kind::checkBox:
            return QAccessible::CheckBox;
        case Kind::frame:
            return QAccessible::Grouping;
        case Kind::listBox:
            return QAccessible::List;
        case Kind::grid:
            return QAccessible::Table;
        default:
            return QAccessible::NoRole;
    }
}

QAccessible::State AccessibleControl::state() const
{
    QAccessible::State state;
    const app::ControlPicture* seen = picture();
    if (seen == nullptr) {
        state.invisible = true;
        return state;
    }
    const bool checkable = seen->kind == Kind::optionButton || seen->kind == Kind::checkBox;
    state.disabled = !seen->enabled;
    state.focusable = takesFocus(seen->kind) && seen->enabled;
    state.focused = seen->hasFocus && formHasFocus();
    state.checkable = checkable;
    state.checked = checkable && seen->checked;
    state.readOnly = seen->kind == Kind::label;
    return state;
}

QStringList AccessibleControl::actionNames() const
{
    const app::ControlPicture* seen = picture();
    QStringList names;
    if (seen == nullptr || !seen->enabled) return names;
    if (isPressed(seen->kind)) names += pressNameOf(seen->kind);
    if (takesFocus(seen->kind)) names += setFocusAction();
    return names;
}

void AccessibleControl::doAction(const QString& name)
{
    if (!actionNames().contains(name)) return;
    if (name == setFocusAction())
        post(app::FocusAsked{addressee()});
    else
        post(app::ControlClicked{addressee()});
}

QStringList AccessibleControl::keyBindingsForAction(const QString& name) const
{
    const app::ControlPicture* seen = picture();
    if (seen == nullptr || seen->accessKey == 0) return {};
    const bool picks = name == (isPressed(seen->kind) ? pressNameOf(seen->kind) : setFocusAction());
    return picks ? QStringList{accessKeyText(*seen)} : QStringList{};
}

}  // namespace desktop
