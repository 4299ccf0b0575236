// The desktop program from its command line to its end.
#pragma once

#include <functional>

namespace desktop {

class DesktopProgram;

/// Runs the program: the folder is made ready, then the window opens. `started` is called once the program is on its
/// way, for whoever watches it. Returns the exit status: 0 when the program ended by itself, 2 for a command line that
/// cannot be used, 3 without a display, 4 when there was no folder to work in.
int runProgram(int argc, char** argv, const std::function<void(DesktopProgram&)>& started = {});

}  // namespace desktop
