#include "desktop/machine_clock.h"

#include <QDateTime>

#include "base/runtime_error.h"
#include "desktop/deadline_sleep.h"

namespace desktop {

platform::LocalTime MachineClock::now() const
{
    const QDateTime local = QDateTime::currentDateTime();
    const std::chrono::year_month_day date{std::chrono::year{local.date().year()},
                                           std::chrono::month{static_cast<unsigned>(local.date().month())},
                                           std::chrono::day{static_cast<unsigned>(local.date().day())}};
    return std::chrono::local_days{date} + std::chrono::seconds{local.time().msecsSinceStartOfDay() / 1000};
}

std::chrono::milliseconds MachineClock::timeOfDay() const
{
    return std::chrono::milliseconds(QTime::currentTime().msecsSinceStartOfDay());
}

platform::MonotonicTime MachineClock::monotonic() const
{
    return std::chrono::steady_clock::now().time_since_epoch();
}

void MachineClock::sleepUntil(platform::MonotonicTime deadline)
{
    sleepUntilDeadline(std::chrono::steady_clock::time_point(deadline), programStops_);
    if (slept_) slept_();
    if (programStops_.stop_requested()) throw base::ProgramEnd{};
}

}  // namespace desktop
