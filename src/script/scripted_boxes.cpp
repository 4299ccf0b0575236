#include "script/scripted_boxes.h"

#include <algorithm>
#include <array>

#include "base/text.h"
#include "script/words.h"

namespace script {

using platform::Button;

namespace {

struct ButtonWord {
    Button button;
    std::string_view name;
};

constexpr std::array buttonWords = {
    ButtonWord{platform::buttonOk, "OK"},
    ButtonWord{platform::buttonCancel, "Cancel"},
    ButtonWord{platform::buttonYes, "Yes"},
    ButtonWord{platform::buttonNo, "No"},
};

constexpr int buttonCodes = 7;

std::vector<Button> buttonsOf(int style)
{
    switch (style & buttonCodes) {
        case 1:
            return {platform::buttonOk, platform::buttonCancel};
        case 3:
            return {platform::buttonYes, platform::buttonNo, platform::buttonCancel};
        case 4:
            return {platform::buttonYes, platform::buttonNo};
        default:
            return {platform::buttonOk};
    }
}

bool offers(const std::vector<Button>& buttons, Button button)
{
    return std::find(buttons.begin(), buttons.end(), button) != buttons.end();
}

std::string namesOf(const std::vector<Button>& buttons)
{
    std::string names;
    for (const Button button : buttons) {
        if (!names.empty()) names += " or ";
        names += buttonName(button);
    }
    return names;
}

}  // namespace

Button ScriptedBoxes::show(const platform::MessageBoxRequest& request)
{
    const Button answer = answerTo(request);
    all_.push_back({request, answer});
    return answer;
}

Button ScriptedBoxes::answerTo(const platform::MessageBoxRequest& request)
{
    const std::vector<Button> buttons = buttonsOf(request.style);
    if (buttons.size() == 1) return buttons.front();
    const Button refusal = offers(buttons, platform::buttonNo) ? platform::buttonNo : platform::buttonCancel;
    const std::string expected = "an answer " + namesOf(buttons) + " to " + inQuotes(request.text);
    if (answers_.empty()) {
        complain(expected, "none");
        return refusal;
    }
    const Button answer = answers_.front().answer;
    answers_.pop_front();
    if (offers(buttons, answer)) return answer;
    complain(expected, std::string(buttonName(answer)));
    return refusal;
}

void ScriptedBoxes::complain(const std::string& expected, const std::string& got) const
{
    if (complaint_) complaint_(expected, got);
}

void ScriptedBoxes::queueAnswer(Button answer, int line)
{
    answers_.push_back({answer, line});
}

std::vector<int> ScriptedBoxes::linesOfAnswersLeft() const
{
    std::vector<int> lines;
    for (const QueuedAnswer& answer : answers_)
        lines.push_back(answer.line);
    return lines;
}

std::optional<ShownBox> ScriptedBoxes::takeUnchecked()
{
    const ShownBox* box = oldestUnchecked();
    if (box == nullptr) return std::nullopt;
    ++checked_;
    return *box;
}

const ShownBox* ScriptedBoxes::oldestUnchecked() const
{
    return checked_ < all_.size() ? &all_[checked_] : nullptr;
}

std::string_view buttonName(Button button)
{
    return std::find_if(buttonWords.begin(), buttonWords.end(),
                        [&](const ButtonWord& word) { return word.button == button; })
        ->name;
}

std::optional<Button> buttonNamed(std::string_view name)
{
    const auto* const found = std::find_if(buttonWords.begin(), buttonWords.end(), [&](const ButtonWord& word) {
        return base::equalIgnoringCase(word.name, name);
    });
    if (found == buttonWords.end()) return std::nullopt;
    return found->button;
}

std::string boxText(const ShownBox& box)
{
    return std::to_string(box.request.style) + "|" + box.request.title + "|" + box.request.text + "|" +
           std::string(buttonName(box.answer));
}

}  // namespace script
