// The score on the entry form and the totals of the Maraton contest, against a recount of the tables.
#pragma once

#include <array>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "fuzz/recount.h"

namespace fuzz {

/// Whether a figure of the program has been seen to be right: from then on it has to stay so.
struct Trust {
    bool count = false;
    bool points = false;
};

/// What happened since the program was last at rest, as far as it excuses a figure or demands one.
struct Happened {
    bool errorWasTold = false;
    bool countRaised = false;  ///< by a failed writer, since the last recount
    std::string deletedFrom;   ///< table that lost a row on the entry form, and was recounted by that
};

class ScoreWatch {
 public:
    using Trusts = std::map<std::string, Trust>;

    /// Nothing is known of the figures any more: the tables were changed behind the program, or it has ended.
    void forget();
    /// Rows went on another form than that of the score.
    void rowsGoneElsewhere() { shown_.reset(); }
    void maratonLogChanged(const Counts& counts) { maratonLogs_.push_back(byBand(counts)); }
    /// The program is at rest. `agreeing` tells which figures of the tables of the bands agree with them now.
    void look(const Counts& counts, const Trusts& agreeing, const Happened& happened);

 private:
    static constexpr std::size_t rowsOfScore = 4;
    /// What each row stands for: a table, or in the Maraton contest a band; empty for a row without a meaning.
    using Score = std::array<std::string, rowsOfScore>;
    using ByBand = std::array<Counted, maratonBands.size()>;

    static Score scoreInHand();
    static ByBand byBand(const Counts& counts);
    static ByBand maratonTotals();
    static bool agree(const ByBand& totals, const ByBand& counted);
    bool scoreWasFilled(const Score& now, bool cameIntoView) const;
    void checkRow(std::size_t row, const Counted& counted, bool mustCount, bool mustHavePoints);
    void checkScore(const Counts& counts, const Trusts& agreeing, const Happened& happened, bool filled);
    void checkMaratonTotals(const Counts& counts, const Happened& happened, bool filled);
    void checkFiguresOfWriter(const Counts& counts) const;

    bool entryForm_ = false;      ///< was in view when the program was last at rest
    std::optional<Score> shown_;  ///< then
    std::string stage_;           ///< then
    std::array<Trust, rowsOfScore> trust_;
    std::optional<ByBand> totals_;     ///< of the Maraton contest, then
    std::vector<ByBand> maratonLogs_;  ///< all forms that the Maraton log has had since then, the present one last
    long maratonRows_ = 0;             ///< then
};

}  // namespace fuzz
