#include "script/machine_record.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <iterator>

namespace script {

void MachineRecord::begin(platform::MonotonicTime now)
{
    if (!start_) start_ = now;
}

std::string MachineRecord::print(const TimedEvent& event) const
{
    const std::chrono::duration<double, std::milli> sinceStart = event.at - start_.value_or(platform::MonotonicTime{});
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "%.3f ", sinceStart.count());
    return text.data() + event.what;
}

std::vector<std::string> MachineRecord::takeSounds()
{
    std::vector<std::string> taken;
    for (; soundsTaken_ < sounds.size(); ++soundsTaken_)
        taken.push_back(sounds[soundsTaken_].what);
    return taken;
}

std::vector<TimedEvent> MachineRecord::takeMessages()
{
    const auto from = serial.begin() + static_cast<std::ptrdiff_t>(serialTaken_);
    const auto last = std::find_if(serial.rbegin(), std::make_reverse_iterator(from),
                                   [](const TimedEvent& event) { return event.what == "close"; });
    serialTaken_ = static_cast<std::size_t>(last.base() - serial.begin());
    return {from, last.base()};
}

}  // namespace script
