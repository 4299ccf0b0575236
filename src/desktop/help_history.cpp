#include "desktop/help_history.h"

namespace desktop {

namespace {

HelpVisit step(std::vector<HelpVisit>& from, std::vector<HelpVisit>& to, const HelpVisit& left)
{
    to.push_back(left);
    const HelpVisit next = from.back();
    from.pop_back();
    return next;
}

}  // namespace

void HelpHistory::goOnFrom(const HelpVisit& left)
{
    behind_.push_back(left);
    ahead_.clear();
}

HelpVisit HelpHistory::goBack(const HelpVisit& left)
{
    return step(behind_, ahead_, left);
}

HelpVisit HelpHistory::goForward(const HelpVisit& left)
{
    return step(ahead_, behind_, left);
}

}  // namespace desktop
