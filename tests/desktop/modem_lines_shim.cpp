// A serial adapter for tests: gives every pseudo-terminal that the process opens the two modem lines that it lacks. As
// with a real one, opening it raises both lines, and its last close drops them when HUPCL is set.
//
// A shared library, linked to a test or preloaded into the program. Each change of a line, each opening and each close
// is appended with one write to the file that KELVO_LINES_LOG names:
//
//     NANOSECONDS open | close | DTR on | DTR off | RTS on | RTS off      (of the monotonic clock)
//
// The file that KELVO_LINES_TROUBLE names, when it is there, holds what is wrong: "unplugged", "no hardware", "busy",
// "denied" or "deaf key", whose DTR does not answer while RTS does. With KELVO_LINES_OPENED_ELSEWHERE the process gets
// its pseudo-terminals from another one, open already.
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <string_view>

namespace {

constexpr std::size_t descriptorsAtMost = 1024;

std::array<std::atomic<bool>, descriptorsAtMost> opened;  // by file descriptor
std::atomic<int> openedCount{0};
std::atomic<int> lines{0};

template <typename Function>
Function* following(const char* name)
{
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

int realOpen(const char* path, int flags, mode_t mode)
{
    static auto* const function = following<int(const char*, int, ...)>("open");
    return function(path, flags, mode);
}

int realClose(int descriptor)
{
    static auto* const function = following<int(int)>("close");
    return function(descriptor);
}

int realIoctl(int descriptor, unsigned long request, void* argument)
{
    static auto* const function = following<int(int, unsigned long, ...)>("ioctl");
    return function(descriptor, request, argument);
}

bool trouble(std::string_view kind)
{
    const char* path = std::getenv("KELVO_LINES_TROUBLE");
    if (path == nullptr) return false;
    const int file = realOpen(path, O_RDONLY | O_CLOEXEC, 0);
    if (file < 0) return false;
    std::array<char, 32> text{};
    const ssize_t length = ::read(file, text.data(), text.size());
    realClose(file);
    return length > 0 && std::string_view(text.data(), static_cast<std::size_t>(length)).starts_with(kind);
}

void note(const char* what)
{
    const char* path = std::getenv("KELVO_LINES_LOG");
    if (path == nullptr) return;
    timespec now{};
    ::clock_gettime(CLOCK_MONOTONIC, &now);
    std::array<char, 64> text{};
    const int length = std::snprintf(text.data(), text.size(), "%lld%09ld %s\n", static_cast<long long>(now.tv_sec),
                                     now.tv_nsec, what);
    // Kept open: a real line takes no file to be opened either.
    static const int file = realOpen(path, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    [[maybe_unused]] const auto written = ::write(file, text.data(), static_cast<std::size_t>(length));
}

void setLines(int bits)
{
    const int changed = lines.exchange(bits) ^ bits;
    if ((changed & TIOCM_DTR) != 0) note((bits & TIOCM_DTR) != 0 ? "DTR on" : "DTR off");
    if ((changed & TIOCM_RTS) != 0) note((bits & TIOCM_RTS) != 0 ? "RTS on" : "RTS off");
}

/// The majors of the terminal side of pseudo-terminals.
bool isPseudoTerminal(const struct stat& status)
{
    const unsigned kind = major(status.st_rdev);
    return S_ISCHR(status.st_mode) && kind >= 136 && kind <= 143;
}

bool isLine(int descriptor)
{
    return descriptor >= 0 && static_cast<std::size_t>(descriptor) < descriptorsAtMost &&
           opened.at(static_cast<std::size_t>(descriptor));
}

/// Under Wine another process opens all files.
bool isLineOpenedElsewhere(int descriptor)
{
    static const bool expected = std::getenv("KELVO_LINES_OPENED_ELSEWHERE") != nullptr;
    struct stat status {};
    return expected && ::fstat(descriptor, &status) == 0 && isPseudoTerminal(status);
}

bool makesFile(int flags)
{
    return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
}

int fail(int number)
{
    errno = number;
    return -1;
}

int openLine(const char* path, int flags, mode_t mode)
{
    struct stat status {};
    // Its controlling side and the terminals of a shell are no serial lines: those are opened otherwise.
    const bool line = ::stat(path, &status) == 0 && isPseudoTerminal(status) && (flags & O_NONBLOCK) != 0;
    if (line && trouble("busy")) return fail(EBUSY);
    if (line && trouble("denied")) return fail(EACCES);
    if (line && trouble("unplugged")) return fail(ENXIO);
    const int descriptor = realOpen(path, flags, mode);
    if (!line || descriptor < 0 || static_cast<std::size_t>(descriptor) >= descriptorsAtMost) return descriptor;
    opened.at(static_cast<std::size_t>(descriptor)) = true;
    ++openedCount;
    note("open");
    setLines(TIOCM_DTR | TIOCM_RTS);
    return descriptor;
}

int switchLines(unsigned long request, void* argument)
{
    if (trouble("unplugged")) return fail(EIO);
    if (trouble("no hardware")) return fail(EIO);
    int& bits = *static_cast<int*>(argument);
    if (request != TIOCMGET && (bits & TIOCM_DTR) != 0 && trouble("deaf key")) return fail(EIO);
    switch (request) {
        case TIOCMGET:
            bits = lines;
            return 0;
        case TIOCMBIS:
            setLines(lines | bits);
            return 0;
        case TIOCMBIC:
            setLines(lines & ~bits);
            return 0;
        default:
            setLines(bits);
            return 0;
    }
}

void lastClose(int descriptor)
{
    termios settings{};
    const bool drops = ::tcgetattr(descriptor, &settings) == 0 && (settings.c_cflag & HUPCL) != 0;
    if (drops) setLines(0);
    note("close");
}

}  // namespace

extern "C" {

int ioctl(int descriptor, unsigned long request, ...) noexcept
{
    va_list arguments;
    va_start(arguments, request);
    void* argument = va_arg(arguments, void*);
    va_end(arguments);
    constexpr std::array<unsigned long, 4> ofLines = {TIOCMGET, TIOCMSET, TIOCMBIS, TIOCMBIC};
    const bool aboutLines = std::find(ofLines.begin(), ofLines.end(), request) != ofLines.end();
    if (aboutLines && (isLine(descriptor) || isLineOpenedElsewhere(descriptor))) return switchLines(request, argument);
    return realIoctl(descriptor, request, argument);
}

int open(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = makesFile(flags) ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    return openLine(path, flags, mode);
}

int open64(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = makesFile(flags) ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    return openLine(path, flags | O_LARGEFILE, mode);
}

int close(int descriptor)
{
    if (isLine(descriptor)) {
        opened.at(static_cast<std::size_t>(descriptor)) = false;
        if (--openedCount == 0) lastClose(descriptor);
    }
    return realClose(descriptor);
}

}  // extern "C"
