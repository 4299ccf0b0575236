#include "script/machine_record.h"

#include <array>
#include <cstdio>

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

}  // namespace script
