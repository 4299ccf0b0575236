// The thread that the program lives on: it takes entries from the queue, one after the other, and runs its timers.
#pragma once

#include <functional>
#include <thread>

#include "app/picture.h"
#include "app/program.h"
#include "desktop/entry_queue.h"
#include "platform/machine.h"

namespace desktop {

class ProgramThread {
 public:
    /// All arguments outlive the thread. `ended` is called on it once the program has ended.
    ProgramThread(EntryQueue& queue, app::PictureSink& sink, std::function<void()> ended);

    /// Takes the program away as a kill would, and waits until it is gone.
    ~ProgramThread();

    ProgramThread(const ProgramThread&) = delete;
    ProgramThread& operator=(const ProgramThread&) = delete;

    /// Starts the program on `machine`. Once.
    void start(platform::Machine& machine);

    /// Shows the present state in the middle of a handler. Program thread only.
    void publish();

 private:
    void run(platform::Machine& machine);

    EntryQueue& queue_;
    app::PictureSink& sink_;
    std::function<void()> ended_;
    app::Program* program_ = nullptr;
    std::thread thread_;
};

}  // namespace desktop
