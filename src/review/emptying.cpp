#include "review/emptying.h"

#include "base/number.h"
#include "base/runtime_error.h"
#include "platform/progress.h"
#include "review/log_view.h"
#include "review/page.h"
#include "review/reset.h"
#include "runstate/contest_codes.h"
#include "runstate/modul1.h"
#include "runstate/question.h"
#include "screen/grid_layout.h"
#include "storage/log_statements.h"
#include "storage/open_databases.h"

namespace review {

namespace {

constexpr const char* maratonTable = "UusLGYO2";

void chooseLog(std::int32_t band, const char* stage)
{
    Modul1.BandCur = band;
    if (band != entry::bandGHz) Modul1.Etapa = stage;
    Modul1.GridRebuild = 1000;
    showNewest(*logViewFor(band, stage));
    FrmAnzeigen.BandText = base::toText(band);
    Message();
}

void showMaratonLog(base::ResumeNext& go)
{
    go([] { FrmAnzeigen.UusLGYO2.Refresh(); });
    go([] { FrmAnzeigen.UusLGYO2.Recordset.MoveLast(); });
    go(screen::layOutUusLGYO2);
}

void chooseMaratonLog()
{
    base::ResumeNext go;
    Modul1.GridRebuild = 1000;
    FrmAnzeigen.UusLGYO2.RecordSource = storage::showTable(maratonTable);
    showMaratonLog(go);
    Message();
}

bool internationalContest()
{
    return Modul1.ConcId == runstate::internationalContest;
}

void emptyBandLog(base::ResumeNext& go)
{
    const auto band = static_cast<std::int32_t>(base::numericValue(FrmAnzeigen.BandText));
    const LogView* log = logViewFor(band, Modul1.Etapa);
    if (log == nullptr) return;
    go([&] { Modul1.DbLog.Execute(storage::emptyTable(log->table->name)); });
    go([&] { (FrmAnzeigen.*log->data).Refresh(); });
    go(log->table->layOut);
    FrmAnzeigen.BandText = "0";
}

void emptyMaratonLog(base::ResumeNext& go)
{
    const int error = go([] { Modul1.DbLog.Execute(storage::emptyTable(maratonTable)); });
    if (error == 0) Modul1.maratonLogEmptied = 100;
    showMaratonLog(go);
}

}  // namespace

void mnuLOGL_schen_Click()
{
    Anulat();
    hideOtherJobs();
    giveLogThePage();
    FrmAnzeigen.Frame2.Visible = true;
    showEmptyingButtons();
    runstate::tell("Stergeti TOATE fisierele vechi de log ramase din alte concursuri !!", platform::iconExclamation);
}

void OpbL144a_Click()
{
    if (Modul1.ConcId == runstate::maratonContest) return chooseMaratonLog();
    chooseLog(144, "A");
}

void OpbL144b_Click()
{
    if (internationalContest()) return chooseLog(432, "A");
    chooseLog(144, "B");
}

void OpbL432a_Click()
{
    if (internationalContest()) return chooseLog(1296, "A");
    chooseLog(432, "A");
}

void OpbL432b_Click()
{
    if (internationalContest()) return chooseLog(entry::bandGHz, "");
    chooseLog(432, "B");
}

void OpBL1296a_Click()
{
    chooseLog(1296, "A");
}

void OpBL1296b_Click()
{
    chooseLog(1296, "B");
}

void OpbLGHz_Click()
{
    chooseLog(entry::bandGHz, "");
}

std::string questionBeforeEmptying(int contest, std::int32_t band, std::string_view stage)
{
    const std::string beginning = "DO YOU WANT TO DELETE ";
    if (contest == runstate::maratonContest) return beginning + "CONTEST LOG ?";
    if (band == entry::bandGHz) return beginning + "LOG GHz ?";
    // A number has room for its sign in front.
    return beginning + "LOG  " + base::toText(band) + std::string(stage) + " MHz ?";
}

void Message()
{
    const std::string question = questionBeforeEmptying(Modul1.ConcId, Modul1.BandCur, Modul1.Etapa);
    if (runstate::ask(question, "LÖSCHEN?") == platform::buttonYes) return Ja();
    Anulat();
}

void Ja()
{
    base::ResumeNext go;
    const platform::LongWork work("Emptying the log");
    go([] { Modul1.DbLog = storage::OpenDatabase(storage::logDatabasePath()); });
    if (Modul1.ConcId == runstate::maratonContest)
        emptyMaratonLog(go);
    else
        emptyBandLog(go);
}

}  // namespace review
