// kelvo-script [--folder DIR] FILE...: plays scripts on the program without a screen.
#include <iostream>
#include <string>
#include <vector>

#include "script/command_line.h"

int main(int count, char** words)
{
    const std::vector<std::string> arguments(words + 1, words + count);
    return script::runCommandLine(arguments, std::cout, std::cerr);
}
