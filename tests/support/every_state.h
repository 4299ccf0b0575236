// A tour through all pages of the program, as every contest shows them: for what must hold for each of them.
#pragma once

#include <functional>
#include <memory>
#include <set>
#include <string>

#include "runstate/contests.h"
#include "screen/form.h"
#include "support/script_face.h"

namespace test {

/// Leads an operator through every contest: the set-up page, the entry form with each band, stage and mode, a
/// duplicate, an abort, paper-log input, and every job of the review form.
class EveryState {
 public:
    /// Called at each stop with the form on the screen and a word on how it came there.
    using Visit = std::function<void(const screen::Form& form, const std::string& state)>;

    explicit EveryState(Visit visit) : visit_(std::move(visit)) {}

    void visitAll();

 private:
    void visit(const std::string& state);
    bool click(screen::Control& control);
    void strike(const std::string& key);
    void beginContest(const runstate::Contest& contest);
    void openEntry();
    void visitSetUp(const runstate::Contest& contest);
    void visitEntry(const runstate::Contest& contest, screen::CommandButton& band);
    void noteOfferedBands();
    void visitModes();
    void visitDuplicate();
    void visitPaperLog(const runstate::Contest& contest);
    void visitReview(const runstate::Contest& contest);
    void visitOptionsOf(const screen::Frame& frame);
    void visitEdi();
    void visitTextFiles();
    void visitArchive();

    Visit visit_;
    std::unique_ptr<ScriptFace> face_;
    std::string where_;
    std::set<const screen::Control*> offeredBands_;  ///< above 144
};

}  // namespace test
