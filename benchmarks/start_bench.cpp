// From the start of the program to the set-up page that is painted and takes keys, beside an empty window of the
// toolkit that is painted. Both are started 20 times in turn, on the screen that DISPLAY names. Prints milliseconds.
//
//     start_bench FOLDER_OF_PROGRAMS
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "bench_folder.h"
#include "figure.h"
#include "start_mark.h"

namespace {

constexpr int starts = 20;
constexpr double mostMillisecondsOver = 150;

using Words = std::vector<std::string>;

/// Starts a program and returns the milliseconds until it says that it is ready.
double startOnce(Words words)
{
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0) std::exit(EXIT_FAILURE);
    posix_spawn_file_actions_t actions{};
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    ::posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", 0, 0);
    std::vector<char*> arguments;
    for (std::string& word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);

    pid_t child = 0;
    const auto begin = std::chrono::steady_clock::now();
    const int failed = ::posix_spawn(&child, arguments[0], &actions, nullptr, arguments.data(), environ);
    ::close(ends[1]);
    FILE* told = ::fdopen(ends[0], "r");
    long long ready = 0;
    const bool heard = failed == 0 && std::fscanf(told, "%lld", &ready) == 1;
    std::fclose(told);
    if (failed == 0) ::waitpid(child, nullptr, 0);
    ::posix_spawn_file_actions_destroy(&actions);
    if (!heard) {
        std::printf("%s does NOT start\n", words[0].c_str());
        std::exit(EXIT_FAILURE);
    }
    return static_cast<double>(ready - bench::nanosecondsOf(begin)) / 1e6;
}

double median(std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    const std::size_t middle = times.size() / 2;
    return times.size() % 2 == 1 ? times[middle] : (times[middle - 1] + times[middle]) / 2;
}

void print(const char* what, const std::vector<double>& times)
{
    const auto [least, most] = std::minmax_element(times.begin(), times.end());
    std::printf("%-28s median %7.1f   least %7.1f   most %7.1f\n", what, median(times), *least, *most);
}

}  // namespace

int main(int argc, char** argv)
{
    const std::filesystem::path programs = std::filesystem::absolute(argc > 1 ? argv[1] : ".");
    const bench::Folder folder;
    const Words empty = {(programs / "start_bench_empty").string()};
    const Words kelvo = {(programs / "start_bench_kelvo").string(), "--folder", folder.path().string()};
    // The first time fetches both from the disk.
    startOnce(empty);
    startOnce(kelvo);
    std::vector<double> ofEmpty;
    std::vector<double> ofKelvo;
    for (int i = 0; i < starts; ++i) {
        ofEmpty.push_back(startOnce(empty));
        ofKelvo.push_back(startOnce(kelvo));
    }
    print("empty window, painted", ofEmpty);
    print("set-up page, taking keys", ofKelvo);
    bench::tellFigure("empty", median(ofEmpty), "ms");
    bench::tellFigure("kelvo", median(ofKelvo), "ms");
    const double over = median(ofKelvo) - median(ofEmpty);
    std::printf("the page over the window     %7.1f ms, %.2f times; at most %.0f ms: %s\n", over,
                median(ofKelvo) / median(ofEmpty), mostMillisecondsOver, over <= mostMillisecondsOver ? "yes" : "NO");
    return 0;
}
