#include "review/page.h"

#include <cstdint>
#include <span>

#include "runstate/contest_codes.h"
#include "runstate/modul1.h"
#include "screen/frm_anzeigen.h"
#include "screen/scale.h"
#include "storage/open_databases.h"

namespace review {

namespace {

using Form = screen::FrmAnzeigenForm;
using Button = screen::OptionButton Form::*;

constexpr int helpContext = 900;

/// Contests that offer the same logs, by what these are.
enum Column { bandsAndStages, stagesOf144, threeBands, only144, maratonLog, fourBands, only50, columnCount };

/// Caption of a button by contest.
struct ButtonRow {
    Button button;
    const char* captions[columnCount];
};

/// In a table of captions: the button is taken away.
constexpr const char* none = nullptr;
/// In a table of captions: the button stays as it is.
constexpr const char* same = "";

constexpr ButtonRow viewButtons[] = {
    // contests 0 | 1, 6 | 2, 3, 5, 8 | 4 | 7 | 100 | 101
    {&Form::OpB144a, {same, same, same, same, "Log 144", same, "Log 50"}},
    {&Form::Opb144b, {same, same, none, none, none, "Log 432a", none}},
    {&Form::OpB432a, {same, none, same, none, "Log 432", "Log 1296a", none}},
    {&Form::OpB432b, {same, none, none, none, none, "Log GHz", none}},
    {&Form::OpB1296a, {same, none, same, none, "Log 1296", none, none}},
    {&Form::OpB1296b, {same, none, none, none, none, none, none}},
};

constexpr ButtonRow emptyingButtons[] = {
    // contests 0 | 1, 6 | 2, 3, 5, 8 | 4 | 7 | 100 | 101
    {&Form::OpbL144a, {same, same, same, same, "LogYO2", same, same}},
    {&Form::OpbL144b, {same, same, same, same, none, "Log 432a", same}},
    {&Form::OpbL432a, {same, same, same, same, none, "Log 1296a", same}},
    {&Form::OpbL432b, {same, same, same, same, none, "Log GHz", same}},
    {&Form::OpBL1296a, {same, same, same, same, none, same, same}},
    {&Form::OpBL1296b, {same, same, same, same, none, none, same}},
};

constexpr ButtonRow printButtons[] = {
    // contests 0 | 1, 6 | 2, 3, 5, 8 | 4 | 7 | 100 | 101
    {&Form::OpBD144a, {same, same, same, same, "Log", same, "Log 50"}},
    {&Form::OpBD144b, {same, same, none, same, none, "Log 432", none}},
    {&Form::OpBD432a, {same, none, same, none, none, "Log 1296", none}},
    {&Form::OpBD432b, {same, none, none, none, none, "Log GHz", none}},
    {&Form::OpBD1296a, {same, none, same, none, none, "Summary", none}},
    {&Form::OpBD1296b, {same, none, none, none, none, none, none}},
    {&Form::OpBDSumm144, {same, same, none, same, "Summary", none, "Summary 50"}},
    {&Form::OpBDSumm432, {same, none, "Summary", none, none, none, none}},
    {&Form::OpbDSumm1296, {same, none, none, none, none, none, none}},
    {&Form::OpbL144b, {same, same, same, none, same, same, none}},  // to empty, not to print
};

// The EDI entry is switched off in the Maraton contest: its column changes nothing.
constexpr ButtonRow ediBands[] = {
    // contests 0 | 1, 6 | 2, 3, 5, 8 | 4 | 7 | 100 | 101
    {&Form::OpB144Edi, {same, same, same, same, same, same, "50 MHz"}},
    {&Form::OpB432Edi, {same, none, same, none, same, same, none}},
    {&Form::OpB1296Edi, {same, none, same, none, same, same, none}},
    {&Form::OpBGHzEdi, {none, none, none, none, same, same, none}},
};

constexpr ButtonRow disketteBands[] = {
    // contests 0 | 1, 6 | 2, 3, 5, 8 | 4 | 7 | 100 | 101
    {&Form::OpBDsk144, {same, none, same, none, same, same, same}},
    {&Form::OpBDsk432, {same, none, same, none, same, same, same}},
    {&Form::OpBDsk1296, {same, none, same, none, same, same, same}},
};

Column columnOf(int contest)
{
    switch (contest) {
        case 0:
            return bandsAndStages;
        case 1:
        case 6:
            return stagesOf144;
        case 4:
            return only144;
        case 7:
            return maratonLog;
        case 100:
            return fourBands;
        case 101:
            return only50;
        default:
            return threeBands;
    }
}

void applyButtons(std::span<const ButtonRow> rows)
{
    for (const ButtonRow& row : rows) {
        screen::OptionButton& button = FrmAnzeigen.*row.button;
        const char* caption = row.captions[columnOf(Modul1.ConcId)];
        if (caption == none)
            button.Visible = false;
        else if (caption != same)
            button.Caption = caption;
    }
}

void bindDataControls()
{
    FrmAnzeigen.QRA.DatabaseName = Modul1.AppDir + "\\dbsKelvo.mdb";
    for (screen::DataControl* log :
         {&FrmAnzeigen.Uus144a, &FrmAnzeigen.Uus144b, &FrmAnzeigen.Uus432a, &FrmAnzeigen.Uus432b, &FrmAnzeigen.Uus1296a,
          &FrmAnzeigen.Uus1296b, &FrmAnzeigen.UusGHz, &FrmAnzeigen.UusLGYO2})
        log->DatabaseName = storage::logDatabasePath();
}

void takeContestPlaces()
{
    if (Modul1.ConcId != runstate::maratonContest) return;
    FrmAnzeigen.takeMaratonPlaces();
    FrmAnzeigen.mnuFormEDI.Enabled = false;
}

}  // namespace

void FrmAnzeigen_Load()
{
    FrmAnzeigen.HelpContextID = helpContext;
    FrmAnzeigen.BandFound = Modul1.BandCur;
    FrmAnzeigen.EtapaFound = Modul1.Etapa;
    Modul1.PrintSel = 0;
    screen::fillScreen(FrmAnzeigen);
    takeContestPlaces();
    screen::scaleForm(FrmAnzeigen);
    bindDataControls();
}

void showViewButtons()
{
    applyButtons(viewButtons);
    if (!runstate::contestIsOneOf({1, 4, 6, 101})) return;
    screen::setDesignHeight(FrmAnzeigen.Frame1, 1455);
    screen::setDesignTop(FrmAnzeigen.OpBQRALoc, 1080);
}

void showEmptyingButtons()
{
    applyButtons(emptyingButtons);
    if (Modul1.ConcId != runstate::internationalContest) return;
    FrmAnzeigen.OpbLGHz.Visible = true;
    screen::setDesignHeight(FrmAnzeigen.Frame2, 3000);
}

void showPrintButtons()
{
    applyButtons(printButtons);
    if (runstate::contestIsOneOf({1, 4, 6, 7, 101})) screen::setDesignHeight(FrmAnzeigen.Frame3, 1215);
    if (Modul1.ConcId != runstate::internationalContest) return;
    screen::setDesignHeight(FrmAnzeigen.Frame3, 2550);
    screen::setDesignWidth(FrmAnzeigen.Frame3, 1475);
}

void showEdiBands()
{
    applyButtons(ediBands);
}

void showDisketteBands()
{
    applyButtons(disketteBands);
    if (runstate::contestIsOneOf({1, 4, 6})) screen::setDesignHeight(FrmAnzeigen.Frame8, 735);
}

}  // namespace review
