// A thread that keys the transmitter comes before the others.
#pragma once

namespace desktop {

/// While it lives, the thread that made it is woken on time even when the computer is busy, as far as the system lets
/// this user ask for that; where it does not, everything goes on as usual. To be destroyed on the same thread.
class KeyingPriority {
 public:
    KeyingPriority();
    ~KeyingPriority();
    KeyingPriority(const KeyingPriority&) = delete;
    KeyingPriority& operator=(const KeyingPriority&) = delete;

 private:
    int policyBefore_ = 0;
    int priorityBefore_ = 0;
    bool raised_ = false;
};

/// Makes the timers of the calling thread as exact as the system can.
void sharpenTimers();

}  // namespace desktop
