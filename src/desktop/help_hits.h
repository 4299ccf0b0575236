// The places that a search has found, and at which of them the reader is.
#pragma once

#include <QString>
#include <vector>

#include "desktop/help_search.h"

namespace desktop {

class HelpHits {
 public:
    /// `book` outlives the hits.
    explicit HelpHits(const HelpBook& book) : search_(book) {}

    /// Looks for words. The reader is then at the first hit from `here` on, round the end of the book; when the current
    /// hit is in the same topic, from that one on: a longer word is found where the shorter one was.
    void lookFor(const QString& words, const HelpHit& here);

    bool empty() const { return hits_.empty(); }
    std::size_t count() const { return hits_.size(); }
    /// Number of the current hit from 0. Only where there is one.
    std::size_t number() const { return current_; }
    const HelpHit& current() const { return hits_[current_]; }

    /// One hit on, round the ends of the book: from the current one, or from `here` when the reader has left its topic.
    /// Only where there is a hit.
    void goToNext(const HelpHit& here);
    void goToPrevious(const HelpHit& here);

    /// The hits in a topic, and which of them is the current one, -1 when none is.
    struct OnPage {
        std::vector<HelpHit> hits;
        int current = -1;
    };
    OnPage onPage(std::size_t topic) const;

 private:
    std::size_t firstFrom(const HelpHit& here) const;
    bool currentIsIn(std::size_t topic) const;

    HelpSearch search_;
    std::vector<HelpHit> hits_;
    std::size_t current_ = 0;
};

}  // namespace desktop
