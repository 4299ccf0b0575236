#include "review/correction.h"

#include "base/runtime_error.h"
#include "review/log_view.h"
#include "review/reset.h"
#include "review/views.h"
#include "runstate/contest_codes.h"
#include "runstate/modul1.h"
#include "runstate/question.h"
#include "screen/grid_layout.h"

namespace review {

namespace {

void deleteRow(base::ResumeNext& go, screen::DataControl& data, void (*layOut)())
{
    go([&] { data.Recordset.Delete(); });
    go([&] { data.Refresh(); });
    go([&] { data.Recordset.MoveLast(); });
    go(layOut);
}

/// The table in view loses its current row. A band that was chosen without its log being shown loses nothing.
void deleteFromView(base::ResumeNext& go)
{
    if (FrmAnzeigen.DBGrid5.seen()) return deleteRow(go, FrmAnzeigen.QRA, screen::layOutQra);
    if (FrmAnzeigen.DBGrid9.seen()) return deleteRow(go, FrmAnzeigen.UusLGYO2, screen::layOutUusLGYO2);
    const LogView* log = logViewFor(Modul1.BandCur, Modul1.Etapa);
    if (log == nullptr || !(FrmAnzeigen.*log->grid).seen()) return;
    deleteRow(go, FrmAnzeigen.*log->data, log->table->layOut);
}

/// The log of the band in hand is read once more, deleted from or not.
void showLogAgain(base::ResumeNext& go)
{
    if (Modul1.BandCur != 144 && Modul1.BandCur != 432 && Modul1.BandCur != 1296) return;
    const LogView* log = logViewFor(Modul1.BandCur, Modul1.Etapa);
    if (log == nullptr || Modul1.ConcId == runstate::maratonContest) return;
    screen::DataControl& data = FrmAnzeigen.*log->data;
    go([&] { data.Refresh(); });
    go([&] { data.Recordset.MoveLast(); });
    go(log->table->layOut);
}

}  // namespace

void OpBDelete_Click()
{
    base::ResumeNext go;
    Message3();
    if (Modul1.PrintSel != 0) deleteFromView(go);
    showLogAgain(go);
    FrmAnzeigen.OpBDelete.Value = false;
}

void Message3()
{
    if (runstate::ask("DO YOU WANT TO DELETE?", "LÖSCHEN?") == platform::buttonYes) {
        Modul1.PrintSel = 1;
        return;
    }
    Anulat();
    Modul1.PrintSel = 0;
    FrmAnzeigen.Frame5.Visible = false;
}

}  // namespace review
