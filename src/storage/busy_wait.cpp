#include "storage/busy_wait.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <numeric>
#include <thread>

#include "platform/progress.h"

namespace storage {

namespace {

using std::chrono::milliseconds;

/// Most locks are gone in a moment, so the first looks come soon after each other. The last pause is repeated.
constexpr std::array firstPauses = {1, 2, 5, 10, 15, 20, 25, 25, 25, 50, 50, 100};
/// How long another program may hold the file before it counts as locked.
constexpr int patienceMilliseconds = 2000;

/// The pause before look number `tries` (from 0), 0 when the patience is at its end.
int pauseBefore(int tries)
{
    const auto first = static_cast<int>(firstPauses.size());
    const int behindFirst = std::max(0, tries - first);
    const int waited = std::accumulate(firstPauses.begin(), firstPauses.begin() + std::min(tries, first), 0) +
                       behindFirst * firstPauses.back();
    const int pause = tries < first ? firstPauses.at(static_cast<std::size_t>(tries)) : firstPauses.back();
    return std::clamp(patienceMilliseconds - waited, 0, pause);
}

/// SQLite calls it for every look at a locked file; 0 gives the statement up.
int waitOnce(void*, int tries)
{
    const int pause = pauseBefore(tries);
    if (pause == 0) return 0;
    const platform::LongWork waiting("Waiting for the disk: another program holds the database");
    std::this_thread::sleep_for(milliseconds(pause));
    return 1;
}

}  // namespace

void waitForOtherPrograms(sqlite3* handle)
{
    sqlite3_busy_handler(handle, waitOnce, nullptr);
}

}  // namespace storage
