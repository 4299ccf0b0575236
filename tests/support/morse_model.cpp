#include "support/morse_model.h"

#include <algorithm>
#include <chrono>

namespace test {

namespace {

using script::TimedEvent;

/// The nearest whole number to a fraction, the even one of two that are equally near.
long nearest(long numerator, long denominator)
{
    const long whole = numerator / denominator;
    const long twiceRest = 2 * (numerator % denominator);
    if (twiceRest == denominator) return whole + whole % 2;
    return twiceRest > denominator ? whole + 1 : whole;
}

/// The speed that stands for the spaces: slow ones are stretched.
long spacingSpeed(int wpm)
{
    if (wpm <= 9) return wpm - 3;
    if (wpm <= 11) return wpm - 2;
    if (wpm <= 12) return wpm - 1;
    return wpm;
}

long millisecondsBetween(const TimedEvent& earlier, const TimedEvent& later)
{
    return static_cast<long>(std::chrono::duration_cast<std::chrono::milliseconds>(later.at - earlier.at).count());
}

std::string trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

char symbolOf(const std::string& code)
{
    const auto* const row = std::find_if(std::begin(morseCodes), std::end(morseCodes),
                                         [&](const MorseCode& each) { return each.code == code; });
    return row == std::end(morseCodes) ? '*' : row->symbol;
}

std::string odd(long time)
{
    return "<" + std::to_string(time) + " ms>";
}

/// A pen on paper: time goes by, lines change.
class LineWriter {
 public:
    void change(const std::string& what) { log_.push_back(std::to_string(now_) + " " + what); }
    void pass(long milliseconds) { now_ += milliseconds; }
    LineLog take() { return std::move(log_); }

 private:
    long now_ = 0;
    LineLog log_;
};

/// What a listener has written down so far.
class Listener {
 public:
    explicit Listener(int wpm) : times_(morseTimes(wpm)) {}

    void mark(long time)
    {
        begun_ = true;
        if (time == times_.dot)
            code_ += '.';
        else if (time == times_.dash)
            code_ += '-';
        else
            text_ += odd(time);
    }

    void space(long time)
    {
        if (begun_ && time == times_.dot) return;
        const long behindLetter = begun_ ? times_.dot + times_.letter : 0;
        endLetter();
        const long rest = time - behindLetter;
        if (rest < 0 || rest % times_.blank != 0)
            text_ += odd(time);
        else
            text_ += std::string(static_cast<std::size_t>(rest / times_.blank), ' ');
    }

    /// Behind the last mark one blank is not of the text.
    std::string end(long time)
    {
        space(time);
        if (!text_.empty() && text_.back() == ' ') text_.pop_back();
        return text_;
    }

 private:
    void endLetter()
    {
        if (!code_.empty()) text_ += symbolOf(code_);
        code_.clear();
    }

    MorseTimes times_;
    bool begun_ = false;
    std::string code_;
    std::string text_;
};

}  // namespace

std::string_view codeOf(char symbol)
{
    for (const MorseCode& row : morseCodes)
        if (row.symbol == symbol) return row.code;
    return {};
}

MorseTimes morseTimes(int wpm)
{
    // A dot of 20 / wpm ticks; 18.2 ticks are a second, so a tick is 10000 / 182 ms.
    const long elements = std::max(wpm, 13);
    const long spaces = spacingSpeed(wpm);
    constexpr long tick = 10000;
    MorseTimes times;
    times.dot = nearest(20 * tick, 182 * elements);
    times.dash = nearest(60 * tick, 182 * elements);
    // 3 units of 1.4 times the width are 4.2 units, one of which has gone by.
    times.letter = nearest((84 * elements - 20 * spaces) * tick, 182 * spaces * elements);
    times.blank = nearest(80 * tick, 182 * elements);
    return times;
}

LineLog keyedLines(std::string_view text, int wpm, const StopSeen& stopSeen)
{
    const MorseTimes times = morseTimes(wpm);
    const std::string message = trimmed(text);
    LineWriter lines;
    lines.change("open 1");
    lines.change("RTS on");
    int element = 0;
    std::size_t last = 0;
    for (std::size_t place = 1; place <= message.size(); ++place) {
        // The same character once more: a stop key leads back to it.
        if (place == last) lines.pass(1);
        last = place;
        const char symbol = message[place - 1];
        const std::string_view code = codeOf(symbol);
        bool stopped = false;
        for (const char each : code) {
            stopped = stopSeen && stopSeen(element);
            ++element;
            if (stopped) break;
            lines.change("DTR on");
            lines.pass(each == '-' ? times.dash : times.dot);
            lines.change("DTR off");
            lines.pass(times.dot);
        }
        if (symbol == ' ') lines.pass(times.blank);
        if (stopped)
            place = 100;
        else if (!code.empty())
            lines.pass(times.letter);
    }
    lines.pass(times.blank);
    lines.change("RTS off");
    lines.change("close");
    return lines.take();
}

std::string heardText(const std::vector<TimedEvent>& lines, int wpm)
{
    Listener listener(wpm);
    const TimedEvent* last = nullptr;
    for (const TimedEvent& line : lines) {
        if (line.what == "DTR on") listener.space(millisecondsBetween(*last, line));
        if (line.what == "DTR off") listener.mark(millisecondsBetween(*last, line));
        if (line.what == "RTS off") return listener.end(millisecondsBetween(*last, line));
        last = &line;
    }
    return "<no end>";
}

LineLog logOf(const std::vector<TimedEvent>& lines)
{
    LineLog log;
    for (const TimedEvent& line : lines)
        log.push_back(std::to_string(millisecondsBetween(lines.front(), line)) + " " + line.what);
    return log;
}

}  // namespace test
