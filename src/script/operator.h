// The scripted operator: plays the statements of one script on one machine, and counts what held and what did not.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "script/program_run.h"
#include "script/statement.h"
#include "script/step_failed.h"
#include "script/virtual_machine.h"

namespace script {

struct Tally {
    int passed = 0;
    int failed = 0;
};

/// Takes the lines that a script prints, one by one, without line ends.
using LineSink = std::function<void(const std::string& line)>;

class Operator {
 public:
    /// `folder` is that of the program; it is there. No program runs, the machine and the clock are at their defaults.
    Operator(const std::filesystem::path& folder, LineSink print);
    Operator(const Operator&) = delete;
    Operator& operator=(const Operator&) = delete;
    ~Operator() = default;

    /// Plays the statements of a script, or of the next piece of one. Returns false when a handler or a fault of the
    /// program ended the script: nothing is played any more.
    bool play(const Script& script);

    /// The script is at its end: answers and alarms left over fail.
    void finish();

    const Tally& tally() const { return tally_; }
    VirtualMachine& machine() { return machine_; }

 private:
    void perform(const Statement& statement);
    void act(const Statement& statement);
    void performLater(const Statement& statement);
    void fail(int line, const StepFailed& failure);

    LineSink print_;
    VirtualMachine machine_;
    ProgramRun run_;
    Tally tally_;
    std::string fileName_;
    int lineNow_ = 0;
    bool over_ = false;
};

}  // namespace script
