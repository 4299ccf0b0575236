#include <condition_variable>
#include <mutex>

#include "desktop/deadline_sleep.h"

namespace desktop {

void sleepUntilDeadline(std::chrono::steady_clock::time_point deadline, const std::stop_token& stopped)
{
    // Nobody else knows these two, so that nothing but a stop comes in between.
    std::mutex mutex;
    std::condition_variable_any never;
    std::unique_lock lock(mutex);
    never.wait_until(lock, stopped, deadline, [] { return false; });
}

}  // namespace desktop
