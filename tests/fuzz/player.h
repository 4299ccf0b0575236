// Plays steps on the driven program. Each step is a few statements of a script, so that what was played can be read,
// and played again by the scripted operator.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "fuzz/driven_program.h"
#include "fuzz/steps.h"
#include "fuzz/watch.h"
#include "script/statement.h"

namespace fuzz {

class Player {
 public:
    /// Gets the lines of a script that does the same; may be empty.
    using LineSink = std::function<void(const std::string& line)>;

    /// The folder holds the empty databases.
    Player(const std::filesystem::path& folder, bool window, LineSink print);

    /// Plays all steps, or as many as one run may have. Broken when something does not hold.
    void play(Bytes bytes);

    /// Plays one step; `following` gives those that an `after` takes.
    void playStep(const Step& step, StepReader& following);

    /// The end of a run: the program is taken away, and the files are looked at.
    void finish();

    /// Nothing is played any more.
    bool over() const;

    DrivenProgram& program() { return program_; }

 private:
    void perform(const script::Statement& statement);
    void performInput(const script::Statement& statement);
    void changeTables(const script::Statement& statement);
    void schedule(const Step& step, StepReader& following);
    bool mayGoOn(const script::Statement& statement);

    Watch watch_;
    DrivenProgram program_;
    LineSink print_;
    int statements_ = 0;
    int starts_ = 0;
    std::chrono::nanoseconds waited_{};
};

/// The controls that a step may touch, in the order of the page: the same for every state of the form.
std::vector<screen::Control*> pressable(const screen::Form& form);

/// A statement as a line of a script, with the "|" lines below it.
std::vector<std::string> linesOf(const script::Statement& statement);

}  // namespace fuzz
