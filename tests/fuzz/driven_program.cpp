#include "fuzz/driven_program.h"

#include <algorithm>
#include <utility>

namespace fuzz {

using platform::MonotonicTime;

namespace {

/// A sleep takes no less: a turn of a waiting loop in the program asks for one millisecond.
constexpr std::chrono::milliseconds shortestSleep{25};
constexpr std::chrono::seconds longestLived{3};
/// What one handler may take.
constexpr std::chrono::seconds patience{90};

/// Leaves all handlers: the program is taken away under them. Not derived from std::exception, as no trap may hold it.
struct HandlersLeft {};

platform::Machine withBoxes(platform::MessageBoxes& boxes, platform::Machine& machine)
{
    return {boxes,          machine.notices,     machine.clock,   machine.keyState, machine.clipboard,
            machine.sound,  machine.serialPort,  machine.printer, machine.volumes,  machine.help,
            machine.screen, machine.installation};
}

}  // namespace

DrivenProgram::DrivenProgram(const std::filesystem::path& folder, bool window, Onlooker& onlooker)
    : machine_(folder), onlooker_(onlooker), window_(window), drivers_(withBoxes(*this, machine_.drivers()))
{
    machine_.clock.setSleeper([this](MonotonicTime deadline) { sleepUntil(deadline); });
}

DrivenProgram::~DrivenProgram()
{
    program_.reset();
    machine_.clock.setSleeper({});
}

template <typename Work>
void DrivenProgram::inHandler(Work&& work)
{
    struct Handling {
        bool& flag;
        explicit Handling(bool& handling) : flag(handling) { flag = true; }
        Handling(const Handling&) = delete;
        Handling& operator=(const Handling&) = delete;
        ~Handling() { flag = false; }
    };
    handlerBegan_ = machine_.clock.monotonic();
    const bool wasRunning = running();
    try {
        const Handling handling(handling_);
        std::forward<Work>(work)();
    } catch (const HandlersLeft&) {
        kill();
    }
    if (running()) onlooker_.programWaits(true);
    if (program_ && wasRunning && !program_->running()) {
        queue_.clear();
        onlooker_.programIsGone(false);
    }
    if (const auto commandLine = std::exchange(restartWith_, std::nullopt)) start(*commandLine);
}

void DrivenProgram::start(const std::string& commandLine)
{
    if (running() || tired_) return;
    program_.reset();
    machine_.beginRun(commandLine);
    ++runs_;
    program_.emplace(drivers_, static_cast<app::EntrySource&>(*this),
                     window_ ? static_cast<app::PictureSink*>(this) : nullptr);
    inHandler([this] { program_->start(); });
    settle();
}

void DrivenProgram::restart(const std::string& commandLine)
{
    if (handling_) {
        restartWith_ = commandLine;
        throw HandlersLeft{};
    }
    kill();
    start(commandLine);
}

void DrivenProgram::kill()
{
    const bool wasRunning = running();
    program_.reset();
    machine_.serialPort.close();
    queue_.clear();
    if (wasRunning) onlooker_.programIsGone(true);
}

void DrivenProgram::take(const app::QueueEntry& entry)
{
    inHandler([&] {
        onlooker_.entryComes(entry);
        program_->handle(entry);
    });
}

void DrivenProgram::perform(script::Input input)
{
    if (tired_ || !running()) return;
    if (handling_) {
        for (script::Movement& movement : input.movements) {
            movement.atOnce();
            queue_.push_back(std::move(movement));
        }
        return;
    }
    const int run = runs_;
    for (const script::Movement& movement : input.movements) {
        if (tired_ || !running() || run != runs_) return;
        const app::QueueEntry entry = movement.entry();
        movement.atOnce();
        take(entry);
        settle();
    }
}

std::optional<app::QueueEntry> DrivenProgram::poll()
{
    onlooker_.programWaits(false);
    while (!queue_.empty()) {
        const script::Movement movement = std::move(queue_.front());
        queue_.pop_front();
        try {
            const app::QueueEntry entry = movement.entry();
            onlooker_.entryComes(entry);
            return entry;
        } catch (const script::StepFailed&) {
            // What it was meant for is not there any more.
            continue;
        }
    }
    return std::nullopt;
}

void DrivenProgram::settle()
{
    while (running() && !queue_.empty()) {
        const script::Movement movement = std::move(queue_.front());
        queue_.pop_front();
        try {
            take(movement.entry());
        } catch (const script::StepFailed&) {
            continue;
        }
    }
    // While the clock stands still no timer comes due.
    const bool timeWentBy = std::exchange(ticked_, machine_.clock.monotonic()) != machine_.clock.monotonic();
    if (running() && timeWentBy) inHandler([this] { program_->tick(); });
    if (running() && !queue_.empty()) settle();
}

void DrivenProgram::publish(std::shared_ptr<const app::Picture> picture)
{
    onlooker_.pictureComes(*picture);
}

platform::Button DrivenProgram::show(const platform::MessageBoxRequest& request)
{
    const platform::Button answer = machine_.boxes.show(request);
    onlooker_.boxAnswered({request, answer});
    return answer;
}

void DrivenProgram::after(std::chrono::nanoseconds delay, std::function<void()> alarm)
{
    alarms_.emplace(machine_.clock.monotonic() + delay, std::move(alarm));
}

void DrivenProgram::nextAlarm()
{
    const auto first = alarms_.begin();
    const std::function<void()> alarm = std::move(first->second);
    machine_.clock.moveTo(first->first);
    alarms_.erase(first);
    alarm();
}

void DrivenProgram::sleepUntil(MonotonicTime deadline)
{
    const MonotonicTime until = std::max(deadline, machine_.clock.monotonic() + shortestSleep);
    while (!alarms_.empty() && alarms_.begin()->first <= until)
        nextAlarm();
    machine_.clock.moveTo(until);
    if (!handling_ || until - handlerBegan_ <= patience) return;
    tired_ = true;
    throw HandlersLeft{};
}

void DrivenProgram::wait(std::chrono::nanoseconds duration)
{
    const MonotonicTime end = machine_.clock.monotonic() + duration;
    // Of a long time only the end is lived through, as by a computer that was asleep.
    if (alarms_.empty() && duration > longestLived) machine_.clock.moveTo(end - longestLived);
    while (!tired_) {
        const MonotonicTime now = machine_.clock.monotonic();
        const std::optional<MonotonicTime> planned = running() ? program_->nextTick() : std::nullopt;
        const std::optional<MonotonicTime> tick = planned ? std::optional(std::max(*planned, now)) : std::nullopt;
        const bool alarmIsDue = !alarms_.empty() && alarms_.begin()->first <= end;
        const bool tickIsDue = tick && *tick <= end && (!alarmIsDue || *tick <= alarms_.begin()->first);
        if (tickIsDue) {
            machine_.clock.moveTo(*tick);
            // A timer that was never planned is due at once.
            ticked_ = MonotonicTime(-1);
        } else if (alarmIsDue)
            nextAlarm();
        else
            return machine_.clock.moveTo(end);
        settle();
    }
}

}  // namespace fuzz
