// Sleeping to a point in time, as exactly as the system can.
#pragma once

#include <chrono>
#include <stop_token>

namespace desktop {

/// Sleeps until the steady clock reaches `deadline` or a stop is asked for, whichever comes first.
void sleepUntilDeadline(std::chrono::steady_clock::time_point deadline, const std::stop_token& stopped);

}  // namespace desktop
