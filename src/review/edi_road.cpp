#include "review/edi_road.h"

#include <cstdint>
#include <string>

#include "base/number.h"
#include "geo/points.h"
#include "review/best_qso.h"
#include "review/contest_name.h"
#include "review/folders.h"
#include "review/log_view.h"
#include "review/output_modes.h"
#include "review/page.h"
#include "review/reset.h"
#include "review/sums.h"
#include "review/views.h"
#include "runstate/contest_codes.h"
#include "runstate/modul1.h"
#include "screen/frm_anzeigen.h"

namespace review {

namespace {

constexpr double endOfInputOnSmallScreen = 7000;  ///< twips, unscaled

/// What the operator claims with a band.
enum class Claim { nothing, oneTable, bothStages, contestAsAWhole };

using Sum = void (*)();

/// A band on offer, with the sums of its stages and the walk for its best QSO.
struct EdiBand {
    std::int32_t band;
    const char* name;  ///< in TxtPBand
    Sum stageA;
    Sum stageB;
    void (*QRAMax)();
};

constexpr EdiBand on144 = {144, "144", Summe144a, Summe144b, QRAMax144};
constexpr EdiBand on50 = {144, "50", Summe144a, nullptr, QRAMax144};  // its log is kept as that of 144
constexpr EdiBand on432 = {432, "432", Summe432a, Summe432b, QraMax432};
constexpr EdiBand on1296 = {1296, "1296", Summe1296a, Summe1296b, QRAMax1296};
constexpr EdiBand onGHz = {entry::bandGHz, "GHz", nullptr, nullptr, QRAMaxGHz};

Claim claimOf(std::int32_t band)
{
    switch (Modul1.ConcId) {
        case 2:
        case 3:
        case 5:
        case 8:
        case runstate::internationalContest:
            return Claim::contestAsAWhole;
        case 7:  // The Maraton log goes no EDI road.
            return Claim::nothing;
        default:
            break;
    }
    if (band == entry::bandGHz) return Claim::contestAsAWhole;
    if (Modul1.ConcId == 0) return Claim::bothStages;
    if (band != 144) return Claim::nothing;
    return Modul1.ConcId == 4 || Modul1.ConcId == runstate::sixMetresContest ? Claim::oneTable : Claim::bothStages;
}

/// QSOs and points of the report, and the points of the contest.
void showClaim(long long qsos, double points, double score)
{
    FrmAnzeigen.TxtCQSOs1.Text = base::toText(base::toInt16(qsos));
    FrmAnzeigen.TxtCQSOP.Text = base::toText(base::roundToInt32(points));
    FrmAnzeigen.TxtCToSc.Text = base::toText(base::roundToInt32(score));
}

void claimTable(const EdiBand& band)
{
    band.stageA();
    const entry::LogTable& a = *logViewFor(band.band, "A")->table;
    showClaim(Modul1.*a.Qso, Modul1.*a.Pct, Modul1.*a.Pct);
}

void claimBothStages(const EdiBand& band)
{
    band.stageA();
    band.stageB();
    const entry::LogTable& a = *logViewFor(band.band, "A")->table;
    const entry::LogTable& b = *logViewFor(band.band, "B")->table;
    const double points = static_cast<double>(Modul1.*a.Pct) + Modul1.*b.Pct;
    showClaim(Modul1.*a.Qso + Modul1.*b.Qso, points, points);
}

void claimContestAsAWhole(const EdiBand& band)
{
    const bool microwaves = band.band == entry::bandGHz;
    Summe144a();
    Summe432a();
    Summe1296a();
    if (microwaves || Modul1.ConcId == runstate::internationalContest) SummeGHz();
    double score = static_cast<double>(Modul1.Pct144a) + Modul1.Pct432a + Modul1.Pct1296a;
    // The report of 144 leaves the microwaves out of the score, in the runstate::internationalContest contest too.
    if (microwaves || (Modul1.ConcId == runstate::internationalContest && band.band != 144)) score += Modul1.PctGHz;
    const entry::LogTable& table = *logViewFor(band.band, "A")->table;
    showClaim(Modul1.*table.Qso, Modul1.*table.Pct, score);
}

void claim(const EdiBand& band)
{
    switch (claimOf(band.band)) {
        case Claim::nothing:
            return;
        case Claim::oneTable:
            return claimTable(band);
        case Claim::bothStages:
            return claimBothStages(band);
        case Claim::contestAsAWhole:
            return claimContestAsAWhole(band);
    }
}

/// What is known without looking into the log. The own locator is left to the operator.
void beginPages(const EdiBand& band)
{
    FrmAnzeigen.FraLogEDI1.Visible = true;
    Modul1.BandCur = band.band;
    FrmAnzeigen.TxtPBand.Text = band.name;
    NameConcurs();
    FrmAnzeigen.TxtPCall.Text = Modul1.MyCall;
    FrmAnzeigen.TxtPWWLo.Text = "";
}

void fillPages(const EdiBand& band)
{
    claim(band);
    FrmAnzeigen.Frame4.Visible = false;
    // Last, since the sums change the band in hand.
    band.QRAMax();
    GrInv();
    // The first page is gone again where the log is empty: another band can be chosen then.
    if (FrmAnzeigen.FraLogEDI1.Visible) FrmAnzeigen.FraBandEdi.Visible = false;
}

void choose(const EdiBand& band)
{
    beginPages(band);
    fillPages(band);
}

}  // namespace

void mnuFormEDI_Click()
{
    FrmAnzeigen.OutMode = toFolder;
    FrmAnzeigen.EnterFlag = leadsToFile;
    FrmAnzeigen.OutFormat = asEdi;
    OrdLog();
    hideOtherJobs();
    FrmAnzeigen.FraBandEdi.Visible = true;
    showEdiBands();
}

void OpB144Edi_Click()
{
    choose(Modul1.ConcId == runstate::sixMetresContest ? on50 : on144);
}

void OpB432Edi_Click()
{
    beginPages(on432);
    MultBand();
    fillPages(on432);
}

void OpB1296Edi_Click()
{
    choose(on1296);
}

void OpBGHzEdi_Click()
{
    choose(onGHz);
}

void MultBand()
{
    if (const auto multiplier = geo::MultBand(Modul1.ConcId, Modul1.BandCur))
        FrmAnzeigen.TxtCQSOs2.Text = base::toText(*multiplier);
}

void CmdNextPage_Click()
{
    FrmAnzeigen.FraLogEDI1.Visible = false;
    FrmAnzeigen.FraLogEDI2.Visible = true;
    FrmAnzeigen.CmdGata.Visible = true;
    if (Modul1.ScaleY < 1) FrmAnzeigen.CmdGata.Left = endOfInputOnSmallScreen;
}

void CmdRetur_Click()
{
    FrmAnzeigen.FraLogEDI2.Visible = false;
    FrmAnzeigen.FraLogEDI1.Visible = true;
    FrmAnzeigen.CmdGata.Visible = false;
}

}  // namespace review
