#include "desktop/program_thread.h"

#include "desktop/keying_priority.h"

namespace desktop {

ProgramThread::ProgramThread(EntryQueue& queue, app::PictureSink& sink, std::function<void()> ended)
    : queue_(queue), sink_(sink), ended_(std::move(ended))
{
}

ProgramThread::~ProgramThread()
{
    queue_.stop();
    if (thread_.joinable()) thread_.join();
}

void ProgramThread::start(platform::Machine& machine)
{
    thread_ = std::thread([this, &machine] { run(machine); });
}

void ProgramThread::publish()
{
    if (program_ != nullptr) program_->publish();
}

void ProgramThread::run(platform::Machine& machine)
{
    sharpenTimers();
    {
        app::Program program(machine, queue_, &sink_);
        program_ = &program;
        program.start();
        while (program.running() && !queue_.stopped()) {
            const auto entry = queue_.waitUntil(program.nextTick());
            if (entry) program.handle(*entry);
            // Also behind an entry: a flood of keys shall not stop the clock.
            const auto due = program.nextTick();
            if (due && machine.clock.monotonic() >= *due) program.tick();
        }
        program_ = nullptr;
    }
    ended_();
}

}  // namespace desktop
