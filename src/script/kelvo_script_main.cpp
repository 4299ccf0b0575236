// kelvo-script [--folder DIR] FILE...: plays scripts on the program without a screen.
#include <iostream>

#include "platform/console_main.h"
#include "script/command_line.h"

int platform::consoleMain(const std::vector<std::string>& words)
{
    return script::runCommandLine(words, std::cout, std::cerr);
}
