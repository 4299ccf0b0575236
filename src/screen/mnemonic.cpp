#include "screen/mnemonic.h"

#include <algorithm>

#include "base/text.h"

namespace screen {

namespace {

bool opensMenu(const Control& entry)
{
    const auto& controls = entry.form.controls();
    return std::any_of(controls.begin(), controls.end(),
                       [&](const Control* control) { return control->container == &entry; });
}

bool hasLetter(const Control& control, char32_t letter)
{
    return control.seen() && control.enabled() && letter != 0 && mnemonicOf(control) == base::upper(letter);
}

/// The menu keeps its letters, also those that only open one.
bool standsInMenuBar(const Form& form, char32_t letter)
{
    const auto& controls = form.controls();
    return std::any_of(controls.begin(), controls.end(), [&](const Control* control) {
        return control->kind == Kind::menuEntry && control->container == nullptr && hasLetter(*control, letter);
    });
}

bool answersToMnemonic(const Control& control, char32_t letter)
{
    switch (control.kind) {
        case Kind::commandButton:
        case Kind::optionButton:
        case Kind::checkBox:
        case Kind::textBox:
        case Kind::listBox:
            return true;
        case Kind::frame:
            return !standsInMenuBar(control.form, letter) && firstStopIn(control) != nullptr;
        case Kind::menuEntry:
            return control.container == nullptr && !opensMenu(control);
        default:
            return false;
    }
}

/// Where several controls have one letter, the lowest rank goes first.
int rankOf(const Control& control)
{
    if (control.kind == Kind::menuEntry) return 0;
    return control.container != nullptr || control.kind == Kind::frame ? 1 : 2;
}

}  // namespace

const std::string& captionOf(const Control& control)
{
    static const std::string none;
    switch (control.kind) {
        case Kind::label:
            return static_cast<const Label&>(control).Caption;
        case Kind::commandButton:
            return static_cast<const CommandButton&>(control).Caption;
        case Kind::optionButton:
            return static_cast<const OptionButton&>(control).Caption;
        case Kind::checkBox:
            return static_cast<const CheckBox&>(control).Caption;
        case Kind::frame:
            return static_cast<const Frame&>(control).Caption;
        case Kind::menuEntry:
            return static_cast<const MenuEntry&>(control).Caption;
        default:
            return none;
    }
}

char32_t mnemonicOf(std::string_view caption)
{
    const std::size_t mark = caption.find('&');
    if (mark == std::string_view::npos || mark + 1 == caption.size()) return 0;
    return base::upper(base::characterAt(caption.substr(mark + 1), 1));
}

char32_t mnemonicOf(const Control& control)
{
    const char32_t marked = mnemonicOf(captionOf(control));
    return marked != 0 ? marked : control.accessKey;
}

std::string withoutMnemonic(std::string_view caption)
{
    std::string shown(caption);
    const std::size_t mark = shown.find('&');
    if (mark != std::string::npos) shown.erase(mark, 1);
    return shown;
}

std::string markedCaption(const Control& control)
{
    const std::string& caption = captionOf(control);
    if (control.accessKey == 0 || mnemonicOf(caption) != 0) return caption;
    std::u32string characters = base::toCharacters(caption);
    const auto letter = std::find_if(characters.begin(), characters.end(),
                                     [&](char32_t character) { return base::upper(character) == control.accessKey; });
    if (letter == characters.end()) return caption;
    characters.insert(letter, U'&');
    return base::fromCharacters(characters);
}

Control* controlWithMnemonic(const Form& form, char32_t letter)
{
    Control* found = nullptr;
    for (Control* control : form.controls()) {
        if (!hasLetter(*control, letter) || !answersToMnemonic(*control, letter)) continue;
        if (found == nullptr || rankOf(*control) < rankOf(*found)) found = control;
    }
    return found;
}

Control* firstStopIn(const Control& frame)
{
    const auto& controls = frame.form.controls();
    const auto found = std::find_if(controls.begin(), controls.end(), [&](const Control* control) {
        return control->container == &frame && control->canTakeFocus();
    });
    return found == controls.end() ? nullptr : *found;
}

}  // namespace screen
