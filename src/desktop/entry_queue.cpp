#include "desktop/entry_queue.h"

#include <algorithm>

#include "base/runtime_error.h"

namespace desktop {

namespace {

using Clock = std::chrono::steady_clock;
constexpr Clock::rep nobodyIsBusy = -1;

bool isAnswer(const app::QueueEntry& entry)
{
    return std::holds_alternative<app::BoxAnswered>(entry);
}

/// A thumb that was dragged on before the program looked where it was: only its newest place counts.
bool isSameDrag(const app::QueueEntry& before, const app::QueueEntry& now)
{
    const auto* const first = std::get_if<app::GridDragged>(&before);
    const auto* const second = std::get_if<app::GridDragged>(&now);
    return first != nullptr && second != nullptr && first->control == second->control;
}

}  // namespace

void EntryQueue::post(app::QueueEntry entry)
{
    {
        const std::lock_guard lock(mutex_);
        if (!entries_.empty() && isSameDrag(entries_.back(), entry))
            entries_.back() = std::move(entry);
        else
            entries_.push_back(std::move(entry));
    }
    changed_.notify_one();
}

std::optional<app::QueueEntry> EntryQueue::poll()
{
    noteRest();
    const std::lock_guard lock(mutex_);
    if (stopped_) throw base::ProgramEnd{};
    if (entries_.empty()) return std::nullopt;
    app::QueueEntry entry = std::move(entries_.front());
    entries_.pop_front();
    return entry;
}

std::optional<app::QueueEntry> EntryQueue::waitUntil(std::optional<platform::MonotonicTime> deadline)
{
    std::unique_lock lock(mutex_);
    const auto ready = [this] { return stopped_ || !entries_.empty(); };
    noteWaiting(Waiting::forEntry);
    if (deadline)
        changed_.wait_until(lock, std::chrono::steady_clock::time_point(*deadline), ready);
    else
        changed_.wait(lock, ready);
    noteWaiting(Waiting::no);
    if (stopped_ || entries_.empty()) return std::nullopt;
    app::QueueEntry entry = std::move(entries_.front());
    entries_.pop_front();
    return entry;
}

bool EntryQueue::answered() const
{
    return std::any_of(entries_.begin(), entries_.end(), isAnswer);
}

platform::Button EntryQueue::waitForAnswer()
{
    std::unique_lock lock(mutex_);
    noteWaiting(Waiting::forAnswer);
    changed_.wait(lock, [this] { return stopped_ || answered(); });
    noteWaiting(Waiting::no);
    if (stopped_) throw base::ProgramEnd{};
    const auto answer = std::find_if(entries_.begin(), entries_.end(), isAnswer);
    const platform::Button button = std::get<app::BoxAnswered>(*answer).button;
    entries_.erase(answer);
    return button;
}

void EntryQueue::stop()
{
    {
        const std::lock_guard lock(mutex_);
        stopped_ = true;
    }
    changed_.notify_all();
    stopping_.request_stop();
}

bool EntryQueue::stopped() const
{
    const std::lock_guard lock(mutex_);
    return stopped_;
}

void EntryQueue::noteWaiting(Waiting what)
{
    waiting_ = what;
    if (what == Waiting::no)
        noteRest();
    else
        busySince_ = nobodyIsBusy;
}

void EntryQueue::noteRest()
{
    busySince_ = Clock::now().time_since_epoch().count();
}

std::chrono::nanoseconds EntryQueue::busyFor() const
{
    const Clock::rep since = busySince_;
    return since == nobodyIsBusy ? Clock::duration::zero() : Clock::now().time_since_epoch() - Clock::duration(since);
}

bool EntryQueue::idle() const
{
    const std::lock_guard lock(mutex_);
    if (waiting_ == Waiting::forEntry) return entries_.empty();
    return waiting_ == Waiting::forAnswer && !answered();
}

bool EntryQueue::waitsForEntry() const
{
    const std::lock_guard lock(mutex_);
    return waiting_ == Waiting::forEntry && entries_.empty();
}

}  // namespace desktop
