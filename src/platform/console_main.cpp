// The entry point of a program without windows, where words are bytes.
#include "platform/console_main.h"

int main(int count, char** words)
{
    return platform::consoleMain({words + 1, words + count});
}
