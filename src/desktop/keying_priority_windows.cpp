#include <windows.h>
// Behind the header that it needs.
#include <mmsystem.h>

#include "desktop/keying_priority.h"

namespace desktop {

namespace {

constexpr UINT timerMilliseconds = 1;

}  // namespace

KeyingPriority::KeyingPriority() : priorityBefore_(GetThreadPriority(GetCurrentThread()))
{
    raised_ = SetThreadPriority(GetCurrentThread(), THREAD_PRIORITY_TIME_CRITICAL) != 0;
    timeBeginPeriod(timerMilliseconds);
}

KeyingPriority::~KeyingPriority()
{
    timeEndPeriod(timerMilliseconds);
    if (raised_) SetThreadPriority(GetCurrentThread(), priorityBefore_);
}

void sharpenTimers()
{
    // The system sharpens timers for a whole process, and each costs the battery of a notebook: only while keying.
}

}  // namespace desktop
