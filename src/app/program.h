// One run of the program, from its start to its end. Every run begins with a fresh everything.
#pragma once

#include <optional>
#include <vector>

#include "app/engine.h"
#include "app/queue.h"
#include "platform/machine.h"

namespace app {

/// The three forms.
std::vector<screen::Form*> forms();

class Program {
 public:
    /// Makes the run state and the forms fresh and stands them on `machine`. One program at a time.
    /// `source` gives the entries that are served inside handlers; `sink` may be nullptr.
    Program(platform::Machine& machine, EntrySource& source, PictureSink* sink);

    /// Takes everything away at once, as a kill would: no procedure of the program runs any more.
    ~Program();

    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// Loads the first page. From then on the program waits for entries.
    void start();

    /// Runs one entry to its end. Does nothing when the program has ended.
    void handle(const QueueEntry& entry);

    /// Runs the timers that are due.
    void tick();

    /// Shows the present state in the middle of a handler, as before a message box opens.
    void publish();

    /// When the next timer is due, nothing when none runs.
    std::optional<platform::MonotonicTime> nextTick() const { return engine_.nextTick(); }

    /// False before start() and after the program has ended.
    bool running() const { return running_; }

 private:
    template <typename Work>
    void untilEnd(Work&& work);

    Engine engine_;
    bool running_ = false;
};

}  // namespace app
