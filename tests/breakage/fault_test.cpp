// Every call to the disk that a work makes fails once in every way, and each time: nothing logged is lost, every file
// under its name is the old one or the new one and nothing lies beside, the operator is told and keeps what was
// entered, and once the trouble is over the same work goes through.
//
//   fault_test [--every-call]
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <array>
#include <filesystem>
#include <iostream>
#include <map>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "base/runtime_error.h"
#include "breakage/failing_disk.h"
#include "breakage/works.h"
#include "screen/frm_qso.h"
#include "script/operator.h"
#include "script/parser.h"
#include "storage/schema.h"
#include "support/temporary_folder.h"

namespace {

namespace fs = std::filesystem;

using test::Fault;
using test::FolderImage;
using test::Left;
using test::Work;

/// Rows of all tables by database and table.
using Logs = std::map<std::string, std::vector<std::vector<std::string>>>;

bool isDatabase(const std::string& name)
{
    return name.ends_with(".mdb");
}

/// What belongs to a database: its journal stays beside it, empty.
bool isOfDatabase(const std::string& name)
{
    return isDatabase(name) || name.ends_with(".mdb-journal");
}

class Database {
 public:
    explicit Database(const fs::path& file)
    {
        if (sqlite3_open_v2(file.c_str(), &handle_, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK)
            ADD_FAILURE() << file << " cannot be opened";
    }
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;
    ~Database() { sqlite3_close(handle_); }

    std::vector<std::vector<std::string>> ask(const std::string& question) const
    {
        std::vector<std::vector<std::string>> rows;
        sqlite3_stmt* statement = nullptr;
        EXPECT_EQ(sqlite3_prepare_v2(handle_, question.c_str(), -1, &statement, nullptr), SQLITE_OK)
            << question << ": " << sqlite3_errmsg(handle_);
        while (sqlite3_step(statement) == SQLITE_ROW) {
            std::vector<std::string>& row = rows.emplace_back();
            for (int i = 0; i < sqlite3_column_count(statement); ++i) {
                const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, i));
                row.emplace_back(text == nullptr ? "" : text);
            }
        }
        sqlite3_finalize(statement);
        return rows;
    }

 private:
    sqlite3* handle_ = nullptr;
};

Logs readLogs(const fs::path& folder)
{
    Logs logs;
    for (const storage::DatabaseSchema& schema : storage::databaseSchemas()) {
        const std::string name(schema.fileName);
        const Database database(folder / name);
        EXPECT_EQ(database.ask("PRAGMA integrity_check").at(0).at(0), "ok") << name;
        for (const storage::TableSchema& table : schema.tables)
            logs[name + " " + std::string(table.name)] = database.ask("SELECT * FROM " + std::string(table.name));
    }
    return logs;
}

/// Files other than the databases.
FolderImage filesIn(const fs::path& folder)
{
    FolderImage files = test::imageOf(folder);
    std::erase_if(files, [](const auto& file) { return isOfDatabase(file.first); });
    return files;
}

std::vector<std::string> besideNames(const FolderImage& files)
{
    std::vector<std::string> names;
    for (const auto& [name, bytes] : files)
        if (name.ends_with(".new")) names.push_back(name);
    return names;
}

/// What lies in a folder.
struct State {
    Logs logs;
    FolderImage files;

    bool operator==(const State&) const = default;
};

State stateOf(const fs::path& folder)
{
    return {readLogs(folder), filesIn(folder)};
}

/// A program under the hands of an operator in a folder of its own, on a disk that can fail.
class Bench {
 public:
    explicit Bench(const FolderImage& image) : disk_(prepared(folder_.path(), image)) { startAnew(); }

    /// Takes the program away. The next one begins in the same folder.
    void startAnew()
    {
        operator_.reset();
        operator_ = std::make_unique<script::Operator>(folder_.path(), [this](const std::string& line) {
            // Steps that could not be done.
            printed_ += line + "\n";
        });
    }
    void kill() { operator_.reset(); }

    void play(const std::string& text)
    {
        printed_.clear();
        operator_->play(script::parse(text, "work"));
    }

    /// The program ended by itself.
    bool ended()
    {
        play("expect ended");
        return printed_.empty();
    }

    test::FailingDisk& disk() { return disk_; }
    const fs::path& folder() const { return folder_.path(); }
    const std::string& printed() const { return printed_; }
    std::size_t told() { return operator_->machine().record.notices.size() + operator_->machine().boxes.all().size(); }
    std::size_t notices() { return operator_->machine().record.notices.size(); }
    std::string lastNotice() { return notices() == 0 ? "" : operator_->machine().record.notices.back(); }

 private:
    static const fs::path& prepared(const fs::path& folder, const FolderImage& image)
    {
        test::putImage(folder, image);
        return folder;
    }

    test::TemporaryFolder folder_;
    test::FailingDisk disk_;
    std::string printed_;
    std::unique_ptr<script::Operator> operator_;
};

/// A work without any trouble: what is before, and what is behind it.
struct Course {
    FolderImage image;
    State before;
    State after;
    std::size_t told = 0;
    std::size_t notices = 0;
};

Course undisturbed(const Work& work)
{
    Course course;
    {
        const test::TemporaryFolder folder;
        storage::makeMissingDatabases(folder.path());
        script::Operator preparing(folder.path(), [](const std::string& line) { ADD_FAILURE() << line; });
        preparing.play(script::parse(work.prepared, "prepared"));
        course.image = test::imageOf(folder.path());
    }
    Bench bench(course.image);
    bench.play(work.before);
    EXPECT_EQ(bench.printed(), "");
    course.before = stateOf(bench.folder());
    const std::size_t told = bench.told();
    const std::size_t notices = bench.notices();
    bench.play(work.act);
    EXPECT_EQ(bench.printed(), "");
    course.told = bench.told() - told;
    course.notices = bench.notices() - notices;
    course.after = stateOf(bench.folder());
    EXPECT_EQ(course.before.logs != course.after.logs, work.changesLog);
    EXPECT_EQ(course.before.files != course.after.files, work.changesFiles);
    return course;
}

std::string_view oldOrNew(const FolderImage& before, const FolderImage& after, const std::string& name,
                          const std::string& bytes)
{
    const auto is = [&](const FolderImage& files) {
        const auto found = files.find(name);
        return found != files.end() && found->second == bytes;
    };
    if (is(before) || is(after)) return "";
    return before.contains(name) || after.contains(name) ? " is neither the old one nor the new one" : " is a stray";
}

/// Asked for on the command line. Without it a fault comes at some of the calls only, one that lasts at fewer of them:
/// what it does from one call on is much the same from the next.
bool& everyCall()
{
    static bool every = false;
    return every;
}

class Breakage : public testing::TestWithParam<std::tuple<std::size_t, Fault>> {
 protected:
    Breakage() : work(test::works()[std::get<0>(GetParam())]), fault(std::get<1>(GetParam())), course(undisturbed(work))
    {
    }

    /// Every file under its name is whole, and none that was there is gone.
    void expectWholeFiles(const FolderImage& files, bool mayLieBeside) const
    {
        for (const auto& [name, bytes] : files) {
            if (mayLieBeside && name.ends_with(".new")) continue;
            EXPECT_EQ(oldOrNew(course.before.files, course.after.files, name, bytes), "") << name << ": " << bytes;
        }
        for (const auto& [name, bytes] : course.before.files)
            EXPECT_TRUE(files.contains(name) || !course.after.files.contains(name)) << name << " is gone";
    }

    void expectWholeLogs(const Logs& logs) const
    {
        for (const auto& [table, rows] : logs)
            EXPECT_TRUE(rows == course.before.logs.at(table) || rows == course.after.logs.at(table))
                << table << " has " << rows.size() << " rows";
    }

    /// The log alone, without the locator memory that learns before it.
    static bool sameLog(const Logs& one, const Logs& other)
    {
        for (const auto& [table, rows] : one)
            if (table.starts_with("LogKelvo") && rows != other.at(table)) return false;
        return true;
    }

    bool isNewQso() const { return work.act == "key Enter\n"; }

    /// The fields of the QSO as they were before Enter.
    struct Fields {
        std::string call, report, code, locator, name;
        bool mayEnter = false;

        static Fields now()
        {
            return {FrmQSO.txtIndic.Text, FrmQSO.TxtRSTR1.Text,    FrmQSO.TxtRSTR2.Text,
                    FrmQSO.TxtRSTr3.Text, FrmQSO.TxtYourName.Text, FrmQSO.CmdEnterCall.Enabled};
        }
        bool operator==(const Fields&) const = default;
    };

    /// The machine goes on: what the operator finds, and the second attempt. Returns false when the fault no longer
    /// happens at any call.
    bool survives(long call)
    {
        Bench bench(course.image);
        bench.play(work.before);
        const Fields fields = Fields::now();
        const std::size_t toldBefore = bench.told();
        const std::size_t noticesBefore = bench.notices();
        bench.disk().failAt(fault, call);
        bench.play(work.act);
        const std::string hit = bench.disk().hit();
        // A row that cannot be read cannot be clicked on: the operator sees that.
        const bool couldNotAct = !bench.printed().empty();
        const bool told = bench.notices() - noticesBefore > course.notices || bench.told() - toldBefore > course.told;
        bench.disk().repair();
        if (hit.empty()) return false;
        SCOPED_TRACE(std::string(test::nameOf(fault)) + " at call " + std::to_string(call) + ", " + hit +
                     "; last notice: " + bench.lastNotice());

        const State state = stateOf(bench.folder());
        // Where the folder was away nobody could sweep it.
        expectWholeFiles(state.files, fault == Fault::folderGone || fault == Fault::noAccess ||
                                          fault == Fault::writeProtected || fault == Fault::broken);
        expectWholeLogs(state.logs);
        const bool cleared = isNewQso() && Fields::now().code.empty();
        const bool logged = sameLog(state.logs, course.after.logs);
        EXPECT_TRUE(!cleared || logged) << "the screen is cleared, and the QSO is not in the log";
        EXPECT_TRUE(!isNewQso() || cleared || Fields::now() == fields) << "the fields are kept";
        // A disk that is broken for good cannot tell whether the commit went through. Else the program knows.
        EXPECT_TRUE(!isNewQso() || cleared || !logged || fault == Fault::broken) << "the QSO is in the log unsaid";
        const bool done = logged && state.files == course.after.files && (cleared || !isNewQso());
        EXPECT_TRUE(done || couldNotAct || told) << "nobody was told";
        if (!done) {
            const bool ended = bench.ended();
            if (ended) bench.startAnew();
            bench.play(ended ? work.before + work.act : work.again);
            EXPECT_EQ(bench.printed(), "");
        }
        const State end = stateOf(bench.folder());
        EXPECT_TRUE(sameLog(end.logs, course.after.logs)) << "the second attempt";
        if (!done) {
            EXPECT_EQ(end.files, course.after.files);
            EXPECT_EQ(besideNames(end.files), std::vector<std::string>());
        }
        return true;
    }

    /// The power goes at a call: what the next program finds, whatever came back. Returns false behind the last call.
    bool outlastsPowerCut(long call)
    {
        constexpr std::array ways = {Left::nothing, Left::everything, Left::names, Left::bytes, Left::some, Left::some};
        Bench bench(course.image);
        bench.play(work.before);
        bench.disk().failAt(Fault::powerCut, call);
        bench.play(work.act);
        const std::string hit = bench.disk().hit();
        const bool finished = hit.empty();
        const bool acknowledged = finished || (isNewQso() && Fields::now().code.empty());
        if (finished) bench.disk().cutPower();
        bench.kill();
        std::vector<FolderImage> left;
        for (std::uint32_t way = 0; way < ways.size(); ++way)
            left.push_back(bench.disk().leftByPowerCut(ways.at(way), way));
        bench.disk().repair();

        for (std::size_t way = 0; way < left.size(); ++way) {
            SCOPED_TRACE("power cut at call " + std::to_string(call) + ", " + hit + ", survival " +
                         std::to_string(way));
            test::putImage(bench.folder(), left[way]);
            const State state = stateOf(bench.folder());
            expectWholeFiles(state.files, true);
            expectWholeLogs(state.logs);
            EXPECT_TRUE(!acknowledged || state.logs == course.after.logs) << "what was done is lost";
            EXPECT_TRUE(!finished || state.files == course.after.files) << "what was done is lost";
        }
        // The next program, on the last of them, does the work anew.
        if (!work.changesFiles) return !finished;
        bench.startAnew();
        bench.play(work.before + work.act);
        EXPECT_EQ(bench.printed(), "");
        EXPECT_EQ(filesIn(bench.folder()), course.after.files);
        return !finished;
    }

    const Work& work;
    Fault fault;
    Course course;
};

TEST_P(Breakage, AtEveryCall)
{
    long call = 0;
    const auto goesOn = [&] { return fault == Fault::powerCut ? outlastsPowerCut(call) : survives(call); };
    const bool lasts =
        fault == Fault::full || fault == Fault::broken || fault == Fault::writeProtected || fault == Fault::folderGone;
    // A share of the calls, as long as nobody asks for all.
    constexpr long shareOfLasting = 11;
    constexpr long shareOfOthers = 6;
    const long share = lasts ? shareOfLasting : shareOfOthers;
    const long step = everyCall() ? 1 : share;
    while (goesOn() && !HasFailure())
        call += step;
    // Not every work takes a lock or makes a file; all else happens to each.
    const bool mayMissIt = fault == Fault::locked || fault == Fault::noAccess;
    EXPECT_TRUE(call > 0 || mayMissIt) << "the fault never happened";
    RecordProperty("calls", std::to_string(call));
}

std::string wordOf(std::string text)
{
    std::string word;
    bool capital = true;
    for (const char c : text) {
        const bool letter = std::isalnum(static_cast<unsigned char>(c)) != 0;
        if (letter) word += capital ? static_cast<char>(std::toupper(static_cast<unsigned char>(c))) : c;
        capital = !letter;
    }
    return word;
}

std::vector<std::size_t> allWorks()
{
    std::vector<std::size_t> numbers(test::works().size());
    for (std::size_t i = 0; i < numbers.size(); ++i)
        numbers[i] = i;
    return numbers;
}

INSTANTIATE_TEST_SUITE_P(Each, Breakage,
                         testing::Combine(testing::ValuesIn(allWorks()),
                                          testing::Values(Fault::powerCut, Fault::full, Fault::fullOnce, Fault::broken,
                                                          Fault::brokenOnce, Fault::writeProtected, Fault::noAccess,
                                                          Fault::locked, Fault::folderGone)),
                         [](const auto& each) {
                             return wordOf(test::works()[std::get<0>(each.param)].name) + "With" +
                                    wordOf(test::nameOf(std::get<1>(each.param)));
                         });

/// The empty databases of a first start.
class FirstDatabases : public testing::TestWithParam<Fault> {
 protected:
    static int make(const fs::path& folder)
    {
        try {
            storage::makeMissingDatabases(folder);
            return 0;
        } catch (const base::RuntimeError& error) {
            EXPECT_FALSE(std::string(error.what()).empty());
            return error.number();
        }
    }

    /// What has its name is whole.
    static int wholeDatabases(const fs::path& folder)
    {
        int count = 0;
        for (const storage::DatabaseSchema& schema : storage::databaseSchemas()) {
            const fs::path file = folder / std::string(schema.fileName);
            if (!fs::exists(file)) continue;
            ++count;
            for (const storage::TableSchema& table : schema.tables)
                EXPECT_TRUE(Database(file).ask("SELECT * FROM " + std::string(table.name)).empty());
        }
        return count;
    }

    /// Returns false when the fault no longer happens at any call.
    static bool outlasts(Fault fault, long call, Left left)
    {
        const test::TemporaryFolder folder;
        test::FailingDisk disk(folder.path());
        disk.failAt(fault, call);
        const int error = make(folder.path());
        const std::string hit = disk.hit();
        // Whoever was told that they are made may rely on it.
        if (error == 0 && fault == Fault::powerCut) disk.cutPower();
        const FolderImage survivors = disk.leftByPowerCut(left, static_cast<std::uint32_t>(call));
        disk.repair();
        if (fault == Fault::powerCut) test::putImage(folder.path(), survivors);
        SCOPED_TRACE(std::string(test::nameOf(fault)) + " at call " + std::to_string(call) + ", " + hit);
        const int made = wholeDatabases(folder.path());
        EXPECT_TRUE(error != 0 || made == 3) << made;
        const bool canSweep = fault == Fault::full || fault == Fault::fullOnce || fault == Fault::brokenOnce;
        const bool sweeps = canSweep && hit.find("remove") == std::string::npos;
        EXPECT_TRUE(!sweeps || test::imageOf(folder.path()).size() == static_cast<std::size_t>(made))
            << "something lies beside";
        EXPECT_EQ(make(folder.path()), 0);
        EXPECT_EQ(wholeDatabases(folder.path()), 3);
        EXPECT_EQ(test::imageOf(folder.path()).size(), 3U) << "something lies beside";
        return !hit.empty();
    }
};

TEST_P(FirstDatabases, AreWholeOrNotThere)
{
    for (const Left left : {Left::nothing, Left::everything, Left::names, Left::bytes, Left::some}) {
        long call = 0;
        while (outlasts(GetParam(), call, left) && !HasFailure())
            ++call;
        EXPECT_GT(call, GetParam() == Fault::locked ? -1 : 5);
        if (GetParam() != Fault::powerCut) return;
    }
}

INSTANTIATE_TEST_SUITE_P(Each, FirstDatabases,
                         testing::Values(Fault::powerCut, Fault::full, Fault::fullOnce, Fault::broken,
                                         Fault::brokenOnce, Fault::writeProtected, Fault::noAccess, Fault::locked,
                                         Fault::folderGone),
                         [](const auto& fault) { return wordOf(test::nameOf(fault.param)); });

}  // namespace

int main(int count, char** words)
{
    testing::InitGoogleTest(&count, words);
    everyCall() = count == 2 && std::string(words[1]) == "--every-call";
    if (count > 1 && !everyCall()) {
        std::cerr << "usage: fault_test [--every-call]\n";
        return 2;
    }
    return RUN_ALL_TESTS();
}
