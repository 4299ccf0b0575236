#include "entry/deletion.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string>

#include "band/maraton.h"
#include "band/switching.h"
#include "band/totals.h"
#include "base/number.h"
#include "base/runtime_error.h"
#include "entry/commit.h"
#include "entry/contest_groups.h"
#include "entry/field_keys.h"
#include "entry/log_table.h"
#include "platform/machine.h"
#include "runstate/contest_codes.h"
#include "runstate/modul1.h"
#include "runstate/question.h"
#include "screen/frm_qso.h"
#include "screen/grid_layout.h"

namespace entry {

namespace {

using screen::FrmQSOForm;

constexpr const char* lookAtCode =
    "DUPA STERGEREA UNEI LINII SI INTRODUCEREA UNUI NOU INDICATIV, VERIFICATI SI MODIFICATI DACA E CAZUL VALOAREA "
    "CodS (F11)";

/// What belongs to a band, both stages together.
struct BandRow {
    std::int32_t band;
    screen::Label FrmQSOForm::*lamp;
    void (*choose)();
    void (*sum)();
};

constexpr BandRow bandRows[] = {
    {144, &FrmQSOForm::Lbl144, band::B144, band::Summe144},
    {432, &FrmQSOForm::Lbl432, band::B432, band::Summe432},
    {1296, &FrmQSOForm::Lbl1296, band::B1296, band::Summe1296},
    {bandGHz, &FrmQSOForm::LblGHz, band::BGHz, band::SummeGHz},
};

const BandRow* bandRowFor(std::int32_t band)
{
    const auto* const found =
        std::find_if(std::begin(bandRows), std::end(bandRows), [&](const BandRow& row) { return row.band == band; });
    return found == std::end(bandRows) ? nullptr : found;
}

bool maraton()
{
    return Modul1.ConcId == runstate::maratonContest;
}

bool operatorWantsIt()
{
    return runstate::ask("DO YOU WANT TO DELETE?", "LÖSCHEN?") == platform::buttonYes;
}

/// The lamps tell the band. A picked microwave band becomes the GHz group: their log is one.
void readBandFromLamps()
{
    for (const BandRow& row : bandRows)
        if ((FrmQSO.*row.lamp).BackColor == screen::lampOn) Modul1.BandCur = row.band;
}

void deleteCurrentRow(screen::DataControl& data)
{
    base::passing<base::noCurrentRecord>([&] { data.Recordset.Delete(); });
    // Stage A of 432 shows the rest of its rows as they were selected.
    if (&data != &FrmQSO.Uus432a) data.Refresh();
    base::passing<base::noCurrentRecord>([&] { data.Recordset.MoveLast(); });
}

void deleteFromBandLog()
{
    const LogTable* table = currentLogTable();
    if (table == nullptr || !(FrmQSO.*table->grid).seen()) return;
    deleteCurrentRow(FrmQSO.*table->data);
    table->layOut();
    bandRowFor(table->band)->sum();
    FrmQSO.LblPkt.Caption = base::toText(Modul1.*table->Pct);
    FrmQSO.LblQSO.Caption = base::toText(Modul1.*table->Qso);
}

void deleteFromMaratonLog()
{
    if (!FrmQSO.DBGrid9.seen()) return;
    deleteCurrentRow(FrmQSO.UusLGYO2);
    band::SummeYO2();
    band::showMaratonScore(static_cast<std::int32_t>(base::numericValue(Modul1.BandYO)));
}

/// Chooses the band anew. That reads the codes back from the log, where the deleted row is missing now: they are kept.
void chooseBandAgain()
{
    const BandRow* row = bandRowFor(Modul1.BandCur);
    if (row == nullptr) return;
    const std::array labels = {&FrmQSO.LblCod, &FrmQSO.LblCod432, &FrmQSO.LblCod1296, &FrmQSO.LblCodGhz};
    std::array<std::string, labels.size()> lastCodes;
    std::transform(labels.begin(), labels.end(), lastCodes.begin(),
                   [](const screen::Label* label) { return label->Caption; });
    const std::string codeToSend = FrmQSO.txtRSTE2.Text;
    const std::string nextCode = FrmQSO.NextCod;

    row->choose();

    for (std::size_t band = 0; band < labels.size(); ++band)
        labels.at(band)->Caption = lastCodes.at(band);
    FrmQSO.txtRSTE2.Text = codeToSend;
    FrmQSO.NextCod = nextCode;
}

/// The recount has walked through the table: the newest row becomes the current one again.
void showLogAgain()
{
    const LogTable* table = currentLogTable();
    if (table != nullptr) base::quietly<base::noCurrentRecord>([&] { showWholeTable(*table); });
}

}  // namespace

void Mesagge2()
{
    const bool wanted = operatorWantsIt();
    readBandFromLamps();
    if (!wanted) return toCall();
    Sterge();
    chooseBandAgain();
    if (maraton()) return;
    showLogAgain();
    platform::msgBox(lookAtCode, platform::iconExclamation, "ATENTIE");
    YoIn();
}

void Sterge()
{
    base::quietly<base::noCurrentRecord>([] { maraton() ? deleteFromMaratonLog() : deleteFromBandLog(); });
}

}  // namespace entry
