#include "desktop/accessible_news.h"

#include <algorithm>
#include <unordered_map>

#include "desktop/accessible_form.h"
#include "desktop/accessible_grid.h"
#include "desktop/accessible_names.h"
#include "desktop/accessible_text_box.h"
#include "desktop/characters.h"
#include "desktop/picture_changes.h"
#include "screen/spoken_names.h"

namespace desktop {

using screen::Kind;

namespace {

NewsSender newsSender = QAccessible::updateAccessibility;

void send(QAccessibleInterface* about, QAccessible::Event what)
{
    if (about == nullptr) return;
    QAccessibleEvent event(about, what);
    newsSender(&event);
}

template <typename Event, typename... Details>
void sendDetailed(QAccessibleInterface* about, Details&&... details)
{
    Event event(about, std::forward<Details>(details)...);
    newsSender(&event);
}

qsizetype commonStart(const QString& a, const QString& b)
{
    const auto ends = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
    return ends.first - a.begin();
}

/// Tells what was typed, taken away or replaced, and no more than that.
void tellText(QAccessibleInterface* box, const QString& before, const QString& after)
{
    if (before == after) return;
    const qsizetype start = commonStart(before, after);
    qsizetype end = 0;
    while (end < before.size() - start && end < after.size() - start &&
           before.at(before.size() - 1 - end) == after.at(after.size() - 1 - end))
        ++end;
    const QString removed = before.mid(start, before.size() - start - end);
    const QString inserted = after.mid(start, after.size() - start - end);
    const int place = static_cast<int>(start);
    if (removed.isEmpty()) return sendDetailed<QAccessibleTextInsertEvent>(box, place, inserted);
    if (inserted.isEmpty()) return sendDetailed<QAccessibleTextRemoveEvent>(box, place, removed);
    sendDetailed<QAccessibleTextUpdateEvent>(box, place, removed, inserted);
}

/// Keeps up with whether somebody listens: asking the toolkit each time would cost more than the answer is worth.
class Listeners final : public QAccessible::ActivationObserver {
 public:
    Listeners() { QAccessible::installActivationObserver(this); }

    void accessibilityActiveChanged(bool active) override { active_ = active; }
    bool active() const { return active_; }

 private:
    bool active_ = QAccessible::isActive();
};

/// The two pictures of one control.
struct Change {
    const app::ControlPicture& before;
    const app::ControlPicture& after;
};

class News {
 public:
    News(AccessibleForm& form, const app::Picture& before) : form_(form), before_(before), after_(form.picture()) {}

    void tell()
    {
        if (before_.form != after_.form) return tellOtherForm();
        std::unordered_map<const screen::Control*, const app::ControlPicture*> gone;
        for (const app::ControlPicture& control : before_.controls)
            if (isAccessible(control, before_)) gone.emplace(control.control, &control);
        bool otherControls = false;
        for (const app::ControlPicture& control : after_.controls) {
            if (!isAccessible(control, after_)) continue;
            const auto old = gone.find(control.control);
            if (old == gone.end()) {
                otherControls = true;
                tellShown(control);
                continue;
            }
            tellChange({*old->second, control});
            gone.erase(old);
        }
        if (otherControls || !gone.empty()) send(&form_, QAccessible::ObjectReorder);
        tellMovedFocus();
    }

 private:
    void tellOtherForm()
    {
        send(&form_, QAccessible::NameChanged);
        send(&form_, QAccessible::ObjectReorder);
        for (const app::ControlPicture& control : after_.controls)
            if (screen::isAnnounced(control.control) && isAccessible(control, after_)) tellShown(control);
        tellFocus(form_.view());
    }

    void tellShown(const app::ControlPicture& control) { send(form_.of(control.control), QAccessible::ObjectShow); }

    void tellChange(const Change& change)
    {
        QAccessibleInterface* control = form_.of(change.after.control);
        if (accessibleName(change.before, before_) != accessibleName(change.after, after_)) {
            send(control, QAccessible::NameChanged);
            // Screen readers speak a notification when it comes into view.
            if (screen::isAnnounced(change.after.control)) tellShown(change.after);
        }
        if (accessibleDescription(change.before, before_) != accessibleDescription(change.after, after_))
            send(control, QAccessible::DescriptionChanged);
        if (looksSame(change.before, change.after)) return;
        tellState(change, control);
        if (!(change.before.place == change.after.place)) send(control, QAccessible::LocationChanged);
        if (change.after.kind == Kind::textBox) tellTextBox(change, control);
        if (change.after.kind == Kind::listBox) tellList(change, control);
        if (change.after.kind == Kind::grid) tellGrid(change, control);
    }

    static void tellState(const Change& change, QAccessibleInterface* control)
    {
        QAccessible::State changed;
        changed.disabled = change.before.enabled != change.after.enabled;
        changed.checked = change.before.checked != change.after.checked;
        changed.focused = change.before.hasFocus && !change.after.hasFocus;
        if (!(changed == QAccessible::State())) sendDetailed<QAccessibleStateChangeEvent>(control, changed);
    }

    static void tellTextBox(const Change& change, QAccessibleInterface* box)
    {
        tellText(box, toolkitText(change.before.text), toolkitText(change.after.text));
        const CaretOffsets before = caretOffsets(change.before);
        const CaretOffsets after = caretOffsets(change.after);
        const bool selects = change.before.selLength > 0 || change.after.selLength > 0;
        if (selects && (before.selectionStart != after.selectionStart || before.selectionEnd != after.selectionEnd))
            sendDetailed<QAccessibleTextSelectionEvent>(box, after.selectionStart, after.selectionEnd);
        if (before.caret != after.caret) sendDetailed<QAccessibleTextCursorEvent>(box, after.caret);
    }

    void tellList(const Change& change, QAccessibleInterface* list)
    {
        if (change.before.items != change.after.items) send(list, QAccessible::ObjectReorder);
        if (change.before.listIndex == change.after.listIndex) return;
        QAccessibleInterface* item = form_.ofPart(change.after.control, change.after.listIndex);
        send(item, QAccessible::Selection);
        if (change.after.hasFocus) tellFocus(form_.view());
    }

    void tellGrid(const Change& change, QAccessibleInterface* grid)
    {
        if (change.before.grid == change.after.grid) return;
        if (change.before.grid->rows != change.after.grid->rows)
            sendDetailed<QAccessibleTableModelChangeEvent>(grid, QAccessibleTableModelChangeEvent::ModelReset);
        if (change.before.grid->currentKey == change.after.grid->currentKey) return;
        const QList<QAccessibleInterface*> row = grid->tableInterface()->selectedCells();
        if (row.isEmpty()) return;
        send(row.first(), QAccessible::Selection);
        const bool sameRows = change.before.grid->generation == change.after.grid->generation;
        if (sameRows) send(form_.ofPart(change.after.control, AccessibleCurrentRow::part), QAccessible::ObjectShow);
    }

    void tellMovedFocus()
    {
        const auto focused = [](const app::Picture& picture) -> const screen::Control* {
            const auto found = std::ranges::find(picture.controls, true, &app::ControlPicture::hasFocus);
            return found == picture.controls.end() ? nullptr : found->control;
        };
        if (focused(before_) != focused(after_)) tellFocus(form_.view());
    }

    AccessibleForm& form_;
    const app::Picture& before_;
    const app::Picture& after_;
};

}  // namespace

NewsSender sendNewsTo(NewsSender sender)
{
    return std::exchange(newsSender, sender);
}

bool isReadOut()
{
    static Listeners listeners;
    return listeners.active();
}

void tellChanges(FormView& view, const app::Picture& before)
{
    if (AccessibleForm* form = accessibleForm(view)) News(*form, before).tell();
}

void tellFocus(FormView& view)
{
    const AccessibleForm* form = accessibleForm(view);
    if (form != nullptr && view.hasFocus()) send(form->focusChild(), QAccessible::Focus);
}

void tellNotice(QWidget& line)
{
    QAccessibleInterface* about = QAccessible::queryAccessibleInterface(&line);
    if (about == nullptr) return;
    send(about, QAccessible::NameChanged);
    if (!about->text(QAccessible::Name).isEmpty()) send(about, QAccessible::ObjectShow);
}

}  // namespace desktop
