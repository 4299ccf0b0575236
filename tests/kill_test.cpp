// The program killed (SIGKILL) at random moments of logging: every QSO whose screen had cleared is in the log once,
// with its columns, and the log is whole.
#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <filesystem>
#include <map>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "support/temporary_folder.h"

namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr int kills = 200;
constexpr int qsosPerRun = 60;
constexpr const char* ready = "FrmQSO.LblConc.Caption";
constexpr const char* cleared = "FrmQSO.LblQSO.Caption";

std::string callOf(int run, int qso)
{
    return "HA" + std::to_string(run) + "K" + std::to_string(qso);
}

/// A run that logs one new station after the other, saying so each time the screen has cleared.
std::string scriptOf(int run)
{
    std::ostringstream script;
    script << "now 2026-07-04 14:00:00\nstart\nclick OpBFloareademina\nclick OpbConcurs\n"
           << "focus TxtMyCall\ntype \"YO2XYZ\"\nkey Enter\ntype \"KN05OS\"\n"
           << "click mnuQSOfahren\nclick Cmd144\nclick CmdCW\nshow " << ready << '\n';
    for (int qso = 0; qso < qsosPerRun; ++qso)
        script << "type \"" << callOf(run, qso) << "\"\nkey Tab\ntype \"012\"\ntype \"JN97MM\"\nkey Enter\n"
               << "expect txtIndic.Text \"\"\nshow " << cleared << '\n';
    return script.str();
}

/// A child process whose output is read line by line.
class Child {
 public:
    Child(const fs::path& program, const std::vector<std::string>& arguments)
    {
        std::array<int, 2> ends{};
        if (pipe(ends.data()) != 0) throw std::runtime_error("no pipe");
        pid_ = fork();
        if (pid_ == 0) {
            dup2(ends[1], STDOUT_FILENO);
            close(ends[0]);
            std::vector<char*> words{const_cast<char*>(program.c_str())};
            for (const std::string& argument : arguments)
                words.push_back(const_cast<char*>(argument.c_str()));
            words.push_back(nullptr);
            execv(program.c_str(), words.data());
            _exit(127);
        }
        close(ends[1]);
        output_ = ends[0];
    }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;
    ~Child()
    {
        killNow();
        close(output_);
    }

    /// Reads until a line with `text` came, the output ended, or the time is over. True for the first.
    bool waitFor(const std::string& text, milliseconds limit)
    {
        const auto deadline = steady_clock::now() + limit;
        while (all_.find(text) == std::string::npos)
            if (!read(deadline)) return false;
        return true;
    }

    void readUntil(steady_clock::time_point deadline)
    {
        while (read(deadline)) {
        }
    }

    void killNow()
    {
        if (pid_ <= 0) return;
        kill(pid_, SIGKILL);
        waitpid(pid_, nullptr, 0);
        pid_ = -1;
    }

    /// What was written before the kill is still in the pipe.
    void readRest() { readUntil(steady_clock::time_point::max()); }

    const std::string& output() const { return all_; }

 private:
    bool read(steady_clock::time_point deadline)
    {
        int wait = -1;
        if (deadline != steady_clock::time_point::max()) {
            const auto left = std::chrono::duration_cast<milliseconds>(deadline - steady_clock::now());
            if (left.count() < 0) return false;
            wait = static_cast<int>(left.count());
        }
        pollfd waiting{output_, POLLIN, 0};
        if (poll(&waiting, 1, wait) <= 0) return false;
        std::array<char, 4096> buffer{};
        const ssize_t count = ::read(output_, buffer.data(), buffer.size());
        if (count <= 0) return false;
        all_.append(buffer.data(), static_cast<std::size_t>(count));
        return true;
    }

    pid_t pid_ = -1;
    int output_ = -1;
    std::string all_;
};

int linesWith(const std::string& output, const std::string& text)
{
    int count = 0;
    std::istringstream lines(output);
    for (std::string line; std::getline(lines, line);)
        if (line.starts_with(text) && !lines.eof()) ++count;
    return count;
}

using Rows = std::multimap<std::string, std::vector<std::string>>;

/// All rows of the log by call, read by another program's means.
Rows readLog(const fs::path& file)
{
    Rows rows;
    sqlite3* log = nullptr;
    EXPECT_EQ(sqlite3_open(file.c_str(), &log), SQLITE_OK);
    const auto ask = [&](const char* question, const auto& take) {
        sqlite3_stmt* statement = nullptr;
        EXPECT_EQ(sqlite3_prepare_v2(log, question, -1, &statement, nullptr), SQLITE_OK) << sqlite3_errmsg(log);
        while (sqlite3_step(statement) == SQLITE_ROW) {
            std::vector<std::string> columns;
            for (int i = 0; i < sqlite3_column_count(statement); ++i) {
                const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, i));
                columns.emplace_back(text == nullptr ? "" : text);
            }
            take(columns);
        }
        sqlite3_finalize(statement);
    };
    ask("PRAGMA integrity_check", [](const auto& columns) { EXPECT_EQ(columns[0], "ok"); });
    ask("SELECT * FROM Uus144a", [&](const auto& columns) { rows.emplace(columns[1], columns); });
    sqlite3_close(log);
    return rows;
}

/// Everything of a row but the counter, the code sent and the time, which the run decides.
void expectColumns(const std::vector<std::string>& row)
{
    ASSERT_EQ(row.size(), 10U);
    EXPECT_EQ(row[2], "04.07.26");
    EXPECT_EQ(row[3].size(), 5U);
    EXPECT_TRUE(row[4].starts_with("599 ") && row[4].size() >= 7) << row[4];
    EXPECT_EQ(row[5], "599 012");
    EXPECT_EQ(row[6], "CW");
    EXPECT_EQ(row[7], "144");
    EXPECT_EQ(row[8], "JN97MM");
    EXPECT_EQ(row[9], "255");
}

TEST(Kill, LosesNoQsoWhoseScreenHadCleared)
{
    const fs::path program = fs::path(KELVO_PROGRAM_FOLDER) / "kelvo-script";
    const test::TemporaryFolder folder;
    const unsigned seed = std::random_device{}();
    RecordProperty("seed", std::to_string(seed));
    std::mt19937 random(seed);
    int clearedInAll = 0;
    int inTheMiddle = 0;
    std::size_t rowsBefore = 0;

    for (int run = 0; run < kills; ++run) {
        const fs::path script = folder.file("run.kelvo");
        test::writeFile(script, scriptOf(run));
        Child child(program, {"--folder", folder.path().string(), script.string()});
        ASSERT_TRUE(child.waitFor(ready, std::chrono::seconds(60))) << "run " << run << ": " << child.output();
        std::uniform_int_distribution<int> microseconds(0, 150000);
        child.readUntil(steady_clock::now() + std::chrono::microseconds(microseconds(random)));
        child.killNow();
        child.readRest();

        const int acknowledged = linesWith(child.output(), cleared);
        clearedInAll += acknowledged;
        if (acknowledged < qsosPerRun) ++inTheMiddle;
        const Rows rows = readLog(folder.file("LogKelvo.mdb"));
        for (int qso = 0; qso < acknowledged; ++qso) {
            const std::string call = callOf(run, qso);
            ASSERT_EQ(rows.count(call), 1U) << call << " in run " << run << ", seed " << seed;
            expectColumns(rows.find(call)->second);
        }
        const std::size_t added = rows.size() - rowsBefore;
        ASSERT_GE(added, static_cast<std::size_t>(acknowledged));
        ASSERT_LE(added, static_cast<std::size_t>(acknowledged) + 1)
            << "only the QSO in hand may be there without word";
        rowsBefore = rows.size();
    }
    EXPECT_GT(inTheMiddle, kills * 9 / 10) << "the kills came after the logging and tested nothing";
    EXPECT_GT(clearedInAll, kills / 2) << "the kills came before the logging and tested nothing";
}

}  // namespace
