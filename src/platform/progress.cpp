#include "platform/progress.h"

#include <mutex>

namespace platform {

namespace {

/// The innermost work. Whoever looks at it holds the mutex, so that it does not go away meanwhile.
struct Board {
    std::mutex mutex;
    LongWork* innermost = nullptr;
};

Board& board()
{
    static Board board;
    return board;
}

}  // namespace

LongWork::LongWork(const char* what, long total) : what_(what), total_(total)
{
    const std::lock_guard lock(board().mutex);
    around_ = board().innermost;
    board().innermost = this;
}

LongWork::~LongWork()
{
    const std::lock_guard lock(board().mutex);
    board().innermost = around_;
}

std::optional<WorkSeen> presentWork()
{
    const std::lock_guard lock(board().mutex);
    const LongWork* work = board().innermost;
    if (work == nullptr) return std::nullopt;
    return WorkSeen{work->what_, work->done_.load(std::memory_order_relaxed), work->total_};
}

}  // namespace platform
