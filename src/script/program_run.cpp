#include "script/program_run.h"

#include <algorithm>
#include <utility>

namespace script {

using platform::MonotonicTime;

namespace {

constexpr std::chrono::hours longestHandler{24};

/// Leaves all handlers: the program is taken away under them. Not derived from std::exception, as no trap may hold it.
struct HandlersLeft {};

}  // namespace

ProgramRun::ProgramRun(VirtualMachine& machine, Complaint complaint)
    : machine_(machine), complaint_(std::move(complaint))
{
    machine_.clock.setSleeper([this](MonotonicTime deadline) { sleepUntil(deadline); });
}

ProgramRun::~ProgramRun()
{
    machine_.clock.setSleeper({});
}

/// Everything of the program runs in here: an unwinding that takes it away ends here, and what it was for follows.
template <typename Work>
void ProgramRun::inHandler(Work&& work)
{
    struct Handling {
        bool& flag;
        explicit Handling(bool& handling) : flag(handling) { flag = true; }
        Handling(const Handling&) = delete;
        Handling& operator=(const Handling&) = delete;
        ~Handling() { flag = false; }
    };
    handlerBegan_ = machine_.clock.monotonic();
    try {
        const Handling handling(handling_);
        std::forward<Work>(work)();
    } catch (const HandlersLeft&) {
        kill();
    }
    if (std::exchange(overran_, false)) throw ScriptOver{{"the handler to end within 24 hours", "one that goes on"}};
    if (const auto commandLine = std::exchange(restartWith_, std::nullopt)) start(*commandLine);
}

void ProgramRun::start(const std::string& commandLine)
{
    if (running()) throw StepFailed{"no running program", "one"};
    kill();
    machine_.beginRun(commandLine);
    ++runs_;
    program_.emplace(machine_.drivers(), static_cast<app::EntrySource&>(*this), nullptr);
    inHandler([this] { program_->start(); });
    settle();
}

void ProgramRun::restart(const std::string& commandLine)
{
    if (handling_) {
        restartWith_ = commandLine;
        throw HandlersLeft{};
    }
    kill();
    start(commandLine);
}

void ProgramRun::kill()
{
    program_.reset();
    // What the system does with the port of a program that is gone.
    machine_.serialPort.close();
    dropQueue();
}

void ProgramRun::perform(Input input)
{
    if (!running()) throw StepFailed{"a running program", "none"};
    if (handling_) {
        for (const Movement& movement : input.movements)
            movement.atOnce();
        queue_.push_back(std::move(input));
        return;
    }
    const int run = runs_;
    for (const Movement& movement : input.movements) {
        // What is left of a statement when the program ends goes nowhere, as keys do.
        if (!running() || run != runs_) return;
        const app::QueueEntry entry = movement.entry();
        movement.atOnce();
        inHandler([&] { program_->handle(entry); });
        settle();
    }
}

std::optional<app::QueueEntry> ProgramRun::poll()
{
    while (!queue_.empty()) {
        Input& input = queue_.front();
        if (input.movements.empty()) {
            queue_.pop_front();
            continue;
        }
        const Movement movement = std::move(input.movements.front());
        input.movements.pop_front();
        input.begun = true;
        lineServed_ = input.line;
        try {
            return movement.entry();
        } catch (const StepFailed& failure) {
            complaint_(lineServed_, failure);
            queue_.pop_front();
        }
    }
    lineServed_ = 0;
    return std::nullopt;
}

/// Between two events: what waits in the queue is handled, and the timers tick.
void ProgramRun::settle()
{
    while (running()) {
        const std::optional<app::QueueEntry> entry = poll();
        if (!entry) break;
        inHandler([&] { program_->handle(*entry); });
    }
    lineServed_ = 0;
    if (running()) inHandler([this] { program_->tick(); });
    if (running() && !queue_.empty()) return settle();
    if (!running()) dropQueue();
}

void ProgramRun::dropQueue()
{
    for (const Input& input : std::exchange(queue_, {}))
        if (!input.begun) complaint_(input.line, {"a running program", "none"});
}

void ProgramRun::after(std::chrono::nanoseconds delay, int line, std::function<void()> alarm)
{
    alarms_.emplace(machine_.clock.monotonic() + delay, Alarm{line, std::move(alarm)});
}

void ProgramRun::nextAlarm()
{
    const auto first = alarms_.begin();
    const Alarm alarm = std::move(first->second);
    machine_.clock.moveTo(first->first);
    alarms_.erase(first);
    alarm.goOff();
}

void ProgramRun::alarmsUntil(MonotonicTime time)
{
    while (!alarms_.empty() && alarms_.begin()->first <= time)
        nextAlarm();
}

void ProgramRun::sleepUntil(MonotonicTime deadline)
{
    const MonotonicTime last = handling_ ? handlerBegan_ + longestHandler : MonotonicTime::max();
    const MonotonicTime until = std::min(deadline, last);
    alarmsUntil(std::max(until, machine_.clock.monotonic()));
    machine_.clock.moveTo(until);
    if (deadline <= last) return;
    overran_ = true;
    throw HandlersLeft{};
}

std::optional<MonotonicTime> ProgramRun::dueTick() const
{
    if (!running()) return std::nullopt;
    const std::optional<MonotonicTime> tick = program_->nextTick();
    if (!tick) return std::nullopt;
    return std::max(*tick, machine_.clock.monotonic());
}

void ProgramRun::wait(std::chrono::nanoseconds duration)
{
    const MonotonicTime end = machine_.clock.monotonic() + duration;
    for (;;) {
        const std::optional<MonotonicTime> tick = dueTick();
        const bool alarmIsDue = !alarms_.empty() && alarms_.begin()->first <= end;
        const bool tickIsDue = tick && *tick <= end && (!alarmIsDue || *tick <= alarms_.begin()->first);
        if (tickIsDue) {
            machine_.clock.moveTo(*tick);
            settle();
        } else if (alarmIsDue) {
            nextAlarm();
            settle();
        } else {
            return machine_.clock.moveTo(end);
        }
    }
}

std::vector<int> ProgramRun::linesOfAlarmsLeft() const
{
    std::vector<int> lines;
    for (const auto& [time, alarm] : alarms_)
        lines.push_back(alarm.line);
    return lines;
}

}  // namespace script
