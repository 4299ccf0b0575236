#include "screen/editing.h"

#include <algorithm>

#include "base/text.h"
#include "platform/machine.h"

namespace screen {

namespace {

constexpr std::size_t longestHistory = 200;

std::size_t caretOf(const TextBox& box)
{
    return box.caretAtSelectionStart ? box.SelStart : box.SelStart + box.SelLength;
}

void remember(TextBox& box)
{
    if (box.typingHistory.size() == longestHistory) box.typingHistory.erase(box.typingHistory.begin());
    box.typingHistory.push_back({box.Text.get(), caretOf(box)});
}

/// Puts `text` in place of the characters from `from` to `to`, with the caret behind it.
void replaceRange(TextBox& box, std::size_t from, std::size_t to, std::u32string_view text)
{
    std::u32string characters = base::toCharacters(box.Text.get());
    to = std::min(to, characters.size());
    from = std::min(from, to);
    characters.replace(from, to - from, text);
    box.Text.edit(base::fromCharacters(characters));
    box.SelStart = from + text.size();
    box.SelLength = 0;
    box.caretAtSelectionStart = false;
}

std::string selectedText(const TextBox& box)
{
    return base::mid(box.Text.get(), box.SelStart + 1, box.SelLength);
}

void eraseSelectionOr(TextBox& box, std::size_t from, std::size_t to)
{
    const bool selection = box.SelLength > 0;
    if (!selection && from == to) return;
    remember(box);
    if (selection)
        replaceRange(box, box.SelStart, box.SelStart + box.SelLength, {});
    else
        replaceRange(box, from, to, {});
}

void undoTyping(TextBox& box)
{
    if (box.typingHistory.empty()) return;
    const TypingState state = box.typingHistory.back();
    box.typingHistory.pop_back();
    box.Text.edit(state.text);
    box.SelStart = state.caret;
    box.SelLength = 0;
}

void editWithControlKey(TextBox& box, int code)
{
    switch (code) {
        case 'A':
            box.SelStart = 0;
            box.SelLength = base::length(box.Text.get());
            box.caretAtSelectionStart = false;
            break;
        case 'C':
            if (box.SelLength > 0) platform::machine().clipboard.setText(selectedText(box));
            break;
        case 'X':
            if (box.SelLength == 0) break;
            platform::machine().clipboard.setText(selectedText(box));
            eraseSelectionOr(box, 0, 0);
            break;
        case 'Z':
            undoTyping(box);
            break;
        default:
            break;
    }
}

/// Where the caret goes by Left or Right: with a selection and no Shift, to that end of it.
std::size_t step(const TextBox& box, bool right, bool shift)
{
    if (box.SelLength > 0 && !shift) return right ? box.SelStart + box.SelLength : box.SelStart;
    const std::size_t caret = caretOf(box);
    if (right) return std::min(caret + 1, base::length(box.Text.get()));
    return caret == 0 ? 0 : caret - 1;
}

}  // namespace

void typeCharacter(TextBox& box, char32_t character)
{
    remember(box);
    replaceRange(box, box.SelStart, box.SelStart + box.SelLength, std::u32string_view(&character, 1));
}

void eraseBackwards(TextBox& box)
{
    const std::size_t caret = caretOf(box);
    eraseSelectionOr(box, caret == 0 ? 0 : caret - 1, caret);
}

std::string textAfterBackspace(const TextBox& box)
{
    const std::string& text = box.Text.get();
    if (box.SelLength > 0) return base::left(text, box.SelStart) + base::mid(text, box.SelStart + box.SelLength + 1);
    if (box.SelStart == 0) return text;
    return base::left(text, box.SelStart - 1) + base::mid(text, box.SelStart + 1);
}

void editWithKey(TextBox& box, const platform::Key& key)
{
    using namespace platform;
    if (key.ctrl) return editWithControlKey(box, key.code);
    switch (key.code) {
        case keyLeft:
            return placeCaret(box, step(box, false, key.shift), key.shift);
        case keyRight:
            return placeCaret(box, step(box, true, key.shift), key.shift);
        case keyHome:
            return placeCaret(box, 0, key.shift);
        case keyEnd:
            return placeCaret(box, base::length(box.Text.get()), key.shift);
        case keyDelete:
            return eraseSelectionOr(box, box.SelStart, std::min(box.SelStart + 1, base::length(box.Text.get())));
        default:
            return;
    }
}

void placeCaret(TextBox& box, std::size_t caret, bool extend)
{
    caret = std::min(caret, base::length(box.Text.get()));
    if (!extend) {
        box.SelStart = caret;
        box.SelLength = 0;
        box.caretAtSelectionStart = false;
        return;
    }
    const std::size_t fixedEnd = box.caretAtSelectionStart ? box.SelStart + box.SelLength : box.SelStart;
    box.SelStart = std::min(fixedEnd, caret);
    box.SelLength = std::max(fixedEnd, caret) - box.SelStart;
    box.caretAtSelectionStart = caret < fixedEnd;
}

}  // namespace screen
