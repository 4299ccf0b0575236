// What controls are called when they are read out to the operator instead of seen.
//
// Buttons, options and frames are called what they say. A field is called what the label beside it says, a value is
// told behind its heading, and a lamp by the button that lights it. The tables name controls and never look into them,
// so that any thread may ask.
#pragma once

#include <array>
#include <string_view>

#include "screen/control.h"

namespace screen {

struct SpokenName {
    const Control* control;
    std::array<const Control*, 2> labels;  ///< whose captions make the name, one behind the other; nullptr for none
    const char* words;                     ///< and behind them words of our own, "" for none
};

/// How a control is called that does not say it itself, nullptr for all others.
const SpokenName* spokenNameOf(const Control* control);

/// The button that lights a lamp, nullptr for what is no lamp.
const Control* buttonOfLamp(const Control* control);

/// What a form is called; empty for an unknown one.
std::string_view spokenNameOfForm(std::string_view form);

/// A prompt or a question that the operator must hear as soon as it comes into view or says something else.
bool isAnnounced(const Control* control);

/// A field beside the call whose reader has to know the verdict on the call, and the call itself.
bool tellsVerdict(const Control* control);

}  // namespace screen
