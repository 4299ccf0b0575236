// An operator who goes through all pages of the program in one contest, by keys and clicks, and stops at every state
// that looks different.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "app/grid_view.h"
#include "app/picture.h"
#include "platform/machine.h"
#include "script/operator.h"

namespace layout {

/// A folder with logs, locators, set-up files and sounds for every contest.
void prepareFolder(const std::filesystem::path& folder);

class Walk {
 public:
    /// What is to be seen in a state, and what the state is.
    using Look = std::function<void(const app::Picture& page, const std::string& state)>;
    /// Hears of what cannot be done on the way.
    using Complain = std::function<void(const std::string& complaint)>;

    /// `folder` is a prepared one.
    Walk(const std::filesystem::path& folder, platform::ScreenSize screen, int contest, Look look, Complain complain);

    /// From the start of the program to its last job.
    void go();

 private:
    void setUp();
    void setUpWithoutSound();
    void entry();
    void modes();
    void bands();
    void bandsOfTheChampionship();
    void stages(const std::string& band);
    void microwaves();
    void exchange();
    void duplicate();
    void keying();
    void voice();
    void wayBack();
    void paperLog();
    void review();
    void views();
    void emptying();
    void emptyLog();
    void printing();
    void diskette();
    void textFiles();
    void edi();
    void ediPages(const std::string& band);
    void archive();

    void play(const std::string& script);
    void at(const std::string& state);
    bool canClick(const std::string& control) const;
    /// Clicks those of the buttons that can be clicked now, and stops behind each.
    void clickEach(const std::vector<std::string>& buttons, const std::string& state);
    void take(const std::string& line);

    platform::ScreenSize screen_;
    int contest_;
    Look look_;
    Complain complain_;
    std::string stateAmidst_;  ///< what a handler is doing when the script shows the form
    app::GridViews gridViews_;
    script::Operator operator_;
};

}  // namespace layout
