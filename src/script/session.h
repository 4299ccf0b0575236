// Plays scripts one after the other in one folder, each on a machine of its own.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "script/operator.h"
#include "script/statement.h"

namespace script {

/// What came of a script.
struct Result {
    int passed = 0;
    int failed = 0;
    std::string output;  ///< everything that it printed, each line with its line end
};

class Session {
 public:
    /// Makes the databases that `folder` lacks. `print` gets every line as it comes; it may be empty.
    /// Errors: 76 when the folder is not there, 75 or 61 when a database cannot be made.
    explicit Session(std::filesystem::path folder, LineSink print = {});

    /// Plays a script that begins with no program running, the machine and the clock at their defaults.
    Result play(const Script& script);

    /// The same from its text. UnreadableScript when it is none.
    Result play(std::string_view text, const std::string& fileName);

    /// Counts of all scripts played.
    const Tally& tally() const { return tally_; }

 private:
    std::filesystem::path folder_;
    LineSink print_;
    Tally tally_;
};

}  // namespace script
