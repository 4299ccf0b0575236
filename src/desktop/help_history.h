// The way of the reader through the help: back and forward.
#pragma once

#include <cstddef>
#include <vector>

#include "desktop/help_page.h"

namespace desktop {

/// A topic, and where the reader left its page.
struct HelpVisit {
    std::size_t topic = 0;
    HelpPage::Place place;
};

class HelpHistory {
 public:
    /// The reader goes on from `left`: what lay ahead is forgotten.
    void goOnFrom(const HelpVisit& left);

    bool canGoBack() const { return !behind_.empty(); }
    bool canGoForward() const { return !ahead_.empty(); }

    /// One step from `left`. Only where there is one to go.
    HelpVisit goBack(const HelpVisit& left);
    HelpVisit goForward(const HelpVisit& left);

 private:
    std::vector<HelpVisit> behind_;
    std::vector<HelpVisit> ahead_;
};

}  // namespace desktop
