#include "script/keyed_text.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "base/number.h"
#include "keyer/morse.h"
#include "script/step_failed.h"

namespace script {

namespace {

using std::chrono::milliseconds;
using std::chrono::nanoseconds;

/// The times at one speed.
struct Times {
    milliseconds dot;
    milliseconds dash;
    milliseconds letter;  ///< from the end of a letter to the next
    milliseconds blank;

    explicit Times(float wpm)
    {
        constexpr std::int16_t tickBase = 20;
        const keyer::TimeUnits units = keyer::timeUnits(wpm, tickBase);
        const auto charUnit = static_cast<float>(units.CharUnit * keyer::spacing);
        dot = keyer::wholeMilliseconds(keyer::elementTime(units.ElemUnit, 1));
        dash = keyer::wholeMilliseconds(keyer::elementTime(units.ElemUnit, 3));
        letter = dot + keyer::wholeMilliseconds(keyer::letterSpaceTime(charUnit, units.ElemUnit));
        blank = keyer::wholeMilliseconds(keyer::blankTime(units.ElemUnit));
    }

    /// How many blanks a time is, nothing when it is no whole number of them.
    std::optional<long> blanksIn(nanoseconds time) const
    {
        if (time.count() < 0 || time % blank != nanoseconds::zero()) return std::nullopt;
        return time / blank;
    }
};

char symbolOf(std::string_view code)
{
    const auto* const row = std::find_if(keyer::MorseTab.begin(), keyer::MorseTab.end(),
                                         [&](std::string_view each) { return each.substr(1) == code; });
    return row == keyer::MorseTab.end() ? '*' : **row;
}

std::string inMilliseconds(nanoseconds time)
{
    return std::to_string(std::chrono::duration<double, std::milli>(time).count()) + " ms";
}

/// One message, from transmitter on to transmitter off.
class Message {
 public:
    explicit Message(const Times& times) : times_(times) {}

    void begin(nanoseconds at) { lineChanged_ = at; }

    void keyDown(nanoseconds at)
    {
        const nanoseconds space = at - lineChanged_;
        lineChanged_ = at;
        if (!marked_) {
            const auto blanks = times_.blanksIn(space);
            if (!blanks) throw StepFailed{"a first mark at once", "one after " + inMilliseconds(space)};
            text_.append(static_cast<std::size_t>(*blanks), ' ');
        } else if (space != times_.dot) {
            const auto blanks = times_.blanksIn(space - times_.letter);
            if (!blanks) throw StepFailed{"a space that is keyed", inMilliseconds(space)};
            endLetter();
            text_.append(static_cast<std::size_t>(*blanks), ' ');
        }
        marked_ = true;
    }

    void keyUp(nanoseconds at)
    {
        const nanoseconds mark = at - lineChanged_;
        lineChanged_ = at;
        if (mark == times_.dot)
            code_ += '.';
        else if (mark == times_.dash)
            code_ += '-';
        else
            oddMark_ = mark;
    }

    /// The transmitter goes off behind the closing word space, or earlier when something ended the message.
    std::string end(nanoseconds at)
    {
        const nanoseconds space = at - lineChanged_;
        const bool endedEarly = space < times_.letter + times_.blank;
        const auto blanks = times_.blanksIn(space - times_.letter);
        if (marked_ && !endedEarly && !blanks) throw StepFailed{"a closing word space", inMilliseconds(space)};
        // The mark that was cut by the end of the message itself.
        if (oddMark_ && space == nanoseconds::zero()) oddMark_.reset();
        endLetter();
        if (marked_ && !endedEarly) text_.append(static_cast<std::size_t>(*blanks - 1), ' ');
        return marked_ ? text_ : std::string();
    }

 private:
    void endLetter()
    {
        if (oddMark_) throw StepFailed{"a dot or a dash", "a mark of " + inMilliseconds(*oddMark_)};
        if (!code_.empty()) text_ += symbolOf(code_);
        code_.clear();
    }

    const Times& times_;
    std::string text_;
    std::string code_;
    std::optional<nanoseconds> oddMark_;
    nanoseconds lineChanged_{};
    bool marked_ = false;
};

void add(std::string& texts, bool first, const std::string& text)
{
    if (!first) texts += ' ';
    texts += text;
}

}  // namespace

std::string keyedText(const std::vector<TimedEvent>& events, float wpm)
{
    const Times times(wpm);
    std::string texts;
    bool first = true;
    std::optional<Message> message;
    for (const TimedEvent& event : events) {
        if (event.what == "RTS on") message.emplace(times).begin(event.at);
        if (!message) continue;
        if (event.what == "DTR on") message->keyDown(event.at);
        if (event.what == "DTR off") message->keyUp(event.at);
        if (event.what != "RTS off" && event.what != "close") continue;
        const std::string text = message->end(event.at);
        if (!text.empty()) {
            add(texts, first, text);
            first = false;
        }
        message.reset();
    }
    return texts;
}

}  // namespace script
