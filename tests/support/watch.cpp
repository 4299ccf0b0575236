#include "support/watch.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <utility>

namespace test {

using screen::Control;
using screen::Kind;

namespace {

constexpr std::size_t mostControls = 64;

Watch* current = nullptr;

}  // namespace

/// Slots hold plain functions, so that each control that is watched needs functions of its own.
template <std::size_t slot>
struct Watch::Handlers {
    static Control* control()
    {
        if (current == nullptr || slot >= current->controls_.size()) return nullptr;
        return current->controls_[slot];
    }

    template <typename Actions, typename Argument>
    static void heardKey(const char* event, const Actions& actions, Argument& key)
    {
        const Control* watched = control();
        if (watched == nullptr) return;
        current->note(watched->name + " " + event + " " + std::to_string(static_cast<long>(key)));
        const auto action = actions.find(watched);
        if (action != actions.end()) action->second(key);
    }

    static void keyDown(int& keyCode)
    {
        if (current != nullptr) heardKey("KeyDown", current->keyDown_, keyCode);
    }
    static void keyPress(char32_t& character)
    {
        if (current != nullptr) heardKey("KeyPress", current->keyPress_, character);
    }
    static void keyUp(int& keyCode)
    {
        if (current != nullptr) heardKey("KeyUp", current->keyUp_, keyCode);
    }
    static void gotFocus()
    {
        if (current != nullptr) current->heard(slot, "GotFocus", current->gotFocus_);
    }
    static void click()
    {
        if (current != nullptr) current->heard(slot, "Click", current->click_);
    }
    static void doubleClick()
    {
        if (current != nullptr) current->heard(slot, "DblClick", current->doubleClick_);
    }
    static void rowTouched()
    {
        if (current != nullptr) current->heard(slot, "RowTouched", current->rowTouched_);
    }
    static void tick()
    {
        if (current != nullptr) current->heard(slot, "Tick", current->tick_);
    }

    static void fill(Control& control)
    {
        control.KeyDown = keyDown;
        control.KeyPress = keyPress;
        control.KeyUp = keyUp;
        control.GotFocus = gotFocus;
        control.Click = click;
        control.DblClick = doubleClick;
        if (control.kind == Kind::grid) static_cast<screen::Grid&>(control).RowTouched = rowTouched;
        if (control.kind == Kind::timer) static_cast<screen::Timer&>(control).Tick = tick;
    }
};

struct Watch::Filler {
    template <std::size_t... slots>
    static auto table(std::index_sequence<slots...> /*all*/)
    {
        return std::array<void (*)(Control&), sizeof...(slots)>{Handlers<slots>::fill...};
    }
};

Watch::Watch()
{
    if (current != nullptr) throw std::logic_error("two watches at a time");
    current = this;
}

Watch::~Watch()
{
    current = nullptr;
}

void Watch::watch(std::initializer_list<Control*> controls)
{
    for (Control* control : controls)
        watch(*control);
}

void Watch::watch(Control& control)
{
    static const auto fillers = Filler::table(std::make_index_sequence<mostControls>{});
    const auto known = std::find(controls_.begin(), controls_.end(), &control);
    const auto slot = static_cast<std::size_t>(known - controls_.begin());
    if (known == controls_.end()) controls_.push_back(&control);
    fillers.at(slot)(control);
}

bool Watch::noted(const std::string& line) const
{
    return countOf(line) > 0;
}

long Watch::countOf(const std::string& line) const
{
    return static_cast<long>(std::count(log_.begin(), log_.end(), line));
}

void Watch::heard(std::size_t slot, const char* event, const std::map<const Control*, Event>& actions)
{
    if (slot >= controls_.size()) return;
    const Control* watched = controls_[slot];
    note(watched->name + " " + event);
    const auto action = actions.find(watched);
    if (action != actions.end()) action->second();
}

}  // namespace test
