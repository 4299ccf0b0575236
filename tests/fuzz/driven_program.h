// The whole program under the hands of a fuzzer: virtual devices, virtual time, and somebody who looks on.
//
// It works as a scripted run does, with two differences that a fuzzer needs: a sleep of the program takes at least some
// milliseconds, as on a busy computer, so that an hour of automatic calling costs little; and a handler that goes on
// for too long is left, since automatic calling is endless by nature.
#pragma once

#include <chrono>
#include <deque>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "app/program.h"
#include "script/program_run.h"
#include "script/virtual_machine.h"

namespace fuzz {

/// Hears of what happens to the program, and throws when something should not have.
class Onlooker {
 public:
    virtual ~Onlooker() = default;
    /// The program takes an entry next.
    virtual void entryComes(const app::QueueEntry& entry) = 0;
    /// The program waits for what comes next; in the middle of a handler when not `atRest`.
    virtual void programWaits(bool atRest) = 0;
    /// A box is answered, and goes.
    virtual void boxAnswered(const script::ShownBox& box) = 0;
    /// The program came to its end, or was killed; the next one begins with everything fresh.
    virtual void programIsGone(bool killed) = 0;
    /// What the window would show.
    virtual void pictureComes(const app::Picture& picture) = 0;
};

class DrivenProgram final : private app::EntrySource, private app::PictureSink, private platform::MessageBoxes {
 public:
    /// The folder of the program is there. With a `window` there are pictures. The onlooker outlives this.
    DrivenProgram(const std::filesystem::path& folder, bool window, Onlooker& onlooker);
    DrivenProgram(const DrivenProgram&) = delete;
    DrivenProgram& operator=(const DrivenProgram&) = delete;
    ~DrivenProgram() override;

    script::VirtualMachine& machine() { return machine_; }
    const script::VirtualMachine& machine() const { return machine_; }
    bool running() const { return program_ && program_->running(); }
    /// A handler did not end in its time: nothing is done any more.
    bool tired() const { return tired_; }
    /// A handler of the program runs.
    bool handling() const { return handling_; }

    /// Starts the program. Does nothing while one runs.
    void start(const std::string& commandLine);
    /// The program is taken away, as by a power cut, and started anew.
    void restart(const std::string& commandLine);
    /// Takes the program away. Not inside a handler.
    void kill();
    /// Does these movements; inside a handler they wait in the queue. StepFailed when one cannot be done.
    void perform(script::Input input);
    /// Lets time go by.
    void wait(std::chrono::nanoseconds duration);
    /// Calls `alarm` when the clock has moved by `delay`, in the middle of a handler too.
    void after(std::chrono::nanoseconds delay, std::function<void()> alarm);

 private:
    std::optional<app::QueueEntry> poll() override;
    void publish(std::shared_ptr<const app::Picture> picture) override;
    platform::Button show(const platform::MessageBoxRequest& request) override;
    void sleepUntil(platform::MonotonicTime deadline);
    void nextAlarm();
    void settle();
    void take(const app::QueueEntry& entry);
    template <typename Work>
    void inHandler(Work&& work);

    script::VirtualMachine machine_;
    Onlooker& onlooker_;
    bool window_;
    platform::Machine drivers_;
    std::optional<app::Program> program_;
    int runs_ = 0;
    std::deque<script::Movement> queue_;
    std::multimap<platform::MonotonicTime, std::function<void()>> alarms_;
    bool handling_ = false;
    bool tired_ = false;
    platform::MonotonicTime handlerBegan_{};
    platform::MonotonicTime ticked_{-1};
    std::optional<std::string> restartWith_;
};

}  // namespace fuzz
