// The moment at which a program that is being started is ready, told to the program that started it.
#pragma once

#include <chrono>
#include <cstdio>

namespace bench {

using Moment = std::chrono::steady_clock::time_point;

/// The clock counts alike in all programs.
inline long long nanosecondsOf(Moment moment)
{
    return std::chrono::duration_cast<std::chrono::nanoseconds>(moment.time_since_epoch()).count();
}

inline void tellReady()
{
    std::printf("%lld\n", nanosecondsOf(std::chrono::steady_clock::now()));
    std::fflush(stdout);
}

}  // namespace bench
