// What happened on a scripted machine, in order, for checks and for print.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/machine.h"

namespace script {

/// Something that happened at a moment.
struct TimedEvent {
    platform::MonotonicTime at{};
    std::string what;
};

class MachineRecord {
 public:
    std::vector<TimedEvent> serial;    ///< "open N", "RTS on", "DTR off", "close"
    std::vector<TimedEvent> sounds;    ///< "F1.wav", "F1.wav missing"
    std::vector<TimedEvent> help;      ///< the context number
    std::vector<std::string> printed;  ///< "PAGE|LINE|COLUMN|FONT|SIZE|bold|TEXT", and "end" for a document
    std::vector<std::string> notices;

    /// The first start of a program: from then on moments are counted. Later calls do nothing.
    void begin(platform::MonotonicTime now);

    /// An event in print: milliseconds since the first start with 3 decimals, and what happened.
    std::string print(const TimedEvent& event) const;

    /// Sounds played since the last call.
    std::vector<std::string> takeSounds();

    /// Changes of the serial lines since the last call, up to the end of the last message that is over.
    std::vector<TimedEvent> takeMessages();

 private:
    std::optional<platform::MonotonicTime> start_;
    std::size_t soundsTaken_ = 0;
    std::size_t serialTaken_ = 0;
};

}  // namespace script
