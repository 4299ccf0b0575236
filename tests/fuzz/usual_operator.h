// An operator who does what operators do, whatever state the files are in: opens the entry, logs, sends, looks at the
// logs, writes the files for the organiser.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "fuzz/driven_program.h"
#include "fuzz/targets.h"

namespace fuzz {

/// Nothing is expected of files that are damaged but that the program lives.
class NoOnlooker final : public Onlooker {
 public:
    void entryComes(const app::QueueEntry& /*entry*/) override {}
    void programWaits(bool /*atRest*/) override {}
    void boxAnswered(const script::ShownBox& /*box*/) override {}
    void programIsGone(bool /*killed*/) override {}
    void pictureComes(const app::Picture& /*picture*/) override {}
};

class UsualOperator {
 public:
    /// `choice` picks the contest, and whether there is a window.
    UsualOperator(const std::filesystem::path& folder, unsigned choice);

    void openEntry();
    void logQso(const std::string& call);
    void sendMessages();
    void deleteRow();
    void review();
    /// Ends the program, as the power does.
    void end();

    /// Rows of a call in all logs, as SQLite reads them; -1 when a table cannot be read.
    long rowsOf(const std::string& call) const;
    /// A box other than the usual ones, or a notice.
    bool somethingWasSaid() const;
    void printWhatWasSaid(const LineSink& print) const;

 private:
    void play(std::string_view script);

    std::filesystem::path folder_;
    unsigned choice_;
    NoOnlooker onlooker_;
    DrivenProgram program_;
};

}  // namespace fuzz
