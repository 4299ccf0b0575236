#include "desktop/accessible_form.h"

#include <algorithm>

#include "desktop/accessible_grid.h"
#include "desktop/accessible_list.h"
#include "desktop/accessible_names.h"
#include "desktop/accessible_text_box.h"
#include "desktop/characters.h"
#include "desktop/notice_line.h"
#include "screen/spoken_names.h"

namespace desktop {

using screen::Kind;

namespace {

constexpr int wholeControl = -1;

/// The quiet line at the foot of the window.
class AccessibleNotice final : public QAccessibleWidget {
 public:
    explicit AccessibleNotice(NoticeLine& line) : QAccessibleWidget(&line, QAccessible::Notification), line_(line) {}

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? line_.shown() : QAccessibleWidget::text(kind);
    }

 private:
    NoticeLine& line_;
};

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object)
{
    if (auto* view = qobject_cast<FormView*>(object)) return new AccessibleForm(*view);
    if (auto* line = qobject_cast<NoticeLine*>(object)) return new AccessibleNotice(*line);
    return nullptr;
}

}  // namespace

AccessibleForm::AccessibleForm(FormView& view) : QAccessibleWidget(&view, QAccessible::Form), view_(view)
{
}

AccessibleForm::~AccessibleForm()
{
    for (const auto& [key, id] : made_)
        QAccessible::deleteAccessibleInterface(id);
}

std::vector<const screen::Control*> AccessibleForm::heldBy(const screen::Control* frame) const
{
    std::vector<const screen::Control*> held;
    for (const app::ControlPicture& control : picture().controls)
        if (control.frame == frame && isAccessible(control, picture())) held.push_back(control.control);
    return held;
}

template <typename Maker>
QAccessibleInterface* AccessibleForm::kept(const Key& key, Maker&& make) const
{
    const auto known = made_.find(key);
    if (known != made_.end()) return QAccessible::accessibleInterface(known->second);
    QAccessibleInterface* made = make();
    made_.emplace(key, QAccessible::registerAccessibleInterface(made));
    return made;
}

QAccessibleInterface* AccessibleForm::make(const app::ControlPicture& control) const
{
    switch (control.kind) {
        case Kind::textBox:
            return new AccessibleTextBox(*this, *control.control);
        case Kind::listBox:
            return new AccessibleList(*this, *control.control);
        case Kind::grid:
            return new AccessibleGrid(*this, *control.control);
        default:
            return new AccessibleControl(*this, *control.control);
    }
}

QAccessibleInterface* AccessibleForm::of(const screen::Control* control) const
{
    const app::ControlPicture* seen = findControl(picture(), control);
    if (seen == nullptr || seen->kind == Kind::line) return nullptr;
    return kept({control, wholeControl}, [&] { return make(*seen); });
}

QAccessibleInterface* AccessibleForm::ofPart(const screen::Control* control, int part) const
{
    const app::ControlPicture* seen = findControl(picture(), control);
    if (seen == nullptr || part < 0) return nullptr;
    return kept({control, part}, [&]() -> QAccessibleInterface* {
        if (seen->kind == Kind::listBox) return new AccessibleItem(*this, *control, part);
        if (part == AccessibleCurrentRow::part) return new AccessibleCurrentRow(*this, *control);
        return new AccessibleCell(*this, *control, part);
    });
}

QAccessibleInterface* AccessibleForm::under(const screen::Control* frame, QPoint onScreen) const
{
    const app::ControlPicture* control = view_.surface().controlAt(view_.mapFromGlobal(onScreen));
    while (control != nullptr && control->frame != frame)
        control = findControl(picture(), control->frame);
    return control != nullptr && isAccessible(*control, picture()) ? of(control->control) : nullptr;
}

int AccessibleForm::childCount() const
{
    return static_cast<int>(heldBy(nullptr).size());
}

QAccessibleInterface* AccessibleForm::child(int index) const
{
    const auto held = heldBy(nullptr);
    return index < 0 || index >= static_cast<int>(held.size()) ? nullptr : of(held[static_cast<std::size_t>(index)]);
}

int AccessibleForm::indexOfChild(const QAccessibleInterface* child) const
{
    const auto held = heldBy(nullptr);
    const auto at = std::ranges::find_if(held, [&](const screen::Control* control) { return of(control) == child; });
    return at == held.end() ? -1 : static_cast<int>(at - held.begin());
}

QAccessibleInterface* AccessibleForm::childAt(int x, int y) const
{
    return under(nullptr, {x, y});
}

QAccessibleInterface* AccessibleForm::focusChild() const
{
    const app::ControlPicture* focused = view_.surface().focused();
    if (focused == nullptr) return nullptr;
    if (focused->kind == Kind::listBox && focused->listIndex >= 0) return ofPart(focused->control, focused->listIndex);
    return of(focused->control);
}

QString AccessibleForm::text(QAccessible::Text kind) const
{
    if (kind != QAccessible::Name) return QAccessibleWidget::text(kind);
    return toolkitText(std::string(screen::spokenNameOfForm(picture().form)));
}

QAccessible::State AccessibleForm::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    if (focusChild() != nullptr) state.focused = false;
    return state;
}

AccessibleForm* accessibleForm(FormView& view)
{
    return static_cast<AccessibleForm*>(QAccessible::queryAccessibleInterface(&view));
}

void teachAccessibility()
{
    QAccessible::installFactory(makeInterface);
}

}  // namespace desktop
