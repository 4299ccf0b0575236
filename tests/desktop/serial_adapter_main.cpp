// A serial adapter for the whole program, which finds it under the name that stands in the first line of the output.
// Each time that the last user has gone it prints "hung up", with HUPCL behind it when the system dropped the lines.
// The lines themselves come from the library modem_lines_shim.
#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

namespace {

bool inUse(int master)
{
    pollfd state{master, 0, 0};
    return ::poll(&state, 1, 0) == 0;
}

bool droppedLines(int master)
{
    termios settings{};
    return ::tcgetattr(master, &settings) == 0 && (settings.c_cflag & HUPCL) != 0;
}

}  // namespace

int main()
{
    const int master = ::posix_openpt(O_RDWR | O_NOCTTY);
    if (master < 0 || ::grantpt(master) != 0 || ::unlockpt(master) != 0) {
        std::perror("no pseudo-terminal");
        return EXIT_FAILURE;
    }
    std::printf("%s\n", ::ptsname(master));
    bool used = false;
    for (;;) {
        std::fflush(stdout);
        const bool now = inUse(master);
        if (used && !now) std::printf(droppedLines(master) ? "hung up HUPCL\n" : "hung up\n");
        used = now;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
}
