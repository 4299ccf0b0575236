// A program whose output is read line by line, and that is killed in the middle.
#pragma once

#include <sys/types.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

namespace test {

class Child {
 public:
    Child(const std::filesystem::path& program, const std::vector<std::string>& arguments);
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;
    ~Child();

    /// Reads until so many lines with this beginning came. False when the output ended, or the limit was over.
    bool waitForLines(const std::string& beginning, int count, std::chrono::milliseconds limit);
    /// Lets so much time go by. What the program prints meanwhile is read.
    void run(std::chrono::microseconds duration);
    /// Kills it as it is, and reads what it had printed.
    void killNow();
    /// Lets it come to its end. False when that takes longer than the limit.
    bool waitForEnd(std::chrono::milliseconds limit);

    const std::string& output() const { return output_; }

 private:
    using Deadline = std::chrono::steady_clock::time_point;
    bool readUntil(Deadline deadline);

    pid_t pid_ = -1;
    int pipe_ = -1;
    bool ended_ = false;
    std::string output_;
};

/// Whole lines of an output.
std::vector<std::string> linesOf(const std::string& output);

/// Lines with this beginning among them.
int linesWith(const std::string& output, const std::string& beginning);

}  // namespace test
