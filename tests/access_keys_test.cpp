// Every control can be reached without a pointer, and no two in view share a letter but where their captions are given.
#include "screen/access_keys.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <string>

#include "app/program.h"
#include "base/text.h"
#include "screen/frm_init.h"
#include "screen/mnemonic.h"
#include "support/every_state.h"

namespace test {
namespace {

using screen::Control;
using screen::Kind;

/// Letters that the given captions share. The first of the two is the one that Alt picks.
struct SharedLetter {
    char32_t letter;
    const Control* picked;
    const Control* other;
    const char* wayToTheOther;
};

const SharedLetter sharedLetters[] = {
    {U'E', &FrmQSO.OBtAnterior, &FrmQSO.CmdEnterCall, "Enter, F12 or Insert in the call"},
    {U'D', &FrmAnzeigen.mnuLOGLöschen, &FrmAnzeigen.Frame5, "Tab leads into it"},
};

/// Where another key than Alt, Tab or F10 leads.
struct OtherWay {
    const Control* control;
    const char* way;
};

const OtherWay otherWays[] = {
    {&FrmQSO.TxtF2, "Enter in TxtF1"}, {&FrmQSO.TxtF3, "Enter in TxtF2"}, {&FrmQSO.TxtF4, "Enter in TxtF3"},
    {&FrmQSO.TxtF5, "Enter in TxtF4"}, {&FrmQSO.TxtF6, "Enter in TxtF5"}, {&FrmQSO.TxtF7, "Enter in TxtF6"},
};

bool isParkingPlace(const Control& control)
{
    return control.kind == Kind::textBox && static_cast<const screen::TextBox&>(control).parking;
}

bool isOfClickableKind(const Control& control)
{
    constexpr std::array kinds = {Kind::textBox, Kind::commandButton, Kind::optionButton, Kind::checkBox,
                                  Kind::listBox, Kind::menuEntry,     Kind::grid};
    return !isParkingPlace(control) && std::ranges::find(kinds, control.kind) != kinds.end();
}

bool canBeClicked(const Control& control)
{
    return isOfClickableKind(control) && control.seen() && control.enabled();
}

bool isFirstGrid(const Control& control)
{
    const auto& controls = control.form.controls();
    const auto first =
        std::ranges::find_if(controls, [](const Control* other) { return other->kind == Kind::grid && other->seen(); });
    return first != controls.end() && *first == &control;
}

bool isReached(const Control& control)
{
    const auto isThis = [&](const auto& row) { return row.control == &control; };
    if (control.kind == Kind::menuEntry) return true;  // F10 leads to the menu
    if (control.kind == Kind::grid) return isFirstGrid(control);
    if (control.TabStop || std::ranges::any_of(otherWays, isThis)) return true;
    const char32_t letter = screen::mnemonicOf(control);
    if (letter == 0) return false;
    if (controlWithMnemonic(control.form, letter) == &control) return true;
    return std::ranges::any_of(sharedLetters, [&](const SharedLetter& row) { return row.other == &control; });
}

/// What has a letter that Alt can pick it with; below an entry of the menu the letters are the menu's own.
bool showsLetter(const Control& control)
{
    const bool inMenu = control.kind == Kind::menuEntry && control.container != nullptr;
    return control.seen() && control.enabled() && control.kind != Kind::label && !inMenu &&
           screen::mnemonicOf(control) != 0;
}

const SharedLetter* givenRow(char32_t letter, const std::set<const Control*>& sharing)
{
    const auto* row = std::ranges::find_if(sharedLetters, [&](const SharedLetter& candidate) {
        return candidate.letter == letter && sharing == std::set<const Control*>{candidate.picked, candidate.other};
    });
    return row == std::end(sharedLetters) ? nullptr : row;
}

std::string namesOf(const std::set<const Control*>& controls)
{
    std::string names;
    for (const Control* control : controls)
        names += control->name + " ";
    return names;
}

/// Findings of a tour, each with the first state that shows it.
using Findings = std::map<std::string, std::string>;

std::string told(const Findings& findings)
{
    std::string text;
    for (const auto& [finding, state] : findings)
        text += finding + "   (" + state + ")\n";
    return text;
}

/// What one tour through all pages finds.
class AccessKeys : public testing::Test {
 protected:
    static void SetUpTestSuite()
    {
        found() = {};
        EveryState(look).visitAll();
    }

    struct Found {
        std::set<std::string> forms;
        std::set<const Control*> clickable;
        Findings unreached;
        Findings shared;
        Findings wronglyPicked;
        Findings unseenFocus;
        std::set<char32_t> givenLetters;
    };

    static Found& found()
    {
        static Found findings;
        return findings;
    }

 private:
    static void look(const screen::Form& form, const std::string& state)
    {
        found().forms.insert(form.name);
        lookAtControls(form, state);
        lookAtLetters(form, state);
        lookAtFocus(form, state);
    }

    /// A control that was hidden keeps the focus only while no other one could take it.
    static void lookAtFocus(const screen::Form& form, const std::string& state)
    {
        const Control* focus = form.ActiveControl;
        if (focus == nullptr || isParkingPlace(*focus) || focus->seen()) return;
        if (std::ranges::any_of(form.controls(), [](const Control* control) {
                return control->canTakeFocus() && !isParkingPlace(*control);
            }))
            found().unseenFocus.emplace(form.name + "." + focus->name, state);
    }

    static void lookAtControls(const screen::Form& form, const std::string& state)
    {
        for (const Control* control : form.controls()) {
            if (!canBeClicked(*control)) continue;
            found().clickable.insert(control);
            if (!isReached(*control)) found().unreached.emplace(form.name + "." + control->name, state);
        }
    }

    static void lookAtLetters(const screen::Form& form, const std::string& state)
    {
        std::map<char32_t, std::set<const Control*>> letters;
        for (const Control* control : form.controls())
            if (showsLetter(*control)) letters[screen::mnemonicOf(*control)].insert(control);
        for (const auto& [letter, sharing] : letters)
            if (sharing.size() > 1) lookAtShared(form, letter, sharing, state);
    }

    static void lookAtShared(const screen::Form& form, char32_t letter, const std::set<const Control*>& sharing,
                             const std::string& state)
    {
        const SharedLetter* given = givenRow(letter, sharing);
        if (given == nullptr) {
            found().shared.emplace(form.name + " Alt+" + base::fromCharacter(letter) + " " + namesOf(sharing), state);
            return;
        }
        found().givenLetters.insert(letter);
        if (controlWithMnemonic(form, letter) != given->picked)
            found().wronglyPicked.emplace(given->picked->name, state);
    }
};

TEST_F(AccessKeys, EveryControlInViewIsReachedByKeys)
{
    EXPECT_EQ(told(found().unreached), "");
}

TEST_F(AccessKeys, NoTwoControlsInViewShareALetterButThoseOfGivenCaptions)
{
    EXPECT_EQ(told(found().shared), "");
    EXPECT_EQ(told(found().wronglyPicked), "");
    EXPECT_EQ(found().givenLetters.size(), std::size(sharedLetters)) << "a row of the table that no page shows";
}

TEST_F(AccessKeys, TheFocusIsInViewOrParked)
{
    EXPECT_EQ(told(found().unseenFocus), "");
}

TEST_F(AccessKeys, TheTourSawEveryControlThatCanBeClicked)
{
    EXPECT_EQ(found().forms, (std::set<std::string>{"FrmAnzeigen", "FrmInit", "FrmQSO"}));
    std::set<const Control*> unseen;
    for (const screen::Form* form : app::forms())
        for (const Control* control : form->controls())
            if (isOfClickableKind(*control) && !found().clickable.contains(control)) unseen.insert(control);
    unseen.erase(&FrmQSO.DBGrid5);  // the entry form looks locators up, and never shows them
    EXPECT_EQ(namesOf(unseen), "");
}

}  // namespace
}  // namespace test
