// What a listener writes down of a key line of this computer, whose times are never quite those of the code.
#pragma once

#include <chrono>
#include <string>
#include <vector>

#include "serial_adapter.h"
#include "support/morse_model.h"

namespace test {

inline char symbolOf(const std::string& code)
{
    for (const MorseCode& row : morseCodes)
        if (row.code == code) return row.symbol;
    return '*';
}

/// The text that was keyed at `wpm` words a minute, "*" for what nobody knows. That both lines rise by themselves when
/// a device is opened, until they are cleared, says nothing.
inline std::string heardOn(const std::vector<LineEvent>& events, int wpm)
{
    const std::chrono::milliseconds dot(morseTimes(wpm).dot);
    std::string text;
    std::string code;
    bool opening = false;
    bool transmitting = false;
    std::chrono::nanoseconds up{};
    std::chrono::nanoseconds down{};
    for (const LineEvent& event : events) {
        if (event.what == "open") opening = true;
        if (event.what == "RTS on") transmitting = !opening;
        if (event.what == "RTS off") transmitting = opening = false;
        if (event.what == "DTR on") {
            const auto gap = event.time - up;
            if (!code.empty() && gap > 2 * dot) {
                text += symbolOf(code);
                code.clear();
                if (gap > 6 * dot) text += ' ';
            }
            down = event.time;
        }
        if (event.what != "DTR off") continue;
        up = event.time;
        if (transmitting) code += event.time - down > 2 * dot ? '-' : '.';
    }
    return code.empty() ? text : text + symbolOf(code);
}

}  // namespace test
