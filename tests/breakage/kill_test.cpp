// The program killed (SIGKILL) at random moments, in all contests and on the way to them: every QSO whose screen had
// cleared is in the log once, with its columns, nothing else is there, the next run goes on with the codes and totals
// of these rows, and the set-up files are the old ones or the new ones.
//
//   kill_test [--kills N] [--seed N] [--program FILE]
//
// N kills are spread over all contests; FILE is the scripted operator to be killed.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <iostream>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "breakage/child.h"
#include "breakage/contest_runs.h"
#include "storage/schema.h"
#include "support/temporary_folder.h"

namespace {

namespace fs = std::filesystem;
using std::chrono::microseconds;
using std::chrono::steady_clock;
using test::Books;
using test::ContestRun;
using test::Row;

constexpr std::chrono::seconds patience(120);

struct Settings {
    int kills = 124;
    unsigned seed = std::random_device{}();
    fs::path program = fs::path(KELVO_PROGRAM_FOLDER) / "kelvo-script";
};

Settings& settings()
{
    static Settings settings;
    return settings;
}

const std::string initDat =
    "YO2XYZ\r\nKN05OS\r\n0\r\n 0 \r\nA\r\nION\r\n 1 \r\nLUGOJ\r\nSTR. 1\r\n50 W\r\nNF 1\r\n9 "
    "EL\r\n\r\n\r\n\r\n\r\nION\r\n";
const std::string textCw = "CQ\r\n599\r\nTU\r\nQRZ?\r\nAGN?\r\nQRX\r\n73\r\n 0 \r\n";

/// A database as another program sees it.
class OtherProgram {
 public:
    explicit OtherProgram(const fs::path& file)
    {
        EXPECT_EQ(sqlite3_open_v2(file.c_str(), &handle_, SQLITE_OPEN_READWRITE, nullptr), SQLITE_OK) << file;
    }
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;
    ~OtherProgram() { sqlite3_close(handle_); }

    std::vector<Row> ask(const std::string& statement, const Row& values = {}) const
    {
        std::vector<Row> rows;
        sqlite3_stmt* prepared = nullptr;
        EXPECT_EQ(sqlite3_prepare_v2(handle_, statement.c_str(), -1, &prepared, nullptr), SQLITE_OK)
            << sqlite3_errmsg(handle_);
        for (std::size_t i = 0; i < values.size(); ++i)
            sqlite3_bind_text(prepared, static_cast<int>(i) + 1, values[i].c_str(), -1, SQLITE_TRANSIENT);
        while (sqlite3_step(prepared) == SQLITE_ROW) {
            Row& row = rows.emplace_back();
            for (int i = 0; i < sqlite3_column_count(prepared); ++i) {
                const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(prepared, i));
                row.emplace_back(text == nullptr ? "" : text);
            }
        }
        sqlite3_finalize(prepared);
        return rows;
    }

 private:
    sqlite3* handle_ = nullptr;
};

/// What really stands in the databases. They are read from a copy: taking back what the kill left half done is the
/// business of the next run.
Books readBooks(const fs::path& folder, const std::vector<std::string>& tables)
{
    const test::TemporaryFolder copy;
    for (const auto& entry : fs::directory_iterator(folder))
        fs::copy_file(entry.path(), copy.file(entry.path().filename().string()));
    Books books;
    for (const storage::DatabaseSchema& schema : storage::databaseSchemas())
        EXPECT_EQ(OtherProgram(copy.file(std::string(schema.fileName))).ask("PRAGMA integrity_check").at(0).at(0), "ok")
            << schema.fileName;
    const OtherProgram log(copy.file("LogKelvo.mdb"));
    for (const std::string& table : tables)
        books.logs[table] = log.ask("SELECT * FROM " + table + " ORDER BY ID");
    for (const Row& row : log.ask("SELECT name, seq FROM sqlite_sequence"))
        books.lastIds[row.at(0)] = std::stol(row.at(1));
    for (const Row& row : OtherProgram(copy.file("DbsKelvo.mdb")).ask("SELECT * FROM QRA")) {
        EXPECT_FALSE(books.memory.contains(row.at(0))) << row.at(0) << " is remembered twice";
        books.memory[row.at(0)] = row.at(1);
    }
    return books;
}

void insert(const OtherProgram& database, const std::string& table, const Row& row)
{
    std::string places;
    for (std::size_t i = 0; i < row.size(); ++i)
        places += i == 0 ? "?" : ",?";
    database.ask("INSERT INTO " + table + " VALUES (" + places + ")", row);
}

/// A station that is killed again and again, and goes on each time.
class KilledStation {
 public:
    explicit KilledStation(const std::string& contest) : contest_(contest)
    {
        storage::makeMissingDatabases(folder_.path());
        test::writeFile(folder_.file("KelvoInit.dat"), initDat);
        test::writeFile(folder_.file("KELVOTextCw.dat"), textCw);
        books_ = readBooks(folder_.path(), {});
    }

    const std::string& contest() const { return contest_; }

    /// One run, killed once so many QSOs are logged and a part of the next one's time is over; or, with -1, on its way
    /// to the first one.
    void runAndKill(const ContestRun& run, int afterSteps, double part)
    {
        const std::string shown = shownByTwin(run);
        test::writeFile(script_.file("run.kelvo"), run.script());
        test::Child child(settings().program,
                          {"--folder", folder_.path().string(), script_.file("run.kelvo").string()});
        const auto begin = steady_clock::now();
        if (afterSteps < 0) {
            child.run(microseconds(static_cast<long>(part * static_cast<double>(wayTime.count()))));
        } else {
            ASSERT_TRUE(child.waitForLines(ready(), 1, patience)) << child.output();
            wayTime = since(begin);
            const auto first = steady_clock::now();
            ASSERT_TRUE(child.waitForLines(cleared(), afterSteps, patience)) << child.output();
            if (afterSteps > 1) stepTime = since(first) / afterSteps;
            child.run(microseconds(static_cast<long>(part * static_cast<double>(stepTime.count()))));
        }
        child.killNow();
        const auto shownNow = ContestRun::shownAtStart(child.output());
        if (shownNow) {
            EXPECT_EQ(*shownNow, shown) << "codes and totals of this run, which goes on behind a kill";
            ++goneOn;
        }
        check(run, child.output());
    }

    static inline int inTheMiddle = 0;  ///< kills between pressing Enter and a clear screen
    static inline int onTheWay = 0;     ///< kills before the first QSO
    static inline int goneOn = 0;       ///< runs that showed the right codes and totals at their beginning
    static inline long acknowledgedInAll = 0;

 private:
    static std::string ready() { return "FrmQSO." + std::string(ContestRun::ready); }
    static std::string cleared() { return "FrmQSO." + std::string(ContestRun::cleared); }

    static microseconds since(steady_clock::time_point begin)
    {
        return std::chrono::duration_cast<microseconds>(steady_clock::now() - begin);
    }

    /// Codes and totals that the program shows on a log with the same rows that never saw a kill.
    std::string shownByTwin(const ContestRun& run) const
    {
        const test::TemporaryFolder twin;
        storage::makeMissingDatabases(twin.path());
        fs::copy_file(folder_.file("KelvoInit.dat"), twin.file("KelvoInit.dat"));
        fs::copy_file(folder_.file("KELVOTextCw.dat"), twin.file("KELVOTextCw.dat"));
        {
            const OtherProgram log(twin.file("LogKelvo.mdb"));
            log.ask("BEGIN");
            for (const auto& [table, rows] : books_.logs)
                for (const Row& row : rows)
                    insert(log, table, row);
            log.ask("COMMIT");
        }
        test::writeFile(script_.file("twin.kelvo"), run.opening());
        test::Child child(settings().program, {"--folder", twin.path().string(), script_.file("twin.kelvo").string()});
        EXPECT_TRUE(child.waitForEnd(patience)) << child.output();
        const auto shown = ContestRun::shownAtStart(child.output());
        EXPECT_TRUE(shown) << child.output();
        return shown.value_or("");
    }

    void check(const ContestRun& run, const std::string& output)
    {
        const int acknowledged = ContestRun::acknowledged(output);
        acknowledgedInAll += acknowledged;
        ASSERT_EQ(acknowledged, test::linesWith(output, cleared())) << "a QSO was refused:\n" << output;
        const bool enterPressed = acknowledged < run.steps() && ContestRun::promiseOf(acknowledged, output);
        const bool mayDelete =
            acknowledged < run.steps() && run.callOf(acknowledged).empty() && ContestRun::shownAtStart(output);
        if (enterPressed) ++inTheMiddle;
        if (!ContestRun::shownAtStart(output)) ++onTheWay;

        tables_.insert(tables_.end(), run.course().table);
        std::sort(tables_.begin(), tables_.end());
        tables_.erase(std::unique(tables_.begin(), tables_.end()), tables_.end());
        const Books found = readBooks(folder_.path(), tables_);
        Books expected = run.booksAfter(books_, acknowledged, output);
        for (const std::string& table : tables_)
            expected.logs[table];
        std::vector<Books> allowed = {expected};
        if (enterPressed || mayDelete) {
            Books next = run.booksAfter(books_, acknowledged + 1, output);
            for (const std::string& table : tables_)
                next.logs[table];
            // The memory learns before the row is written.
            Books learned = expected;
            learned.memory = next.memory;
            allowed.push_back(learned);
            allowed.push_back(next);
        }
        const bool right = std::find(allowed.begin(), allowed.end(), found) != allowed.end();
        ASSERT_TRUE(right) << run.course().name << ": " << acknowledged << " acknowledged; expected\n"
                           << text(expected) << "found\n"
                           << text(found) << output;
        books_ = found;
        EXPECT_EQ(test::readFile(folder_.file("KelvoInit.dat")).substr(0, 16), "YO2XYZ\r\nKN05OS\r\n");
        EXPECT_TRUE(test::readFile(folder_.file("KelvoInit.dat")).ends_with("\r\nION\r\n"));
        EXPECT_EQ(test::readFile(folder_.file("KELVOTextCw.dat")), textCw);
    }

    static std::string text(const Books& books)
    {
        std::string text;
        for (const auto& [table, rows] : books.logs) {
            text += table + ", " + std::to_string(rows.size()) + " rows, the newest:\n";
            for (std::size_t i = rows.size() > 3 ? rows.size() - 3 : 0; i < rows.size(); ++i) {
                for (const std::string& column : rows[i])
                    text += "|" + column;
                text += "\n";
            }
        }
        for (const auto& [table, id] : books.lastIds)
            text += table + " gave out " + std::to_string(id) + "\n";
        return text + std::to_string(books.memory.size()) + " calls remembered\n";
    }

    static inline microseconds wayTime{50000};
    static inline microseconds stepTime{5000};

    std::string contest_;
    test::TemporaryFolder folder_;
    test::TemporaryFolder script_;
    std::vector<std::string> tables_;
    Books books_;
};

/// Every seventh kill comes on the way to the first QSO, the others while QSOs are logged.
TEST(Kill, LosesNoQsoWhoseScreenHadCleared)
{
    constexpr int mostSteps = 12;
    std::mt19937 random(settings().seed);
    SCOPED_TRACE("--seed " + std::to_string(settings().seed));
    std::uniform_real_distribution<double> part(0, 1.2);
    std::map<std::string, std::unique_ptr<KilledStation>> stations;
    long nextCall = 0;
    const auto courses = test::contestCourses();
    for (int kill = 0; kill < settings().kills; ++kill) {
        const test::ContestCourse& course = courses[static_cast<std::size_t>(kill) % courses.size()];
        // The bands, stages and modes of one contest share its folder.
        std::unique_ptr<KilledStation>& station = stations[course.contestButton];
        if (station == nullptr) station = std::make_unique<KilledStation>(course.contestButton);
        const ContestRun run(course, mostSteps, random, nextCall);
        const int afterSteps = random() % 7 == 0 ? -1 : static_cast<int>(random() % mostSteps);
        SCOPED_TRACE("kill " + std::to_string(kill) + ", " + course.name);
        station->runAndKill(run, afterSteps, part(random));
        if (HasFatalFailure() || HasFailure()) return;
    }
    std::cout << settings().kills << " kills, seed " << settings().seed << ": " << KilledStation::acknowledgedInAll
              << " QSOs and deletions acknowledged, " << KilledStation::inTheMiddle << " kills behind Enter, "
              << KilledStation::onTheWay << " on the way to the first QSO, " << KilledStation::goneOn
              << " runs went on with the right codes and totals\n";
    EXPECT_EQ(stations.size(), 11U);
    EXPECT_GT(KilledStation::inTheMiddle, settings().kills / 10)
        << "too few kills came between Enter and a clear screen";
    EXPECT_GT(KilledStation::acknowledgedInAll, settings().kills) << "the kills came before the logging";
    EXPECT_GT(KilledStation::onTheWay, settings().kills / 20);
}

/// One station at the set-up page: each time its call is another one, and the texts of its messages too.
std::string setUpScript(int writings)
{
    std::string script = "port 1\nstart\nclick OpBFloareademina\nclick OpbTest\nclick OpbCwJ\n";
    for (int number = 0; number < writings; ++number) {
        const char letter = static_cast<char>('A' + number % 26);
        script += "focus TxtMyCall\nkey End\nkey Backspace\ntype \"" + std::string(1, letter) + "\"\n" +
                  "focus TxtF1\nkey End\nkey Backspace\ntype \"" + std::string(1, letter) +
                  "\"\nclick mnuQSOfahren\nshow FrmQSO.LblMyCall.Caption\nclick mnuAnfang\n";
    }
    return script;
}

TEST(Kill, LeavesSetUpFilesOldOrNew)
{
    constexpr int writings = 26;
    std::mt19937 random(settings().seed);
    SCOPED_TRACE("--seed " + std::to_string(settings().seed));
    const test::TemporaryFolder folder;
    const test::TemporaryFolder scripts;
    storage::makeMissingDatabases(folder.path());
    test::writeFile(folder.file("KelvoInit.dat"), initDat);
    test::writeFile(folder.file("KELVOTextCw.dat"), textCw);
    test::writeFile(scripts.file("run.kelvo"), setUpScript(writings));
    const std::vector<std::string> arguments = {"--folder", folder.path().string(), scripts.file("run.kelvo").string()};
    const std::string written = "FrmQSO.LblMyCall.Caption=";

    // A run that is left alone says how the files look.
    {
        test::Child child(settings().program, arguments);
        ASSERT_TRUE(child.waitForEnd(patience));
        ASSERT_EQ(test::linesWith(child.output(), written), writings) << child.output();
    }
    std::string station = test::readFile(folder.file("KelvoInit.dat"));
    std::string messages = test::readFile(folder.file("KELVOTextCw.dat"));
    ASSERT_TRUE(station.starts_with("YO2XYZ\r\nKN05OS\r\n")) << station;
    ASSERT_TRUE(messages.starts_with("CZ\r\n599\r\n")) << messages;
    const auto stationOf = [&](char letter) { return "YO2XY" + std::string(1, letter) + station.substr(6); };
    const auto messagesOf = [&](char letter) { return "C" + std::string(1, letter) + messages.substr(2); };

    char last = 'Z';
    int between = 0;
    const int kills = std::max(10, settings().kills / 10);
    microseconds time(3000);
    std::uniform_real_distribution<double> part(0, 1.2);
    for (int kill = 0; kill < kills; ++kill) {
        SCOPED_TRACE("kill " + std::to_string(kill));
        test::Child child(settings().program, arguments);
        const int after = 1 + static_cast<int>(random() % (writings - 2));
        ASSERT_TRUE(child.waitForLines(written, 1, patience));
        const auto first = steady_clock::now();
        ASSERT_TRUE(child.waitForLines(written, after, patience));
        if (after > 1) time = std::chrono::duration_cast<microseconds>(steady_clock::now() - first) / (after - 1);
        child.run(microseconds(static_cast<long>(part(random) * static_cast<double>(time.count()))));
        child.killNow();
        const int done = test::linesWith(child.output(), written);
        last = static_cast<char>('A' + (done - 1) % 26);
        const char next = static_cast<char>(last == 'Z' ? 'A' : last + 1);
        const std::string stationNow = test::readFile(folder.file("KelvoInit.dat"));
        const std::string messagesNow = test::readFile(folder.file("KELVOTextCw.dat"));
        ASSERT_TRUE(stationNow == stationOf(last) || stationNow == stationOf(next)) << last << ": " << stationNow;
        ASSERT_TRUE(messagesNow == messagesOf(last) || messagesNow == messagesOf(next)) << last << ": " << messagesNow;
        if (messagesNow == messagesOf(next)) ++between;
        for (const auto& entry : fs::directory_iterator(folder.path())) {
            const std::string name = entry.path().filename().string();
            EXPECT_TRUE(name.find(".mdb") != std::string::npos || name.starts_with("KelvoInit.dat") ||
                        name.starts_with("KELVOTextCw.dat"))
                << name;
        }
    }
    std::cout << kills << " kills at the set-up files, " << between << " of them between the two\n";

    // What a kill left beside goes with the next writing.
    test::Child child(settings().program, arguments);
    ASSERT_TRUE(child.waitForEnd(patience));
    EXPECT_EQ(test::readFile(folder.file("KelvoInit.dat")), stationOf('Z'));
    EXPECT_FALSE(fs::exists(folder.file("KelvoInit.dat.new")));
    EXPECT_FALSE(fs::exists(folder.file("KELVOTextCw.dat.new")));
}

/// Killed while it makes the databases of a first start: what has its name is whole, and the next start makes the rest
/// and sweeps what lies beside.
TEST(Kill, LeavesNoHalfDatabase)
{
    std::mt19937 random(settings().seed);
    const fs::path newdb = settings().program.parent_path() / "kelvo-newdb";
    microseconds time(100000);
    {
        const test::TemporaryFolder folder;
        const auto begin = steady_clock::now();
        test::Child child(newdb, {folder.path().string()});
        ASSERT_TRUE(child.waitForEnd(patience));
        time = std::chrono::duration_cast<microseconds>(steady_clock::now() - begin);
    }
    const int kills = std::max(10, settings().kills / 10);
    int unfinished = 0;
    std::uniform_real_distribution<double> part(0, 1);
    for (int kill = 0; kill < kills; ++kill) {
        const test::TemporaryFolder folder;
        {
            test::Child child(newdb, {folder.path().string()});
            child.run(microseconds(static_cast<long>(part(random) * static_cast<double>(time.count()))));
        }
        for (const storage::DatabaseSchema& schema : storage::databaseSchemas()) {
            const fs::path file = folder.file(std::string(schema.fileName));
            if (!fs::exists(file)) {
                ++unfinished;
                continue;
            }
            for (const storage::TableSchema& table : schema.tables)
                EXPECT_TRUE(OtherProgram(file).ask("SELECT * FROM " + std::string(table.name)).empty());
        }
        test::Child again(newdb, {folder.path().string()});
        ASSERT_TRUE(again.waitForEnd(patience));
        EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()), 3) << again.output();
    }
    std::cout << kills << " kills while databases were made, " << unfinished << " not made by then\n";
    EXPECT_GT(unfinished, 0);
}

bool readSettings(int count, char** words)
{
    for (int i = 1; i + 1 < count; i += 2) {
        const std::string name = words[i];
        const std::string value = words[i + 1];
        if (name == "--kills")
            settings().kills = std::stoi(value);
        else if (name == "--seed")
            settings().seed = static_cast<unsigned>(std::stoul(value));
        else if (name == "--program")
            settings().program = fs::absolute(value);
        else
            return false;
    }
    return count % 2 == 1;
}

}  // namespace

int main(int count, char** words)
{
    testing::InitGoogleTest(&count, words);
    if (!readSettings(count, words)) {
        std::cerr << "usage: kill_test [--kills N] [--seed N] [--program FILE]\n";
        return 2;
    }
    std::cout << "seed " << settings().seed << '\n';
    return RUN_ALL_TESTS();
}
