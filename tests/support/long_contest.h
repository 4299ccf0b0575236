// A contest of 24 hours in virtual time, played by the scripted operator on the whole program: three bands in turn, new
// stations and known ones, duplicates, calls given up, messages keyed. And what must have come of it, worked out apart.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "script/operator.h"

namespace test {

/// A QSO as the log must have it.
struct ExpectedQso {
    std::string table;
    std::vector<std::string> columns;  ///< Callsign to Pct
};

/// The log of the whole contest, in the order in which it is worked. Worked out without the program.
std::vector<ExpectedQso> expectedLog(int qsos);

/// What must be in the locator memory.
int expectedMemory(int qsos);

class LongContest {
 public:
    /// `folder` has the three empty databases. Complaints of the script go to `complaints()`.
    LongContest(const std::filesystem::path& folder, int qsos);

    /// From the start of the program to the open entry form.
    void begin();

    /// Everything between two QSOs: the time that goes by, a change of band, a message, a call that is given up.
    void comeToNext();

    /// The next QSO from the first letter of its call to the cleared screen.
    void logNext();

    /// What the review form counts in the end, as "QSOs points" for 144, 432 and 1296 MHz. Leaves the entry form.
    std::vector<std::string> countsOfReview();

    const std::vector<std::string>& complaints() const { return complaints_; }

 private:
    void play(const std::string& text);
    void waitForTurn();

    int qsos_;
    int next_ = 0;
    std::vector<std::string> complaints_;
    script::Operator operator_;
};

}  // namespace test
