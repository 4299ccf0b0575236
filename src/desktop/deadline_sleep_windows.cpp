#include <windows.h>

#include <array>

#include "desktop/deadline_sleep.h"
#include "desktop/windows_handle.h"

// Windows 10 has it since its version 1803; the headers of the compiler may be older.
#ifndef CREATE_WAITABLE_TIMER_HIGH_RESOLUTION
#define CREATE_WAITABLE_TIMER_HIGH_RESOLUTION 0x00000002
#endif

namespace desktop {

namespace {

/// A timer that is not bound to the ticks of the system, or where there is none such, one that is.
HANDLE makeTimer()
{
    const HANDLE fine = CreateWaitableTimerExW(nullptr, nullptr, CREATE_WAITABLE_TIMER_HIGH_RESOLUTION,
                                               TIMER_MODIFY_STATE | SYNCHRONIZE);
    return fine != nullptr ? fine : CreateWaitableTimerW(nullptr, FALSE, nullptr);
}

/// Negative: from now on, in units of 100 nanoseconds, rounded up.
LARGE_INTEGER fromNow(std::chrono::nanoseconds time)
{
    constexpr std::chrono::nanoseconds unit(100);
    LARGE_INTEGER due{};
    due.QuadPart = -((time + unit - std::chrono::nanoseconds(1)) / unit);
    return due;
}

}  // namespace

void sleepUntilDeadline(std::chrono::steady_clock::time_point deadline, const std::stop_token& stopped)
{
    const WindowsHandle timer(makeTimer());
    const WindowsHandle stop(CreateEventW(nullptr, TRUE, FALSE, nullptr));
    const std::stop_callback wake(stopped, [&stop] { SetEvent(stop.get()); });
    const std::array<HANDLE, 2> either{timer.get(), stop.get()};
    // The timer runs by another clock of the system, which may come a little early. The limit of the wait is for a
    // timer that cannot be set: the key may be down.
    for (auto now = std::chrono::steady_clock::now(); now < deadline && !stopped.stop_requested();
         now = std::chrono::steady_clock::now()) {
        const LARGE_INTEGER due = fromNow(deadline - now);
        SetWaitableTimer(timer.get(), &due, 0, nullptr, nullptr, FALSE);
        const auto limit = std::chrono::ceil<std::chrono::milliseconds>(deadline - now);
        WaitForMultipleObjects(static_cast<DWORD>(either.size()), either.data(), FALSE,
                               static_cast<DWORD>(limit.count()));
    }
}

}  // namespace desktop
