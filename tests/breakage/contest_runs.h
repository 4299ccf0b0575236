// Contests of random QSOs as scripts, and what must stand in the databases behind each step of them.
#pragma once

#include <map>
#include <optional>
#include <random>
#include <span>
#include <string>
#include <vector>

namespace test {

/// A way through a contest: where its QSOs go, and how they are entered.
struct ContestCourse {
    std::string name;
    std::string contestButton;
    std::string choices;  ///< clicks of band, mode and stage on the entry form
    std::string report;
    std::string mode;
    std::string band;  ///< as logged
    std::string table;
    std::string grid;       ///< empty where no row is deleted
    bool romanian = false;  ///< the beginning of call and locator stands in the fields
    bool names = false;     ///< the Maraton: names are exchanged too
    bool paper = false;
};

/// All contests with their bands, stages and modes, live and from paper.
std::span<const ContestCourse> contestCourses();

/// One step: a QSO, or the deletion of the newest one.
struct Step {
    bool deletion = false;
    std::string call;
    std::string code;
    std::string locator;
    std::string name;
    std::string minute;
};

using Row = std::vector<std::string>;

/// What must stand in the databases.
struct Books {
    std::map<std::string, std::vector<Row>> logs;  ///< by table
    std::map<std::string, long> lastIds;           ///< of each table: none is given out twice
    std::map<std::string, std::string> memory;     ///< locators by call

    bool operator==(const Books&) const = default;
};

/// What the screen said of a QSO before Enter.
struct Promise {
    std::string codeSent;
    std::string points;
};

/// One run of the program: the way to the first QSO, then step after step. Each step ends with a line that begins with
/// `cleared`, printed once the screen is.
class ContestRun {
 public:
    static constexpr const char* ready = "LblConc.Caption=";
    static constexpr const char* cleared = "TxtRSTR2.Text=";

    ContestRun(const ContestCourse& course, int steps, std::mt19937& random, long& nextCall);

    /// The script up to the first QSO, which prints codes and totals.
    std::string opening() const;
    std::string script() const;

    const ContestCourse& course() const { return course_; }
    /// Codes and totals that an output shows at its beginning; nothing when it did not come so far.
    static std::optional<std::string> shownAtStart(const std::string& output);
    /// Steps behind which the screen was clear.
    static int acknowledged(const std::string& output);

    /// The books behind so many steps; what was sent and the points are those of the output.
    Books booksAfter(const Books& before, int steps, const std::string& output) const;
    /// What the output promises of a step, from 0; nothing when its Enter was not pressed.
    static std::optional<Promise> promiseOf(int step, const std::string& output);
    /// The call that a step teaches the memory; empty for a deletion.
    std::string callOf(int step) const { return steps_.at(static_cast<std::size_t>(step)).call; }
    int steps() const { return static_cast<int>(steps_.size()); }

 private:
    std::string scriptOf(const Step& step) const;
    Row rowOf(const Step& step, const Promise& promise, long id) const;

    const ContestCourse& course_;
    std::vector<Step> steps_;
};

}  // namespace test
