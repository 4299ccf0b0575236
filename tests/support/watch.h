// Handlers of a test in the slots of real controls: they write down what happens, and do what the test asks for.
#pragma once

#include <functional>
#include <initializer_list>
#include <map>
#include <string>
#include <vector>

#include "screen/form.h"

namespace test {

/// What happened, one line an event: "TxtMyCall KeyDown 65", "TxtMyCall KeyPress 97", "txtMyQRA GotFocus".
using Log = std::vector<std::string>;

/// One at a time. Slots that it has filled do nothing once it is gone.
class Watch {
 public:
    using Event = std::function<void()>;
    using KeyEvent = std::function<void(int& keyCode)>;
    using CharacterEvent = std::function<void(char32_t& character)>;

    Watch();
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;
    ~Watch();

    /// Puts handlers of this watch into all slots of the controls, in place of the program's own. At most 64 controls.
    void watch(std::initializer_list<screen::Control*> controls);
    void watch(screen::Control& control);

    /// What a handler does once it has written its line down. The last call for a slot counts.
    void onKeyDown(const screen::Control& control, KeyEvent action) { keyDown_[&control] = std::move(action); }
    void onKeyPress(const screen::Control& control, CharacterEvent action) { keyPress_[&control] = std::move(action); }
    void onKeyUp(const screen::Control& control, KeyEvent action) { keyUp_[&control] = std::move(action); }
    void onGotFocus(const screen::Control& control, Event action) { gotFocus_[&control] = std::move(action); }
    void onClick(const screen::Control& control, Event action) { click_[&control] = std::move(action); }
    void onDoubleClick(const screen::Control& control, Event action) { doubleClick_[&control] = std::move(action); }
    void onTick(const screen::Timer& timer, Event action) { tick_[&timer] = std::move(action); }

    /// Writes a line of the test's own.
    void note(const std::string& line) { log_.push_back(line); }
    /// True when this line stands in the log.
    bool noted(const std::string& line) const;
    /// How often this line stands in the log.
    long countOf(const std::string& line) const;
    const Log& log() const { return log_; }
    /// The log, which begins anew.
    Log takeLog() { return std::exchange(log_, {}); }

 private:
    template <std::size_t slot>
    struct Handlers;
    struct Filler;

    void heard(std::size_t slot, const char* event, const std::map<const screen::Control*, Event>& actions);

    std::vector<screen::Control*> controls_;
    std::map<const screen::Control*, KeyEvent> keyDown_;
    std::map<const screen::Control*, CharacterEvent> keyPress_;
    std::map<const screen::Control*, KeyEvent> keyUp_;
    std::map<const screen::Control*, Event> gotFocus_;
    std::map<const screen::Control*, Event> click_;
    std::map<const screen::Control*, Event> doubleClick_;
    std::map<const screen::Control*, Event> rowTouched_;
    std::map<const screen::Control*, Event> tick_;
    Log log_;
};

}  // namespace test
