#include "review/views.h"

#include <string>

#include "band/maraton_totals.h"
#include "base/runtime_error.h"
#include "review/log_view.h"
#include "review/page.h"
#include "review/reset.h"
#include "review/sums.h"
#include "runstate/contest_codes.h"
#include "runstate/modul1.h"
#include "screen/grid_layout.h"
#include "storage/log_statements.h"

namespace review {

namespace {

constexpr std::int32_t locatorMemory = 22;

/// A log that a view button shows, and the sum that belongs to it.
struct View {
    std::int32_t band;
    const char* stage;
    void (*sum)();
};

constexpr View view144a = {144, "A", Summe144a};
constexpr View view144b = {144, "B", Summe144b};
constexpr View view432a = {432, "A", Summe432a};
constexpr View view432b = {432, "B", Summe432b};
constexpr View view1296a = {1296, "A", Summe1296a};
constexpr View view1296b = {1296, "B", Summe1296b};
constexpr View viewGHz = {entry::bandGHz, "", SummeGHz};

void showLog(const View& view)
{
    Modul1.BandCur = view.band;
    // The GHz log has no stage; the one in hand stays.
    if (view.band != entry::bandGHz) Modul1.Etapa = view.stage;
    Modul1.GridRebuild = 1000;
    showNewest(*logViewFor(view.band, view.stage));
    view.sum();
    FrmAnzeigen.Frame5.Visible = false;
}

void showMaratonLog(std::int32_t bandMHz)
{
    const band::MaratonBand& band = *band::maratonBandsFrom(bandMHz).front();
    Modul1.BandYO = band.name;
    SummeYO2();
    showSum(Modul1.*band.Pct, Modul1.*band.Qso);
    ViewLogGen();
    FrmAnzeigen.Frame5.Visible = false;
}

/// Where the runstate::internationalContest contest has another log behind a button than the contests of bands and
/// stages.
void showByContest(const View& ordinary, const View& inInternational)
{
    showLog(Modul1.ConcId == runstate::internationalContest ? inInternational : ordinary);
}

}  // namespace

void mnuLogAnzeigen_Click()
{
    Anulat();
    FrmAnzeigen.TxtFoc.SetFocus();
    hideOtherJobs();
    giveLogThePage();
    FrmAnzeigen.Frame1.Visible = true;
    FrmAnzeigen.Frame4.Visible = true;
    showViewButtons();
    Modul1.PrintSel = 1;
    FrmAnzeigen.OutMode = 0;
    FrmAnzeigen.TxtFoc.SetFocus();
}

void OpB144a_Click()
{
    if (Modul1.ConcId == runstate::maratonContest) return showMaratonLog(144);
    showLog(view144a);
}

void Opb144b_Click()
{
    if (Modul1.ConcId == runstate::maratonContest) return showMaratonLog(432);
    showByContest(view144b, view432a);
}

void OpB432a_Click()
{
    showByContest(view432a, view1296a);
    if (Modul1.ConcId == runstate::maratonContest) showMaratonLog(432);
}

void OpB432b_Click()
{
    showByContest(view432b, viewGHz);
}

void OpB1296a_Click()
{
    showLog(view1296a);
    if (Modul1.ConcId == runstate::maratonContest) showMaratonLog(1296);
}

void OpB1296b_Click()
{
    showLog(view1296b);
}

void OpBQRALoc_Click()
{
    FrmAnzeigen.Frame4.Visible = true;
    Modul1.BandCur = locatorMemory;
    SortQRA();
}

void ViewLogGen()
{
    base::quietly<base::noCurrentRecord>([] {
        Modul1.GridRebuild = 1000;
        FrmAnzeigen.UusLGYO2.RecordSource = storage::maratonLogSortedByBand(Modul1.BandYO);
        FrmAnzeigen.UusLGYO2.Refresh();
        base::passing<base::noCurrentRecord>([] { FrmAnzeigen.UusLGYO2.Recordset.MoveLast(); });
        screen::layOutUusLGYO2();
    });
}

void rowTouched()
{
    if (Modul1.PrintSel == 1) FrmAnzeigen.Frame5.Visible = true;
    Modul1.PrintSel = 0;
}

void SortQRA()
{
    base::ResumeNext go;
    FrmAnzeigen.QRA.RecordSource = storage::sortedLocators();
    go([] { FrmAnzeigen.QRA.Refresh(); });
    go(screen::layOutQra);
}

void GrInv()
{
    for (screen::Control* control : FrmAnzeigen.controls())
        if (control->kind == screen::Kind::grid) control->Visible = false;
}

}  // namespace review
