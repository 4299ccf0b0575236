#include "fuzz/watch.h"

#include <algorithm>
#include <utility>

#include "base/text.h"
#include "runstate/modul1.h"
#include "screen/frm_anzeigen.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"
#include "script/words.h"

namespace fuzz {

namespace {

constexpr int sixMetres = 101;

constexpr const char* questionOfDeletion = "DO YOU WANT TO DELETE?";
constexpr const char* titleOfDeletion = "LÖSCHEN?";

enum Column : std::size_t { call = 0, time = 2, received = 4, mode = 5, band = 6, locator = 7, points = 8 };

std::string shown(const std::vector<std::string>& row)
{
    std::string text;
    for (const std::string& value : row)
        text += (text.empty() ? "" : "|") + value;
    return text;
}

/// Those of the band and stage that are worked on, nullptr for none.
const Figures* figuresInHand()
{
    const bool microwaves = Modul1.BandCur == 1 || Modul1.BandCur > 1296;
    const std::string band = microwaves ? "" : std::to_string(Modul1.BandCur);
    const auto* const found = std::find_if(figures.begin(), figures.end(), [&](const Figures& row) {
        return row.band == band && (microwaves || row.stage == Modul1.Etapa);
    });
    return found == figures.end() ? nullptr : found;
}

bool isKey(const app::QueueEntry& entry, std::initializer_list<int> codes)
{
    const auto* down = std::get_if<app::KeyWentDown>(&entry);
    if (down == nullptr || down->repeat) return false;
    return std::find(codes.begin(), codes.end(), down->key.code) != codes.end();
}

bool clicks(const app::QueueEntry& entry, const screen::Control& control)
{
    const auto* clicked = std::get_if<app::ControlClicked>(&entry);
    return clicked != nullptr && clicked->control == &control;
}

/// A key of the keyboard that clicks what is marked with its letter.
bool isMnemonic(const app::QueueEntry& entry)
{
    const auto* down = std::get_if<app::KeyWentDown>(&entry);
    return down != nullptr && !down->repeat && down->key.alt && down->key.character != 0;
}

/// A row is written by Enter, F12 and Insert in the call field, and by the button, which is clicked, or operated with
/// Space and Enter while it has the focus.
bool mayWrite(const app::QueueEntry& entry)
{
    return isKey(entry, {platform::keyEnter, platform::keyF12, platform::keyInsert, platform::keySpace}) ||
           isMnemonic(entry) || clicks(entry, FrmQSO.CmdEnterCall);
}

/// The ways to log whose effect on the screen is known for sure.
bool logsTheCall(const app::QueueEntry& entry)
{
    if (screen::activeForm() != &FrmQSO || !FrmQSO.CmdEnterCall.enabled()) return false;
    if (clicks(entry, FrmQSO.CmdEnterCall)) return true;
    return isKey(entry, {platform::keyEnter, platform::keyF12, platform::keyInsert}) &&
           FrmQSO.ActiveControl == &FrmQSO.txtIndic;
}

/// No call stands there: the field is empty, or has what it begins with.
bool isCleared(const std::string& call)
{
    return base::trim(call).empty() || base::trim(call) == "YO";
}

/// The table that a question about a whole log speaks of.
std::string tableInQuestion(const std::string& question)
{
    if (question == "DO YOU WANT TO DELETE CONTEST LOG ?") return maratonTable;
    if (question == "DO YOU WANT TO DELETE LOG GHz ?") return "UusGHz";
    for (const Figures& row : figures)
        if (question == std::string("DO YOU WANT TO DELETE LOG  ") + row.band + row.stage + " MHz ?") return row.table;
    return {};
}

}  // namespace

Watch::Watch(const std::filesystem::path& folder)
    : folder_(folder), log_(folder / "LogKelvo.mdb"), memory_(folder / "DbsKelvo.mdb")
{
    tablesWereChangedBehind();
}

void Watch::tablesWereChangedBehind()
{
    log_.fileHasChanged();
    memory_.fileHasChanged();
    for (const std::string& table : logTableNames()) {
        tables_[table] = log_.rows(table).value_or(Rows{});
        countInto(counts_, table, tables_[table]);
        if (!tables_[table].empty())
            greatestKey_[table] = std::max(greatestKey_[table], tables_[table].rbegin()->first);
    }
    calls_ = memory_.rows("QRA").value_or(Rows{});
    forgetFigures();
}

void Watch::forgetFigures()
{
    trust_.clear();
    countRaised_ = false;
    deletedFrom_.clear();
    score_.forget();
}

std::size_t Watch::noticesGiven() const
{
    return machine_->record.notices.size();
}

void Watch::entryComes(const app::QueueEntry& entry)
{
    before_ = {};
    before_.mayWrite = mayWrite(entry);
    before_.fromCall = logsTheCall(entry);
    before_.notices = noticesGiven();
    before_.entryForm = screen::activeForm() == &FrmQSO;
    if (!before_.entryForm) return;
    before_.call = FrmQSO.txtIndic.Text;
    before_.received = base::trim(FrmQSO.TxtRSTR1.Text) + " " + base::trim(FrmQSO.TxtRSTR2.Text);
    before_.locator = base::trim(FrmQSO.TxtRSTr3.Text);
    before_.mode = Modul1.ModeCur;
    before_.countOnScreen = FrmQSO.LblQSO.Caption;
}

void Watch::programWaits(bool atRest)
{
    checkSerialLines(atRest);
    checkGrids();
    rowsWritten_ = 0;
    checkLog();
    checkMemory();
    checkClearedScreen(rowsWritten_);
    noteFailedWriter(rowsWritten_);
    leave_ = {};
    // What goes on behind this belongs to an entry that has been looked at: it writes nothing more.
    before_.mayWrite = before_.fromCall = false;
    if (atRest) checkFigures();
}

void Watch::boxAnswered(const script::ShownBox& box)
{
    checkSerialLines(true);
    if (box.request.title != titleOfDeletion || box.answer != platform::buttonYes) return;
    if (box.request.text == questionOfDeletion) {
        ++leave_.rows;
        return;
    }
    leave_.wholeTable = tableInQuestion(box.request.text);
    if (leave_.wholeTable.empty()) broken("an unknown question about a log was answered Yes: " + box.request.text);
}

void Watch::programIsGone(bool killed)
{
    // The system closes the port of a program that was killed; one that ends does it itself.
    checkSerialLines(!killed);
    rowsWritten_ = 0;
    checkLog();
    checkMemory();
    before_ = {};
    leave_ = {};
    forgetFigures();
}

void Watch::pictureComes(const app::Picture& picture)
{
    std::string first;
    for (const app::ControlPicture& control : picture.controls) {
        if (control.kind != screen::Kind::grid) continue;
        if (!first.empty()) broken("two grids are drawn at once: " + first + " and " + control.control->name);
        first = control.control->name;
    }
}

void Watch::theEnd()
{
    // A link of its own: the one that looks on has pages in memory.
    const std::string damage = TableReader(folder_ / "LogKelvo.mdb").damage();
    if (!damage.empty()) broken("the log is damaged: " + damage);
}

/// Nothing is on the air but while a message is sent: when the program is at rest, and while a box waits, the port is
/// closed and both lines are down; in the middle of a message events are served between characters, with the key up.
void Watch::checkSerialLines(bool atRest)
{
    const auto& serial = machine_->record.serial;
    for (; serialSeen_ < serial.size(); ++serialSeen_) {
        const std::string& what = serial[serialSeen_].what;
        if (what.starts_with("RTS")) transmitter_ = what == "RTS on";
        if (what.starts_with("DTR")) key_ = what == "DTR on";
        if (what == "close") transmitter_ = key_ = false;
    }
    const bool open = machine_->serialPort.isOpen();
    if (key_ && (atRest || !open)) broken("the key is down although nothing is sent");
    if (transmitter_ && (atRest || !open)) broken("the transmitter is on although nothing is sent");
    if (open && atRest) broken("the serial port is open although nothing is sent");
    if (key_) broken("the key is down while events are served");
}

/// One log is in view at a time.
void Watch::checkGrids() const
{
    const screen::Form* form = screen::activeForm();
    if (form == nullptr) return;
    const screen::Control* first = nullptr;
    for (const screen::Control* control : form->controls()) {
        if (control->kind != screen::Kind::grid || !control->seen()) continue;
        if (first != nullptr)
            broken("two grids are in view on " + form->name + ": " + first->name + " and " + control->name);
        first = control;
    }
}

void Watch::checkLog()
{
    if (!log_.fileHasChanged()) return;
    for (const std::string& table : logTableNames()) {
        std::optional<Rows> now = log_.rows(table);
        if (!now) broken(table + " cannot be read any more");
        if (*now == tables_[table]) continue;
        checkTable(table, tables_[table], *now);
        tables_[table] = *std::move(now);
        countInto(counts_, table, tables_[table]);
        if (table == maratonTable) score_.maratonLogChanged(counts_);
    }
    if (rowsWritten_ > 1) broken("one entry wrote " + std::to_string(rowsWritten_) + " rows");
}

void Watch::checkTable(const std::string& table, const Rows& before, const Rows& now)
{
    std::size_t gone = 0;
    for (const auto& [key, row] : before) {
        const auto found = now.find(key);
        if (found == now.end())
            ++gone;
        else if (found->second != row)
            checkChangedRow(table, row, found->second);
    }
    if (gone > 0) checkRowsGone(table, gone, before.size() - gone);
    for (const auto& [key, row] : now) {
        if (before.contains(key)) continue;
        if (key <= greatestKey_[table]) broken("a new row of " + table + " has the number of an earlier one");
        greatestKey_[table] = key;
        ++rowsWritten_;
        checkNewRow(table, row);
    }
}

/// A row is written by what logs, of the call on the screen, and into the table of its band and stage.
void Watch::checkNewRow(const std::string& table, const std::vector<std::string>& row) const
{
    const std::string what = table + " got the row " + shown(row);
    if (!before_.mayWrite) broken(what + " by an entry that logs nothing");
    if (!before_.entryForm) broken(what + " although the entry form was not in view");
    if (row.at(call) != base::trim(base::upper(base::trim(before_.call))))
        broken(what + " while the call on the screen was " + script::inQuotes(before_.call));
    if (row.at(received) != before_.received)
        broken(what + " while " + script::inQuotes(before_.received) + " was received");
    if (row.at(mode) != before_.mode) broken(what + " while the mode was " + script::inQuotes(before_.mode));
    if (row.at(locator) != before_.locator)
        broken(what + " while the locator was " + script::inQuotes(before_.locator));

    if (table == maratonTable) {
        const bool known = row.at(band) == "144" || row.at(band) == "432" || row.at(band) == "1296";
        if (Modul1.ConcId != maratonContest || !known) broken(what + ", which does not belong there");
        return;
    }
    if (Modul1.ConcId == maratonContest) broken(what + " in the Maraton contest");
    if (table == "UusGHz") {
        if (numberIn(row.at(band)) <= 1296) broken(what + " of another band");
        return;
    }
    const Figures& place = *figuresOf(table);
    // The contest of the 6 m band works on 144 inside.
    const std::string expected = Modul1.ConcId == sixMetres && place.band == std::string("144") ? "50" : place.band;
    if (row.at(band) != expected) broken(what + " of another band");
    if (Modul1.Etapa != place.stage) broken(what + " in stage " + script::inQuotes(Modul1.Etapa));
}

/// A written row stays as it is, but that it loses its points when a later QSO with the station takes them.
void Watch::checkChangedRow(const std::string& table, const std::vector<std::string>& before,
                            const std::vector<std::string>& now) const
{
    std::vector<std::string> expected = before;
    const bool bandTable = table != maratonTable;
    if (bandTable) expected.at(points) = "0";
    const bool chosen = bandTable && FrmQSO.DubActual == 10;
    if (now != expected || !chosen)
        broken("a row of " + table + " changed from " + shown(before) + " to " + shown(now));
}

void Watch::checkRowsGone(const std::string& table, std::size_t gone, std::size_t left)
{
    trust_.erase(table);
    if (before_.entryForm)
        deletedFrom_ = table;
    else
        score_.rowsGoneElsewhere();
    if (leave_.wholeTable == table && left == 0) return;
    if (gone > static_cast<std::size_t>(leave_.rows))
        broken(std::to_string(gone) + " rows of " + table + " are gone, and the operator let go of " +
               std::to_string(leave_.rows));
    leave_.rows -= static_cast<int>(gone);
}

/// The locator memory learns in CONCURS mode alone, from a QSO that is logged, and only whole locators. It loses a call
/// only where the operator says so.
void Watch::checkMemory()
{
    if (!memory_.fileHasChanged()) return;
    std::optional<Rows> now = memory_.rows("QRA");
    if (!now) broken("the locator memory cannot be read any more");
    for (const auto& [key, row] : calls_) {
        if (now->contains(key)) continue;
        if (leave_.rows-- <= 0) broken("the locator memory lost " + shown(row));
    }
    for (const auto& [key, row] : *now) {
        const auto found = calls_.find(key);
        if (found != calls_.end() && found->second == row) continue;
        if (!before_.mayWrite) broken("the locator memory learned " + shown(row) + " by an entry that logs nothing");
        if (Modul1.QraMemOn != 100) broken("the locator memory learned " + shown(row) + " in TEST mode");
        if (base::length(row.at(1)) != 6)
            broken("the locator memory learned a locator that is not whole: " + shown(row));
    }
    calls_ = *std::move(now);
}

/// Once the screen is cleared for the next call, the QSO is in the log.
void Watch::checkClearedScreen(std::size_t rowsWritten) const
{
    if (!before_.fromCall || isCleared(before_.call) || rowsWritten > 0) return;
    if (screen::activeForm() != &FrmQSO || !isCleared(FrmQSO.txtIndic.Text)) return;
    broken("the screen was cleared of " + script::inQuotes(before_.call) + ", which was not logged");
}

/// An Enter whose writer fails leaves the count raised; the operator is told.
void Watch::noteFailedWriter(std::size_t rowsWritten)
{
    if (!before_.mayWrite || rowsWritten > 0 || !before_.entryForm || screen::activeForm() != &FrmQSO) return;
    if (FrmQSO.LblQSO.Caption == before_.countOnScreen) return;
    if (numberIn(FrmQSO.LblQSO.Caption) != numberIn(before_.countOnScreen) + 1) return;
    countRaised_ = true;
    // Other keys that may log may choose a band as well, which has a count of its own.
    if (before_.fromCall && noticesGiven() == before_.notices)
        broken("the count on the screen went up to " + FrmQSO.LblQSO.Caption + " without a row, and nobody was told");
}

/// Counts and points agree with the tables from the first recount on, until something happens that leaves them behind
/// as designed: a failed writer (the count stays raised), the choice of "Actual" (the points of the earlier QSO stay in
/// the total, those of the new one are not shown), a deletion on the review form, and any error of which the operator
/// was told. The next recount puts them right; a deletion on the entry form is one.
void Watch::checkFigures()
{
    const Happened happened{
        .errorWasTold = std::exchange(noticesAtRest_, noticesGiven()) != noticesGiven(),
        .countRaised = countRaised_,
        .deletedFrom = std::exchange(deletedFrom_, {}),
    };
    for (const Figures& row : figures)
        checkFiguresOfTable(row, happened);
    score_.look(counts_, trust_, happened);
    const std::optional<long> rows = rowsInHand();
    if (rows && numberIn(FrmQSO.LblQSO.Caption) == static_cast<double>(*rows)) countRaised_ = false;
}

void Watch::checkFiguresOfTable(const Figures& figure, const Happened& happened)
{
    const std::string table = figure.table;
    const bool microwaves = table == "UusGHz";
    const Rows& rows = tables_[table];
    // The Maraton contest keeps the figures of its band where those of the GHz log stand, and leaves them there. The
    // writers of the GHz log on the review form pass over rows without a time, and count what they write.
    if (microwaves && (Modul1.ConcId == maratonContest || std::any_of(rows.begin(), rows.end(), [](const auto& entry) {
                           return entry.second.at(time).empty();
                       }))) {
        trust_.erase(table);
        return;
    }
    Trust& trust = trust_[table];
    const Counted& counted = counts_.at(table);
    const bool countAgrees = Modul1.*figure.count == counted.count;
    const bool pointsAgree = counted.points && Modul1.*figure.points == static_cast<long>(*counted.points);
    const bool actual = FrmQSO.DubActual == 10;
    const bool recounted = happened.deletedFrom == table;
    if ((recounted || (trust.count && !countRaised_)) && !countAgrees && !happened.errorWasTold)
        broken(table + " has " + std::to_string(counted.count) + " rows and the program counts " +
               std::to_string(Modul1.*figure.count));
    if ((recounted || (trust.points && !actual)) && counted.points && !pointsAgree && !happened.errorWasTold)
        broken(table + " has " + std::to_string(*counted.points) + " points and the program counts " +
               std::to_string(Modul1.*figure.points));
    trust = {.count = countAgrees, .points = pointsAgree};
}

/// QSOs in the log that is worked on, nothing when none is.
std::optional<long> Watch::rowsInHand() const
{
    const Figures* figure = figuresInHand();
    const auto found = Modul1.ConcId == maratonContest ? counts_.find(std::to_string(Modul1.BandCur))
                                                       : counts_.find(figure == nullptr ? "" : figure->table);
    if (found == counts_.end()) return std::nullopt;
    return found->second.count;
}

}  // namespace fuzz
