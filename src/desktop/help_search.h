// Finds words in all topics of the help, without regard to case and diacritics.
#pragma once

#include <QString>
#include <vector>

#include "desktop/help_book.h"

namespace desktop {

/// The text as the search compares it: small letters without their marks. Each character stays one character, so that
/// places in it are places in the text.
QString foldedForSearch(const QString& text);

/// Where the words stand: the topic, and the characters of its page.
struct HelpHit {
    std::size_t topic = 0;
    int position = 0;
    int length = 0;
};

class HelpSearch {
 public:
    /// Nothing is read before the first search. `book` outlives the search.
    explicit HelpSearch(const HelpBook& book) : book_(book) {}

    /// All places of the words, as one phrase, in the order of the book. None for blanks only.
    std::vector<HelpHit> find(const QString& words);

 private:
    void readTopics();

    const HelpBook& book_;
    std::vector<QString> texts_;  ///< of the topics, folded; empty before the first search
};

}  // namespace desktop
