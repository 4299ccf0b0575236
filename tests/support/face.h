// The two faces of the program as rules of the event engine see them, and the desk at which such a rule is tried.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <concepts>
#include <functional>
#include <string>
#include <vector>

#include "platform/keys.h"
#include "platform/machine.h"
#include "screen/frm_anzeigen.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"
#include "support/watch.h"

namespace test {

/// What a face of the program offers to the rules. Whatever the operator does is handled to its end before the call
/// returns, with the message boxes on the way; but inside of what later() was given, it is left to the program.
/// Forms and controls may be looked at and changed whenever no call is running.
template <typename Candidate>
concept Face = requires(Candidate face, const std::string& text, screen::Control& control, screen::Grid& grid)
{
    /// Starts the program in a fresh folder: the set-up page is on the screen.
    face.start();
    /// The program has ended by itself.
    {
        face.ended()
        } -> std::same_as<bool>;

    /// Keys by name: "Tab", "F2", "Ctrl+c", or a single character.
    face.down(text);
    face.up(text);
    /// A key that is down repeats by itself so many times.
    face.repeat(text, 3);
    /// Character by character, each key down and up.
    face.type(text);
    /// Puts the text on the clipboard and presses the key of paste.
    face.paste(text);

    /// The focus alone, a click, a double click, and those on a row of a grid (from 1).
    face.focus(control);
    face.click(control);
    face.doubleClick(control);
    face.clickRow(grid, 1);
    face.doubleClickRow(grid, 1);
    /// The close button of the window.
    face.close();

    /// Queues the answer of a question. Boxes with one button are answered without it.
    face.answer(platform::buttonYes);
    /// Texts of all boxes shown so far.
    {
        face.boxes()
        } -> std::same_as<std::vector<std::string>>;

    /// Does something once so much time has gone by while a handler runs.
    face.later(std::chrono::milliseconds(1), std::function<void()>());

    /// Context numbers at which help was opened.
    {
        face.helpOpened()
        } -> std::same_as<std::vector<std::string>>;
};

/// For handlers that take long: lets so much time go by without serving events.
inline void sleepFor(platform::MonotonicTime duration)
{
    platform::Clock& clock = platform::machine().clock;
    clock.sleepUntil(clock.monotonic() + duration);
}

/// For handlers that take long: a turn every millisecond until something has come about. A test that waits in vain
/// fails.
template <typename Done>
void turnUntil(bool serving, Done&& done)
{
    const platform::Clock& clock = platform::machine().clock;
    const platform::MonotonicTime end = clock.monotonic() + std::chrono::seconds(30);
    while (!done()) {
        if (clock.monotonic() > end) {
            ADD_FAILURE() << "waited in vain";
            return;
        }
        sleepFor(std::chrono::milliseconds(1));
        if (serving) platform::serveEvents();
    }
}

/// Waits and serves events meanwhile, as automatic calling does.
template <typename Done>
void serveUntil(Done&& done)
{
    turnUntil(true, std::forward<Done>(done));
}

/// Waits and serves nothing, as a message that is being keyed does.
template <typename Done>
void sleepUntilThat(Done&& done)
{
    turnUntil(false, std::forward<Done>(done));
}

/// A program, and a watch over some of its controls.
template <Face SomeFace>
class Desk : public testing::Test, protected Watch, protected SomeFace {
 protected:
    /// Down and up.
    void strike(const std::string& key)
    {
        this->down(key);
        this->up(key);
    }

    /// The set-up page with the focus in a field that is watched, and nothing in the log.
    void startIn(screen::TextBox& box)
    {
        this->start();
        this->watch(box);
        this->goTo(box);
    }

    void goTo(screen::Control& control)
    {
        this->focus(control);
        ASSERT_EQ(focused(), &control) << control.name;
        this->takeLog();
    }

    /// The way of an operator to an entry form that is open: a contest of one pass, 144 MHz, CW.
    void startAndOpenEntry()
    {
        this->start();
        this->click(FrmInit.OpBFloareademina);
        this->click(FrmInit.OpbConcurs);
        this->focus(FrmInit.TxtMyCall);
        this->type("yo2xyz");
        strike("Enter");
        this->type("kn05os");
        strike("Enter");
        this->type("0");
        this->click(FrmInit.mnuQSOfahren);
        this->click(FrmQSO.Cmd144);
        this->click(FrmQSO.CmdCW);
        ASSERT_EQ(screen::activeForm(), &FrmQSO);
        ASSERT_EQ(focused(), &FrmQSO.txtIndic);
    }

    /// A new station that gives a code and a locator, logged.
    void logQso(const std::string& call, const std::string& code, const std::string& locator)
    {
        this->type(call);
        strike("Tab");
        this->type(code);
        this->type(locator);
        strike("Enter");
        ASSERT_EQ(FrmQSO.txtIndic.Text.get(), "");
    }

    /// Runs something where the program runs its handlers.
    void inProgram(std::function<void()> action)
    {
        screen::Control* exit = screen::activeForm()->controls().front();
        ASSERT_EQ(exit->kind, screen::Kind::menuEntry);
        const screen::EventSlot own = exit->Click;
        this->watch(*exit);
        this->onClick(*exit, std::move(action));
        this->click(*exit);
        exit->Click = own;
    }

    /// The control that keys go to, nullptr for none.
    static screen::Control* focused()
    {
        const screen::Form* form = screen::activeForm();
        return form == nullptr ? nullptr : form->ActiveControl;
    }

    static std::string focusedName() { return focused() == nullptr ? "nothing" : focused()->name; }

    void SetUp() override {}
};

}  // namespace test
