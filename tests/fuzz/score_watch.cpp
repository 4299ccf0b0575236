#include "fuzz/score_watch.h"

#include <algorithm>
#include <utility>

#include "fuzz/broken.h"
#include "runstate/modul1.h"
#include "screen/form.h"
#include "screen/frm_qso.h"

namespace fuzz {

namespace {

/// The band in hand from the choice of "GHz" until a frequency is picked.
constexpr int anyMicrowave = 1;

enum class Kind { stages, bands, microwaves, maraton };

/// What the rows of the score stand for, by the kind of contest, the band in hand and the stage.
struct Layout {
    Kind kind;
    const char* band;
    const char* stage;
    std::array<const char*, 4> rows;
};

constexpr std::array layouts = {
    Layout{Kind::stages, "144", "A", {"Uus144a", "Uus144b", "", ""}},
    Layout{Kind::stages, "144", "B", {"Uus144b", "Uus144a", "", ""}},
    Layout{Kind::stages, "432", "A", {"Uus432a", "Uus432b", "", ""}},
    Layout{Kind::stages, "432", "B", {"Uus432b", "Uus432a", "", ""}},
    Layout{Kind::stages, "1296", "A", {"Uus1296a", "Uus1296b", "", ""}},
    Layout{Kind::stages, "1296", "B", {"Uus1296b", "Uus1296a", "", ""}},
    Layout{Kind::bands, "144", "A", {"Uus144a", "Uus432a", "Uus1296a", "UusGHz"}},
    Layout{Kind::bands, "432", "A", {"Uus432a", "Uus144a", "Uus1296a", "UusGHz"}},
    Layout{Kind::bands, "1296", "A", {"Uus1296a", "Uus144a", "Uus432a", "UusGHz"}},
    Layout{Kind::microwaves, "", "A", {"UusGHz", "Uus144a", "Uus432a", "Uus1296a"}},
    Layout{Kind::maraton, "144", "A", {"144", "432", "1296", ""}},
    Layout{Kind::maraton, "432", "A", {"432", "144", "1296", ""}},
    Layout{Kind::maraton, "1296", "A", {"1296", "144", "432", ""}},
};

Kind kindInHand()
{
    constexpr std::array severalBands = {2, 3, 5, 8, 100};
    if (Modul1.ConcId == maratonContest) return Kind::maraton;
    if (Modul1.BandCur == anyMicrowave || Modul1.BandCur > 1296) return Kind::microwaves;
    const bool several = std::find(severalBands.begin(), severalBands.end(), int{Modul1.ConcId}) != severalBands.end();
    return several ? Kind::bands : Kind::stages;
}

struct RowOnScreen {
    const screen::Label& points;
    const screen::Label& qsos;
};

RowOnScreen rowOnScreen(std::size_t row)
{
    const std::array rows = {RowOnScreen{FrmQSO.LblPkt, FrmQSO.LblQSO}, RowOnScreen{FrmQSO.LblPkt1, FrmQSO.LblQSO1},
                             RowOnScreen{FrmQSO.LblPkt2, FrmQSO.LblQSO2}, RowOnScreen{FrmQSO.LblPkt3, FrmQSO.LblQSO3}};
    return rows.at(row);
}

std::string shown(const Counted& counted)
{
    return std::to_string(counted.count) + " QSOs and " +
           (counted.points ? std::to_string(static_cast<long>(*counted.points)) : "unknown") + " points";
}

std::string shown(std::size_t row)
{
    const RowOnScreen onScreen = rowOnScreen(row);
    return onScreen.qsos.Caption + " QSOs and " + onScreen.points.Caption + " points";
}

}  // namespace

void ScoreWatch::forget()
{
    shown_.reset();
    totals_.reset();
    maratonLogs_.clear();
}

ScoreWatch::Score ScoreWatch::scoreInHand()
{
    const Kind kind = kindInHand();
    const std::string band = kind == Kind::microwaves ? "" : std::to_string(Modul1.BandCur);
    const auto* const found = std::find_if(layouts.begin(), layouts.end(), [&](const Layout& layout) {
        return layout.kind == kind && layout.band == band && layout.stage == Modul1.Etapa;
    });
    Score score;
    if (found != layouts.end()) std::copy(found->rows.begin(), found->rows.end(), score.begin());
    return score;
}

ScoreWatch::ByBand ScoreWatch::byBand(const Counts& counts)
{
    ByBand counted;
    std::transform(maratonBands.begin(), maratonBands.end(), counted.begin(),
                   [&](const char* band) { return counts.at(band); });
    return counted;
}

ScoreWatch::ByBand ScoreWatch::maratonTotals()
{
    return {Counted{.count = Modul1.QsoYO144, .points = Modul1.PctYO144},
            Counted{.count = Modul1.QsoYO432, .points = Modul1.PctYO432},
            Counted{.count = Modul1.QsoYO1296, .points = Modul1.PctYO1296}};
}

/// Points that cannot be counted agree with any.
bool ScoreWatch::agree(const ByBand& totals, const ByBand& counted)
{
    return std::equal(totals.begin(), totals.end(), counted.begin(), [](const Counted& total, const Counted& rows) {
        return total.count == rows.count && (!rows.points || total.points == rows.points);
    });
}

void ScoreWatch::look(const Counts& counts, const Trusts& agreeing, const Happened& happened)
{
    const bool onEntryForm = screen::activeForm() == &FrmQSO;
    const bool cameIntoView = !std::exchange(entryForm_, onEntryForm) && onEntryForm;
    const Score score = onEntryForm ? scoreInHand() : Score{};
    const bool filled = onEntryForm && scoreWasFilled(score, cameIntoView);
    const bool same = shown_ == score;
    if (!same) trust_ = {};
    shown_ = score;
    stage_ = Modul1.Etapa;
    if (onEntryForm) checkScore(counts, agreeing, happened, filled);
    if (same && !happened.errorWasTold) checkFiguresOfWriter(counts);
    checkMaratonTotals(counts, happened, filled);
}

/// The rows are filled when the form comes into view and when a stage is chosen. With a band they are filled as well,
/// but not in the contests whose stages have to be chosen: there the band leaves them as they were. Nor are they by a
/// pick from the list of microwaves, which comes back with the QSO of an undone abort, whatever band is in hand by
/// then.
bool ScoreWatch::scoreWasFilled(const Score& now, bool cameIntoView) const
{
    if (cameIntoView) return true;
    if (!shown_ || *shown_ == now) return false;
    if (kindInHand() == Kind::microwaves && Modul1.BandCur != anyMicrowave) return false;
    return kindInHand() != Kind::stages || stage_ != Modul1.Etapa;
}

/// Right are: rows filled from figures that agree with their tables, and in the Maraton contest all that were filled,
/// since the log is counted for that; all that were right, for as long as they stand for the same. Excused is the row
/// in hand alone, which goes on with each QSO: its count after a failed writer, and its points after the choice of
/// "Actual", which takes points from an earlier QSO and never from the score.
void ScoreWatch::checkScore(const Counts& counts, const Trusts& agreeing, const Happened& happened, bool filled)
{
    const bool maraton = Modul1.ConcId == maratonContest;
    for (std::size_t row = 0; row < rowsOfScore; ++row) {
        const std::string& what = shown_->at(row);
        if (what.empty()) continue;
        const Counted& counted = counts.at(what);
        const auto figure = agreeing.find(what);
        const Trust filledWith = maraton                    ? Trust{.count = true, .points = true}
                                 : figure == agreeing.end() ? Trust{}
                                                            : figure->second;
        const bool recounted = happened.deletedFrom == (maraton ? maratonTable : what);
        const bool inHand = row == 0;
        const bool excusedCount = inHand && happened.countRaised;
        const bool excusedPoints = inHand && FrmQSO.DubActual == 10;
        const Trust& trust = trust_.at(row);
        const bool mustCount = filled ? filledWith.count : recounted || (trust.count && !excusedCount);
        const bool mustHavePoints = filled ? filledWith.points : recounted || (trust.points && !excusedPoints);
        checkRow(row, counted, mustCount && !happened.errorWasTold, mustHavePoints && !happened.errorWasTold);
    }
}

void ScoreWatch::checkRow(std::size_t row, const Counted& counted, bool mustCount, bool mustHavePoints)
{
    const RowOnScreen onScreen = rowOnScreen(row);
    const bool countAgrees = numberIn(onScreen.qsos.Caption) == static_cast<double>(counted.count);
    const bool pointsAgree = counted.points && numberIn(onScreen.points.Caption) == *counted.points;
    if ((mustCount && !countAgrees) || (mustHavePoints && counted.points && !pointsAgree))
        broken("row " + std::to_string(row) + " of the score shows " + shown(row) + ", and " + shown_->at(row) +
               " has " + shown(counted));
    trust_.at(row) = {.count = countAgrees, .points = pointsAgree};
}

/// In the Maraton contest the figures of the GHz log are those of the row in hand, from each written row on.
void ScoreWatch::checkFiguresOfWriter(const Counts& counts) const
{
    if (Modul1.ConcId != maratonContest || counts.at(maratonTable).count <= maratonRows_ || shown_->front().empty())
        return;
    const Trust& inHand = trust_.front();
    const Counted& counted = counts.at(shown_->front());
    if ((inHand.count && Modul1.QsoGHz != counted.count) || (inHand.points && Modul1.PctGHz != counted.points))
        broken("the band in hand has " + shown(counted) + " and the program keeps " + std::to_string(Modul1.QsoGHz) +
               " QSOs and " + std::to_string(Modul1.PctGHz) + " points of it");
}

/// The totals are what a recount gave, and wait for the next one: a logged QSO goes to the row in hand alone. A recount
/// comes with the choice of a band, a deletion on the entry form, and on the review form with what shows them.
void ScoreWatch::checkMaratonTotals(const Counts& counts, const Happened& happened, bool filled)
{
    const ByBand totals = maratonTotals();
    const ByBand counted = byBand(counts);
    const bool bandInHand = !shown_->front().empty();
    const bool mustAgree =
        Modul1.ConcId == maratonContest && ((filled && bandInHand) || happened.deletedFrom == maratonTable);
    const bool agreed =
        agree(totals, counted) || (!mustAgree && (!totals_ || totals == *totals_ ||
                                                  std::any_of(maratonLogs_.begin(), maratonLogs_.end(),
                                                              [&](const ByBand& log) { return agree(totals, log); })));
    if (!agreed && !happened.errorWasTold)
        for (std::size_t band = 0; band < totals.size(); ++band)
            if (!agree({totals.at(band)}, {counted.at(band)}))
                broken("the total of the Maraton contest on " + std::string(maratonBands.at(band)) + " is " +
                       shown(totals.at(band)) + ", and its log has " + shown(counted.at(band)));
    totals_ = totals;
    maratonLogs_ = {counted};
    maratonRows_ = counts.at(maratonTable).count;
}

}  // namespace fuzz
