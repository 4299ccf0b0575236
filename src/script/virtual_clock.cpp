#include "script/virtual_clock.h"

#include <algorithm>

namespace script {

namespace {

constexpr platform::LocalTime calendarAtFirst =
    std::chrono::local_days(std::chrono::year(2026) / 1 / 1) + std::chrono::hours(12);

}  // namespace

VirtualClock::VirtualClock() : calendarAtStart_(calendarAtFirst)
{
}

platform::LocalTime VirtualClock::now() const
{
    return std::chrono::floor<std::chrono::seconds>(calendarAtStart_ + elapsed_);
}

std::chrono::milliseconds VirtualClock::timeOfDay() const
{
    const auto now = calendarAtStart_ + elapsed_;
    return std::chrono::floor<std::chrono::milliseconds>(now - std::chrono::floor<std::chrono::days>(now));
}

void VirtualClock::sleepUntil(platform::MonotonicTime deadline)
{
    if (sleeper_)
        sleeper_(deadline);
    else
        moveTo(deadline);
}

void VirtualClock::setCalendar(platform::LocalTime now)
{
    calendarAtStart_ = now - elapsed_;
}

void VirtualClock::moveTo(platform::MonotonicTime time)
{
    elapsed_ = std::max(elapsed_, time);
}

}  // namespace script
