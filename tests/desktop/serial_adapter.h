// A serial adapter made of a pseudo-terminal and the library that gives it modem lines, and what its lines did.
#pragma once

#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/temporary_folder.h"

namespace test {

/// "open", "close", or a line and "on" or "off".
struct LineEvent {
    std::chrono::nanoseconds time;  ///< of the monotonic clock
    std::string what;
};

class SerialAdapter {
 public:
    SerialAdapter() : master_(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC))
    {
        if (master_ < 0 || ::grantpt(master_) != 0 || ::unlockpt(master_) != 0)
            throw std::runtime_error("no pseudo-terminal");
        ::setenv("KELVO_LINES_LOG", logFile().c_str(), 1);
        ::setenv("KELVO_LINES_TROUBLE", troubleFile().c_str(), 1);
        writeFile(logFile(), "");
        putRight();
    }
    ~SerialAdapter()
    {
        putRight();
        ::close(master_);
    }
    SerialAdapter(const SerialAdapter&) = delete;
    SerialAdapter& operator=(const SerialAdapter&) = delete;

    /// The device file.
    std::filesystem::path device() const { return ::ptsname(master_); }

    /// Makes it port `number` of a program in `folder`.
    void linkAs(int number, const std::filesystem::path& folder) const
    {
        std::filesystem::create_symlink(device(), folder / ("COM" + std::to_string(number)));
    }

    /// "unplugged", "no hardware", "busy", "denied" or "deaf key", until it is put right.
    static void trouble(const std::string& kind) { writeFile(troubleFile(), kind); }
    static void putRight() { std::filesystem::remove(troubleFile()); }

    /// What happened since the last look, with the times, and without taking note of it.
    static std::vector<LineEvent> record()
    {
        std::vector<LineEvent> events;
        std::istringstream lines(readFile(logFile()));
        long long time = 0;
        for (std::string what; lines >> time && std::getline(lines >> std::ws, what);)
            events.push_back({std::chrono::nanoseconds(time), what});
        return events;
    }

    /// What happened since the last look.
    static std::vector<std::string> happened()
    {
        std::vector<std::string> events;
        for (const LineEvent& event : record())
            events.push_back(event.what);
        std::filesystem::resize_file(logFile(), 0);
        return events;
    }

    /// Nobody has it open any more, though somebody had.
    bool hungUp() const
    {
        pollfd master{master_, 0, 0};
        return ::poll(&master, 1, 0) > 0 && (master.revents & POLLHUP) != 0;
    }

    /// The system would drop its lines, or did, with the last close.
    bool dropsLinesWithLastClose() const
    {
        termios settings{};
        return ::tcgetattr(master_, &settings) == 0 && (settings.c_cflag & HUPCL) != 0;
    }
    /// As a device that was used by somebody who wanted the lines to stay.
    void keepLinesBehindLastClose() const
    {
        termios settings{};
        ::tcgetattr(master_, &settings);
        settings.c_cflag &= ~static_cast<tcflag_t>(HUPCL);
        ::tcsetattr(master_, TCSANOW, &settings);
    }

 private:
    // One for the whole process: the library keeps its log open.
    static const TemporaryFolder& folder()
    {
        static const TemporaryFolder folder;
        return folder;
    }
    static std::filesystem::path logFile() { return folder().file("lines"); }
    static std::filesystem::path troubleFile() { return folder().file("trouble"); }

    int master_;
};

}  // namespace test
