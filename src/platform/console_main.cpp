// The entry point of a program without windows, where words are bytes.
#include "platform/console_main.h"

#include <algorithm>

int main(int count, char** words)
{
    return platform::consoleMain({words + std::min(count, 1), words + count});
}
