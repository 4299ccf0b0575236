// The message boxes of a scripted machine: answered from a queue, and kept for checking.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/machine.h"

namespace script {

/// A box that was shown, and how it was answered.
struct ShownBox {
    platform::MessageBoxRequest request;
    platform::Button answer = platform::buttonOk;
};

class ScriptedBoxes final : public platform::MessageBoxes {
 public:
    /// Hears of a question that got no answer, or one that it does not offer.
    using Complaint = std::function<void(const std::string& expected, const std::string& got)>;

    /// A box with one button is answered OK. A question takes the next answer; without a fitting one it complains and
    /// is answered No, or Cancel where there is no No.
    platform::Button show(const platform::MessageBoxRequest& request) override;

    void setComplaint(Complaint complaint) { complaint_ = std::move(complaint); }

    /// Queues an answer for the next questions. `line` is where the script gives it.
    void queueAnswer(platform::Button answer, int line);

    /// Lines of the answers that no question took.
    std::vector<int> linesOfAnswersLeft() const;

    /// All boxes since the machine was made, oldest first.
    const std::vector<ShownBox>& all() const { return all_; }

    /// The oldest box not yet checked, which counts as checked from now on; nothing when none is left.
    std::optional<ShownBox> takeUnchecked();

    /// The same box, left unchecked; nullptr when none is left.
    const ShownBox* oldestUnchecked() const;

 private:
    struct QueuedAnswer {
        platform::Button answer;
        int line = 0;
    };

    platform::Button answerTo(const platform::MessageBoxRequest& request);
    void complain(const std::string& expected, const std::string& got) const;

    Complaint complaint_;
    std::deque<QueuedAnswer> answers_;
    std::vector<ShownBox> all_;
    std::size_t checked_ = 0;
};

/// Yes, No, OK or Cancel.
std::string_view buttonName(platform::Button button);

/// The button of that name, in any case of letters; nothing for other words.
std::optional<platform::Button> buttonNamed(std::string_view name);

/// A box in print: STYLE|TITLE|TEXT|ANSWER.
std::string boxText(const ShownBox& box);

}  // namespace script
