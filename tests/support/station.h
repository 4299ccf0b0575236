// A station for tests and benchmarks: the program on a folder of the real disk, with logs of any size, driven entry by
// entry.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "app/program.h"
#include "script/virtual_machine.h"

struct sqlite3;

namespace test {

/// Fills a log table with `rows` QSOs of different calls.
void fillLog(const std::filesystem::path& folder, std::string_view table, int rows);

/// Fills the locator memory with `calls` calls, beginning with those that fillLog() takes.
void fillMemory(const std::filesystem::path& folder, int calls);

/// A plain connection to the log with the settings that the program has, for the baselines.
class PlainLog {
 public:
    explicit PlainLog(const std::filesystem::path& file);
    PlainLog(const PlainLog&) = delete;
    PlainLog& operator=(const PlainLog&) = delete;
    ~PlainLog();
    void execute(const std::string& statement);

 private:
    sqlite3* handle_ = nullptr;
};

/// The program in the middle of the contest "Floarea de mina", on 144 MHz in CW, the memory learning.
class Station : private app::EntrySource {
 public:
    /// `sink` may be nullptr.
    Station(const std::filesystem::path& folder, app::PictureSink* sink);

    /// Types a text into the field that has the focus.
    void type(std::string_view text);
    /// Presses and releases a key.
    void press(std::string_view name);
    /// A key going down alone.
    void down(std::string_view name);
    /// Call, Tab, code and, for a station that is not in the memory, locator: everything but Enter.
    void fillScreen(const std::string& call, bool known);

    app::Program& program() { return program_; }
    /// Notices since the start, oldest first.
    const std::vector<std::string>& notices() const { return machine_.record.notices; }
    script::VirtualMachine& machine() { return machine_; }

 private:
    std::optional<app::QueueEntry> poll() override { return std::nullopt; }
    void click(screen::Control& control);

    script::VirtualMachine machine_;
    app::Program program_;
};

}  // namespace test
