// The program kelvo-script, from its words to its exit status.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace script {

/// Exit status: everything held.
constexpr int everythingHeld = 0;
/// Something failed.
constexpr int somethingFailed = 1;
/// Nothing was played: wrong use, a script that cannot be read, a folder that cannot be used.
constexpr int nothingPlayed = 2;

/// Plays the scripts that `arguments` (without the program's name) ask for. Every line goes to `out` as it comes and
/// is flushed, complaints about the scripts themselves go to `err`. Returns the exit status.
int runCommandLine(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

}  // namespace script
