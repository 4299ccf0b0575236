// Where a program without windows begins.
#pragma once

#include <string>
#include <vector>

namespace platform {

/// What the program does with the words behind its name, in UTF-8. Returns its exit status. Every program of this kind
/// has one of its own; the system's entry point calls it.
int consoleMain(const std::vector<std::string>& words);

}  // namespace platform
