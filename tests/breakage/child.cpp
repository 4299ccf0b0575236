#include "breakage/child.h"

#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <sstream>
#include <stdexcept>

namespace test {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

Child::Child(const std::filesystem::path& program, const std::vector<std::string>& arguments)
{
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) throw std::runtime_error("no pipe");
    std::vector<char*> words{const_cast<char*>(program.c_str())};
    for (const std::string& argument : arguments)
        words.push_back(const_cast<char*>(argument.c_str()));
    words.push_back(nullptr);
    pid_ = fork();
    if (pid_ == 0) {
        dup2(ends[1], STDOUT_FILENO);
        close(ends[0]);
        execv(program.c_str(), words.data());
        _exit(127);
    }
    close(ends[1]);
    pipe_ = ends[0];
}

Child::~Child()
{
    killNow();
    close(pipe_);
}

bool Child::waitForLines(const std::string& beginning, int count, milliseconds limit)
{
    const Deadline deadline = steady_clock::now() + limit;
    while (linesWith(output_, beginning) < count)
        if (!readUntil(deadline)) return false;
    return true;
}

void Child::run(std::chrono::microseconds duration)
{
    const Deadline deadline = steady_clock::now() + duration;
    while (readUntil(deadline)) {
    }
}

void Child::killNow()
{
    if (pid_ <= 0) return;
    kill(pid_, SIGKILL);
    waitpid(pid_, nullptr, 0);
    pid_ = -1;
    while (readUntil(Deadline::max())) {
    }
}

bool Child::waitForEnd(milliseconds limit)
{
    const Deadline deadline = steady_clock::now() + limit;
    while (readUntil(deadline)) {
    }
    const bool ended = ended_;
    killNow();
    return ended;
}

/// Reads once. False when nothing came until the deadline, or the output is at its end.
bool Child::readUntil(Deadline deadline)
{
    timespec wait{};
    const bool endless = deadline == Deadline::max();
    if (!endless) {
        const auto left = std::max(deadline - steady_clock::now(), steady_clock::duration::zero());
        wait.tv_sec = std::chrono::duration_cast<std::chrono::seconds>(left).count();
        wait.tv_nsec = std::chrono::duration_cast<std::chrono::nanoseconds>(left % std::chrono::seconds(1)).count();
    }
    pollfd waiting{pipe_, POLLIN, 0};
    if (ppoll(&waiting, 1, endless ? nullptr : &wait, nullptr) <= 0) return false;
    std::array<char, 4096> buffer{};
    const ssize_t count = read(pipe_, buffer.data(), buffer.size());
    ended_ = count <= 0;
    if (ended_) return false;
    output_.append(buffer.data(), static_cast<std::size_t>(count));
    return true;
}

std::vector<std::string> linesOf(const std::string& output)
{
    std::vector<std::string> lines;
    std::istringstream stream(output);
    for (std::string line; std::getline(stream, line);)
        if (!stream.eof()) lines.push_back(line);
    return lines;
}

int linesWith(const std::string& output, const std::string& beginning)
{
    const std::vector<std::string> lines = linesOf(output);
    return static_cast<int>(std::count_if(lines.begin(), lines.end(),
                                          [&](const std::string& line) { return line.starts_with(beginning); }));
}

}  // namespace test
