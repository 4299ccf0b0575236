// The letters that Alt picks a control with: "&" stands before them in a caption, or the page gives them beside it.
#pragma once

#include <string>
#include <string_view>

#include "screen/form.h"

namespace screen {

/// Caption of a control, empty for a kind without one.
const std::string& captionOf(const Control& control);

/// The letter behind the first "&" of a caption, as a capital; 0 when there is none.
char32_t mnemonicOf(std::string_view caption);

/// The letter that Alt picks the control with, as a capital: that of its caption, else the one that the page gave it.
/// 0 when there is none.
char32_t mnemonicOf(const Control& control);

/// The caption as it is shown, without the "&".
std::string withoutMnemonic(std::string_view caption);

/// The caption with "&" before the letter that picks the control, where the caption has this letter.
std::string markedCaption(const Control& control);

/// The control of the form, seen and enabled, that this letter picks; nullptr when there is none. An entry that only
/// opens a menu is none, and a frame is none whose letter stands in the menu bar. Where several have the letter, the
/// menu bar goes first, then a frame and what stands in it (it asks something), then the first on the page.
Control* controlWithMnemonic(const Form& form, char32_t letter);

/// The first control in a frame that can take the focus, nullptr when there is none.
Control* firstStopIn(const Control& frame);

}  // namespace screen
