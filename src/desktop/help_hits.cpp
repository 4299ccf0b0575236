#include "desktop/help_hits.h"

#include <algorithm>

namespace desktop {

namespace {

bool liesBefore(const HelpHit& a, const HelpHit& b)
{
    return a.topic != b.topic ? a.topic < b.topic : a.position < b.position;
}

}  // namespace

void HelpHits::lookFor(const QString& words, const HelpHit& here)
{
    const HelpHit from = currentIsIn(here.topic) ? current() : here;
    hits_ = search_.find(words);
    current_ = firstFrom(from);
}

void HelpHits::goToNext(const HelpHit& here)
{
    current_ = currentIsIn(here.topic) ? (current_ + 1) % hits_.size() : firstFrom(here);
}

void HelpHits::goToPrevious(const HelpHit& here)
{
    const std::size_t behind = currentIsIn(here.topic) ? current_ : firstFrom(here);
    current_ = (behind + hits_.size() - 1) % hits_.size();
}

HelpHits::OnPage HelpHits::onPage(std::size_t topic) const
{
    OnPage page;
    for (std::size_t i = 0; i < hits_.size(); ++i) {
        if (hits_[i].topic != topic) continue;
        if (i == current_) page.current = static_cast<int>(page.hits.size());
        page.hits.push_back(hits_[i]);
    }
    return page;
}

/// The first one of all where nothing is found behind the place.
std::size_t HelpHits::firstFrom(const HelpHit& here) const
{
    const auto found =
        std::find_if(hits_.begin(), hits_.end(), [&](const HelpHit& hit) { return !liesBefore(hit, here); });
    return found == hits_.end() ? 0 : static_cast<std::size_t>(found - hits_.begin());
}

bool HelpHits::currentIsIn(std::size_t topic) const
{
    return !hits_.empty() && current().topic == topic;
}

}  // namespace desktop
