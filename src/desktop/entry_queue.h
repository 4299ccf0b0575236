// The queue between the window thread, which posts what happens, and the program thread, which handles it.
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <stop_token>

#include "app/queue.h"
#include "platform/machine.h"

namespace desktop {

class EntryQueue final : public app::EntrySource {
 public:
    /// Appends an entry; a step of a drag takes the place of the one before it that still waits. From any thread.
    void post(app::QueueEntry entry);

    /// The next entry if one waits. Throws ProgramEnd once the queue is stopped: whatever the program is in the middle
    /// of ends there. Program thread only, like the next two.
    std::optional<app::QueueEntry> poll() override;

    /// Waits for the next entry, at most until the monotonic clock reaches `deadline` if there is one. Nothing when
    /// that moment came first or the queue is stopped.
    std::optional<app::QueueEntry> waitUntil(std::optional<platform::MonotonicTime> deadline);

    /// Waits for the answer of the message box on the screen. Everything else that arrives stays in the queue, in its
    /// order. Throws ProgramEnd once the queue is stopped.
    platform::Button waitForAnswer();

    /// Ends all waiting, now and later. From any thread.
    void stop();
    bool stopped() const;
    /// For whatever waits elsewhere on the program thread: asked to stop when the queue is.
    std::stop_token stopToken() const { return stopping_.get_token(); }

    /// The program has just waited on purpose in the middle of a handler: it counts as busy only from now on. Program
    /// thread only.
    void noteRest();

    /// How long the program thread has been at work without a look into the queue and without a rest; zero when it
    /// waits. The start of the program counts from the making of the queue. From any thread.
    std::chrono::nanoseconds busyFor() const;

    /// True when the program thread waits and there is nothing that it could take. From any thread.
    bool idle() const;
    /// True when it waits for an entry and there is none. From any thread.
    bool waitsForEntry() const;

 private:
    enum class Waiting { no, forEntry, forAnswer };

    bool answered() const;
    void noteWaiting(Waiting what);

    mutable std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<app::QueueEntry> entries_;
    Waiting waiting_ = Waiting::no;
    bool stopped_ = false;
    std::atomic<std::chrono::steady_clock::rep> busySince_ =
        std::chrono::steady_clock::now().time_since_epoch().count();
    std::stop_source stopping_;
};

}  // namespace desktop
