#include <pthread.h>
#include <sched.h>

#include "desktop/keying_priority.h"
#if defined(__linux__)
#include <sys/prctl.h>
#endif

namespace desktop {

KeyingPriority::KeyingPriority()
{
    sched_param parameters{};
    if (pthread_getschedparam(pthread_self(), &policyBefore_, &parameters) != 0) return;
    priorityBefore_ = parameters.sched_priority;
    int policy = SCHED_RR;
#if defined(__linux__)
    // What this thread starts meanwhile does not hurry.
    policy |= SCHED_RESET_ON_FORK;
#endif
    parameters.sched_priority = sched_get_priority_min(SCHED_RR);
    raised_ = pthread_setschedparam(pthread_self(), policy, &parameters) == 0;
}

KeyingPriority::~KeyingPriority()
{
    if (!raised_) return;
    sched_param parameters{};
    parameters.sched_priority = priorityBefore_;
    pthread_setschedparam(pthread_self(), policyBefore_, &parameters);
}

void sharpenTimers()
{
#if defined(__linux__)
    constexpr unsigned long nanoseconds = 1;
    prctl(PR_SET_TIMERSLACK, nanoseconds, 0, 0, 0);
#endif
}

}  // namespace desktop
