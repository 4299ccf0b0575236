// What must hold whatever an operator does, checked at every entry that the program takes.
//
// The checks trust the screen as the operator sees it, the tables as SQLite reads them and the lines of the serial
// port; of the state of the program they take only what they check. Each stands in a function of its own below.
#pragma once

#include <array>
#include <filesystem>
#include <map>
#include <optional>
#include <string>

#include "fuzz/broken.h"
#include "fuzz/driven_program.h"
#include "fuzz/score_watch.h"
#include "fuzz/tables.h"

namespace fuzz {

class Watch final : public Onlooker {
 public:
    explicit Watch(const std::filesystem::path& folder);

    /// The machine that the program stands on; before anything happens.
    void lookAt(script::VirtualMachine& machine) { machine_ = &machine; }

    void entryComes(const app::QueueEntry& entry) override;
    void programWaits(bool atRest) override;
    void boxAnswered(const script::ShownBox& box) override;
    void programIsGone(bool killed) override;
    void pictureComes(const app::Picture& picture) override;

    /// The fuzzer changed a table itself.
    void tablesWereChangedBehind();
    /// Nothing happens any more: the files as they are left.
    void theEnd();

 private:
    /// What stood on the screen before an entry, and what the entry may do.
    struct Before {
        bool mayWrite = false;  ///< a key or a click that logs
        bool fromCall = false;  ///< it is for the call field, or clicks the button of that purpose
        std::string call;
        std::string received;
        std::string locator;
        std::string mode;
        std::string countOnScreen;
        std::size_t notices = 0;
        bool entryForm = false;
    };
    /// Rows that the operator let go with a Yes.
    struct Leave {
        int rows = 0;            ///< one each
        std::string wholeTable;  ///< all of it
        std::string memoryOrLog;
    };

    void checkSerialLines(bool atRest);
    void checkGrids() const;
    void checkLog();
    void checkTable(const std::string& table, const Rows& before, const Rows& now);
    void checkNewRow(const std::string& table, const std::vector<std::string>& row) const;
    void checkChangedRow(const std::string& table, const std::vector<std::string>& before,
                         const std::vector<std::string>& now) const;
    void checkRowsGone(const std::string& table, std::size_t gone, std::size_t left);
    void checkMemory();
    void checkClearedScreen(std::size_t rowsWritten) const;
    void checkFigures();
    void checkFiguresOfTable(const Figures& figure, const Happened& happened);
    std::optional<long> rowsInHand() const;
    void noteFailedWriter(std::size_t rowsWritten);
    void forgetFigures();
    std::size_t noticesGiven() const;

    std::filesystem::path folder_;
    script::VirtualMachine* machine_ = nullptr;
    TableReader log_;
    TableReader memory_;
    std::map<std::string, Rows> tables_;
    Counts counts_;  ///< of these tables
    Rows calls_;
    std::map<std::string, std::int64_t> greatestKey_;
    std::map<std::string, Trust> trust_;
    ScoreWatch score_;
    Before before_;
    Leave leave_;
    std::size_t rowsWritten_ = 0;  ///< since the last look
    std::string deletedFrom_;      ///< table that lost a row on the entry form since the program was last at rest
    bool countRaised_ = false;     ///< by an Enter that wrote no row, since the last recount
    std::size_t noticesAtRest_ = 0;
    std::size_t serialSeen_ = 0;
    bool transmitter_ = false;
    bool key_ = false;
};

}  // namespace fuzz
