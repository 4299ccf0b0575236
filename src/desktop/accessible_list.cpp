#include "desktop/accessible_list.h"

#include "desktop/characters.h"

namespace desktop {

QAccessibleInterface* AccessibleList::child(int index) const
{
    return index < childCount() ? form().ofPart(control(), index) : nullptr;
}

int AccessibleList::childCount() const
{
    const app::ControlPicture* list = picture();
    return list == nullptr ? 0 : static_cast<int>(list->items.size());
}

int AccessibleList::indexOfChild(const QAccessibleInterface* child) const
{
    const auto* item = dynamic_cast<const AccessibleItem*>(child);
    if (item == nullptr || form().ofPart(control(), item->item()) != child) return -1;
    return item->item();
}

QAccessibleInterface* AccessibleList::childAt(int x, int y) const
{
    const app::ControlPicture* list = picture();
    if (list == nullptr) return nullptr;
    return form().ofPart(control(), surface().list(*list).itemAt(form().view().mapFromGlobal(QPoint(x, y))));
}

bool AccessibleItem::isValid() const
{
    const app::ControlPicture* list = picture();
    return list != nullptr && item_ < static_cast<int>(list->items.size());
}

QString AccessibleItem::text(QAccessible::Text kind) const
{
    if (kind != QAccessible::Name || !isValid()) return {};
    return toolkitText(picture()->items[static_cast<std::size_t>(item_)]);
}

bool AccessibleItem::isInView() const
{
    if (!isValid()) return false;
    const ListLayout layout = surface().list(*picture());
    return item_ >= layout.top && item_ < layout.top + layout.capacity;
}

QRect AccessibleItem::rect() const
{
    if (!isInView()) return {};
    const ListLayout layout = surface().list(*picture());
    const int top = layout.body.top() + (item_ - layout.top) * layout.rowHeight;
    return onScreen({layout.body.left(), top, layout.body.width(), layout.rowHeight});
}

QAccessible::State AccessibleItem::state() const
{
    QAccessible::State state;
    if (!isValid()) {
        state.invisible = true;
        return state;
    }
    const app::ControlPicture& list = *picture();
    state.disabled = !list.enabled;
    state.selectable = true;
    state.selected = list.listIndex == item_;
    state.focusable = list.enabled;
    state.focused = state.selected && list.hasFocus && formHasFocus();
    state.offscreen = !isInView();
    return state;
}

QStringList AccessibleItem::actionNames() const
{
    return isValid() && picture()->enabled ? QStringList{pressAction()} : QStringList{};
}

void AccessibleItem::doAction(const QString& name)
{
    if (actionNames().contains(name)) post(app::ListItemPicked{addressee(), item_});
}

}  // namespace desktop
