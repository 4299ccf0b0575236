#include "app/operating.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <vector>

#include "base/text.h"
#include "platform/machine.h"

namespace app {

using platform::Key;
using screen::Control;
using screen::Kind;

namespace {

/// An option next to `option` in its frame, in the order of the page.
Control* neighbourOption(const Control& option, bool backwards)
{
    std::vector<Control*> options;
    for (Control* control : option.form.controls())
        if (control->kind == Kind::optionButton && control->container == option.container && control->canTakeFocus())
            options.push_back(control);
    if (backwards) std::reverse(options.begin(), options.end());
    const auto at = std::find(options.begin(), options.end(), &option);
    if (at == options.end() || options.size() < 2) return nullptr;
    return std::next(at) == options.end() ? options.front() : *std::next(at);
}

bool leadsBack(const Key& key)
{
    return key.code == platform::keyUp || key.code == platform::keyLeft;
}

bool leadsOn(const Key& key)
{
    return key.code == platform::keyDown || key.code == platform::keyRight;
}

/// The item behind the chosen one that begins with a character, round the end of the list; -1 when there is none.
int nextItemWith(const screen::ListBox& list, char32_t character)
{
    const int count = static_cast<int>(list.items.size());
    for (int step = 1; step <= count; ++step) {
        const int item = (list.ListIndex + step) % count;
        const std::string& text = list.items[static_cast<std::size_t>(item)];
        if (!text.empty() && base::upper(base::characterAt(text, 1)) == base::upper(character)) return item;
    }
    return -1;
}

/// The item that a key leads to, below 0 or behind the last one where there is none.
int itemLedTo(const screen::ListBox& list, const Key& key)
{
    if (leadsBack(key)) return list.ListIndex - 1;
    if (leadsOn(key)) return list.ListIndex + 1;
    if (key.code == platform::keyHome) return 0;
    if (key.code == platform::keyEnd) return static_cast<int>(list.items.size()) - 1;
    return key.character > U' ' ? nextItemWith(list, key.character) : -1;
}

void operateList(screen::ListBox& list, const Key& key)
{
    if (key.ctrl || key.alt) return;
    const bool entered = key.code == platform::keyEnter && list.ListIndex >= 0;
    const int wanted = itemLedTo(list, key);
    const bool leads = wanted >= 0 && wanted < static_cast<int>(list.items.size()) && wanted != list.ListIndex;
    if (leads) list.ListIndex = wanted;
    const bool clicked = entered || (leads && list.choiceClicks);
    if (clicked && list.Click != nullptr) run(list.Click);
}

screen::Grid* gridInView()
{
    screen::Form* form = screen::activeForm();
    if (form == nullptr) return nullptr;
    for (Control* control : form->controls())
        if (control->kind == Kind::grid && control->seen()) return static_cast<screen::Grid*>(control);
    return nullptr;
}

/// Goes on by some rows, at most to the end.
void moveInGrid(screen::Grid& grid, bool up, long count)
{
    storage::RecordSet& rows = grid.data->Recordset;
    if (!rows.isOpen()) return;
    for (; count > 0 && rows.currentKey(); --count) {
        const std::int64_t stood = *rows.currentKey();
        if (up)
            rows.MovePrevious();
        else
            rows.MoveNext();
        if (!rows.currentKey()) return rows.moveTo(stood);
    }
}

void actOnRows(screen::Grid& grid, int code, GridViews& gridViews)
{
    switch (code) {
        case platform::keyUp:
        case platform::keyDown:
            return moveInGrid(grid, code == platform::keyUp, 1);
        case platform::keyPageUp:
        case platform::keyPageDown:
            return moveInGrid(grid, code == platform::keyPageUp, gridViews.pageOf(grid));
        case platform::keyHome:
            return grid.data->Recordset.MoveFirst();
        case platform::keyEnd:
            return grid.data->Recordset.MoveLast();
        default:
            if (grid.RowTouched != nullptr) grid.RowTouched();
    }
}

bool leadsToNext(const Key& key)
{
    return key.code == platform::keyUp || key.code == platform::keyDown;
}

bool leadsFar(const Key& key)
{
    constexpr std::array far = {platform::keyPageUp, platform::keyPageDown, platform::keyHome, platform::keyEnd};
    return std::find(far.begin(), far.end(), key.code) != far.end();
}

}  // namespace

void choose(Control& control)
{
    if (control.kind == Kind::optionButton) static_cast<screen::OptionButton&>(control).Value = true;
    if (control.kind == Kind::checkBox) {
        auto& box = static_cast<screen::CheckBox&>(control);
        box.Value = box.Value == 0 ? 1 : 0;
    }
    if (control.Click != nullptr) run(control.Click);
}

Control* nextStop(const screen::Form& form, const Control* from, bool backwards)
{
    std::vector<Control*> stops;
    std::copy_if(
        form.controls().begin(), form.controls().end(), std::back_inserter(stops),
        [&](const Control* control) { return control == from || (control->TabStop && control->canTakeFocus()); });
    if (backwards) std::reverse(stops.begin(), stops.end());
    auto at = std::find(stops.begin(), stops.end(), from);
    if (at != stops.end()) {
        std::rotate(stops.begin(), std::next(at), stops.end());
        stops.pop_back();
    }
    return stops.empty() ? nullptr : stops.front();
}

void operate(Control& control, const Key& key)
{
    if (control.kind == Kind::listBox) return operateList(static_cast<screen::ListBox&>(control), key);
    const bool presses =
        key.code == platform::keySpace || (key.code == platform::keyEnter && control.kind == Kind::commandButton);
    if (presses) return choose(control);
    if (control.kind != Kind::optionButton || !(leadsBack(key) || leadsOn(key))) return;
    Control* neighbour = neighbourOption(control, leadsBack(key));
    if (neighbour == nullptr) return;
    neighbour->SetFocus();
    choose(*neighbour);
}

bool isForGrid(const Key& key)
{
    if (!key.ctrl) return false;
    if (leadsToNext(key) || key.code == platform::keyDelete) return true;
    const screen::Grid* grid = gridInView();
    return leadsFar(key) && grid != nullptr && grid->farKeys;
}

void actOnGrid(const Key& key, GridViews& gridViews)
{
    screen::Grid* grid = gridInView();
    if (grid != nullptr) run([&] { actOnRows(*grid, key.code, gridViews); });
}

void openHelp()
{
    const screen::Form* form = screen::activeForm();
    if (form == nullptr || form->HelpContextID == 0) return;
    platform::machine().help.open(form->HelpContextID);
}

}  // namespace app
