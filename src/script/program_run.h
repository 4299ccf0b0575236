// The program under the hands of a script: its runs, what is done to it, and time going by around it.
//
// One thread does it all. What a statement does is handled to its end before the next statement; while a handler
// sleeps, the alarms of `after` go off, and what they do to the program waits in the queue until the handler serves
// its events or has ended.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "app/program.h"
#include "app/queue.h"
#include "script/step_failed.h"
#include "script/virtual_machine.h"

namespace script {

/// One movement of the operator: what it does to the machine at once, and the entry that it becomes when its turn
/// comes, which may fail.
struct Movement {
    std::function<app::QueueEntry()> entry;
    std::function<void()> atOnce = [] {};
};

/// The movements of one statement.
struct Input {
    int line = 0;
    std::deque<Movement> movements;
    bool begun = false;  ///< the program took the first of them
};

class ProgramRun final : private app::EntrySource {
 public:
    /// Hears of input out of the queue that could not be done: its line, and why.
    using Complaint = std::function<void(int line, const StepFailed& failure)>;

    /// `machine` outlives the run.
    ProgramRun(VirtualMachine& machine, Complaint complaint);
    ProgramRun(const ProgramRun&) = delete;
    ProgramRun& operator=(const ProgramRun&) = delete;
    ~ProgramRun() override;

    /// Starts the program. StepFailed when one runs.
    void start(const std::string& commandLine);

    /// Takes the program away, if one runs, and starts it. Inside a handler it throws, which ends the handler, and the
    /// program starts when all handlers are left.
    void restart(const std::string& commandLine);

    /// Takes the program away, if one runs. Not inside a handler.
    void kill();

    bool running() const { return program_ && program_->running(); }
    /// A program was started, and has ended by itself.
    bool ended() const { return program_ && !program_->running(); }
    /// The line whose input the program handles, out of the queue; 0 for none.
    int lineServed() const { return lineServed_; }

    /// Does these movements, each to the end of its handlers. Inside a handler they wait in the queue.
    /// StepFailed when no program runs, or one of them cannot be done.
    void perform(Input input);

    /// Lets time go by: timers tick and alarms go off in order.
    void wait(std::chrono::nanoseconds duration);

    /// Calls `alarm` when the clock has moved by `delay`. `line` is where the script asks for it.
    void after(std::chrono::nanoseconds delay, int line, std::function<void()> alarm);

    /// Lines of the alarms that did not go off, by their time.
    std::vector<int> linesOfAlarmsLeft() const;

 private:
    struct Alarm {
        int line = 0;
        std::function<void()> goOff;
    };

    std::optional<app::QueueEntry> poll() override;
    void sleepUntil(platform::MonotonicTime deadline);
    void alarmsUntil(platform::MonotonicTime time);
    void nextAlarm();
    std::optional<platform::MonotonicTime> dueTick() const;
    void settle();
    void dropQueue();
    template <typename Work>
    void inHandler(Work&& work);

    VirtualMachine& machine_;
    Complaint complaint_;
    std::optional<app::Program> program_;
    int runs_ = 0;
    std::deque<Input> queue_;
    std::multimap<platform::MonotonicTime, Alarm> alarms_;
    bool handling_ = false;
    platform::MonotonicTime handlerBegan_{};
    bool overran_ = false;
    std::optional<std::string> restartWith_;
    int lineServed_ = 0;
};

/// A handler did not end: the script cannot go on.
struct ScriptOver {
    StepFailed failure;
};

}  // namespace script
