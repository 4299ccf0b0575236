// How far long work in the middle of a handler has come, for whoever looks from another thread. Telling it costs next
// to nothing and changes nothing: where nobody looks, as under a script, it is told to nobody.
#pragma once

#include <atomic>
#include <optional>
#include <string>

namespace platform {

/// What another thread sees of the work.
struct WorkSeen {
    std::string what;
    long done = 0;
    long total = 0;  ///< 0 when nobody knows how much there is
};

/// Work that may take its time, from here to the end of the block. Work begun inside it is seen in its place until that
/// is over. One thread at a time works.
class LongWork {
 public:
    /// `what` is a word or two for the operator, which stay where they are: "Export". An empty one keeps the work from
    /// being shown. `total` counts the steps, 0 when nobody knows.
    explicit LongWork(const char* what, long total = 0);
    LongWork(const LongWork&) = delete;
    LongWork& operator=(const LongWork&) = delete;
    ~LongWork();

    /// So many steps are behind us.
    void done(long steps) { done_.store(steps, std::memory_order_relaxed); }

 private:
    friend std::optional<WorkSeen> presentWork();

    const char* what_;
    long total_;
    std::atomic<long> done_ = 0;
    LongWork* around_;  ///< nullptr when there is none
};

/// The innermost work that goes on, nothing when none does. From any thread.
std::optional<WorkSeen> presentWork();

}  // namespace platform
