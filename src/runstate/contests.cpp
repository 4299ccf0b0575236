#include "runstate/contests.h"

#include <algorithm>

#include "platform/machine.h"
#include "runstate/contest_codes.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"
#include "screen/scale.h"

namespace runstate {

namespace {

using screen::FrmInitForm;
constexpr Change leave = Change::leave;
constexpr Change no = Change::no;
constexpr Change yes = Change::yes;

constexpr std::uint16_t trofeulCarpati = 1;
constexpr std::uint16_t oltenia144 = 4;
constexpr std::uint16_t oltenia6m = 101;

constexpr const char* pickBand = "SELECT MOD SI BANDA";
constexpr const char* pickStage = "SELECT MOD SI ETAPA";
constexpr double threeRows = 1815;
constexpr double fourRows = 2215;

// The entry form by contest.
//
//                          upper  144    GHz    lamp   band   stage  stages mixed
//                          bands  on            144    fixed  fixed                  prompt         height     3rd 4th
//                          one
constexpr EntryPage twoStages{leave, leave, leave, leave, false, false, yes, leave, pickBand, 0, false, false, false};
constexpr EntryPage carpati{no, no, leave, yes, true, false, yes, yes, pickStage, 0, false, false, false};
constexpr EntryPage telecom{no, no, leave, yes, true, false, yes, no, pickStage, 0, false, false, false};
constexpr EntryPage onePass{leave, leave, leave, leave, false, false, no, no, pickBand, threeRows, true, false, false};
constexpr EntryPage oneBand{no, no, leave, yes, true, true, no, no, "SELECT MOD ", 0, false, false, true};
constexpr EntryPage sixMetres{no, no, leave, yes, true, true, no, yes, "SELECT MOD ", 0, false, false, true};
constexpr EntryPage marathon{yes,   leave,   leave,     leave, false, false, leave,
                             leave, nullptr, threeRows, true,  false, false};
constexpr EntryPage summerDay{yes, yes, no, yes, false, false, no, yes, pickBand, threeRows, true, false, false};
constexpr EntryPage international{yes, yes, yes, yes, false, false, no, yes, pickBand, fourRows, true, true, false};

// The same when the form is loaded again: other prompt words, and other groups.
constexpr EntryPage againNothing{leave, leave,   leave, leave, false, false, leave,
                                 leave, nullptr, 0,     false, false, false};
constexpr EntryPage againCarpati{no, no,    leave, yes,  true, false, yes, yes, "SELECT MODE SI ETAPA",
                                 0,  false, false, false};
constexpr EntryPage againTelecom{no, no,    leave, yes,  true, false, yes, leave, "SELECT MODE SI ETAPA",
                                 0,  false, false, false};
constexpr EntryPage againOneBand{no, no, leave, yes, true, false, no, leave, "SELECT MODE ", 0, false, false, true};
constexpr EntryPage againOnePass{leave, leave,    leave,     leave, false, false, no,
                                 no,    pickBand, threeRows, true,  false, false};
constexpr EntryPage againInternational{yes, yes,      yes,      leave, false, false, no,
                                       yes, pickBand, fourRows, true,  true,  false};

constexpr Contest catalogue[] = {
    {0, &FrmInitForm::OpBCampNatUUS, "Camp. Nat. UUS", "Camp.Nat.UUS", "YOVHF/UHF", "YOVHFUHF",
     "CAMPIONATELE NATIONALE UUS", twoStages, againNothing},
    {1, &FrmInitForm::OpbCarpati, "Trofeul Carpati", "Trofeul Carpati", "Carpati", "Carpati", "TROFEUL CARPATI ",
     carpati, againCarpati},
    {2, &FrmInitForm::OpbCluj, "Conc.Cluj Napoca", "Conc.Cluj Napoca", "ConcCluj", "ConcCluj", "Concurs Cluj Napoca",
     onePass, againOnePass},
    {3, &FrmInitForm::OpBFloareademina, "Floarea de mina", "Floarea de mina", "Floare", "Floare", "Floarea de mina",
     onePass, againOnePass},
    {4, &FrmInitForm::OpbOltenia, "Oltenia 144 MHz", "Oltenia 144 MHz", "Olt144", "Oltenia", "Oltenia 144 MHz", oneBand,
     againOneBand},
    {5, &FrmInitForm::OpBConstrMas, "Constructor masini", "Constructor masini", "Masini", "Masini",
     "Constructor masini ", onePass, againOnePass},
    {6, &FrmInitForm::OpBTelecom, "Ziua Telecom", "Ziua Telecom", "TlcUUS", "TlcUUS", "Ziua Telecom", telecom,
     againTelecom},
    {7, &FrmInitForm::OpBMaraton, "Lugoj Maraton", "Lugoj Maraton", "MaratonYO2", "MaratonYO2", "Lugoj Maraton",
     marathon, marathon},
    {8, &FrmInitForm::OpbZPV, "Zi de vara", "Zi de vara", "ZiVara", "ZiVara", "Zi de vara", summerDay, againOnePass},
    {100, &FrmInitForm::OpBCampInternUUS, "Camp.Internat.UUS", "Camp.Internat.UUS", "YODxUUS", "YODxUUS",
     "Camp. Internat. UUS", international, againInternational},
    {101, &FrmInitForm::OpbOltenia6m, "Oltenia 6 m.", "Oltenia 6 m", "Olt6m", "Oltenia6m", "Oltenia 6 m", sixMetres,
     againOneBand},
};

void show(screen::Control& control, Change change)
{
    if (change != leave) control.Visible = change == yes;
}

void showScoreRow(bool visible, screen::Label& band, screen::Label& points, screen::Label& qsos)
{
    band.Visible = visible;
    points.Visible = visible;
    qsos.Visible = visible;
}

/// The contests of one band have one row of the score.
void nameOnlyBand(std::uint16_t contest)
{
    if (contest != oltenia144 && contest != oltenia6m) return;
    FrmQSO.LblBandCol.Caption = "Bnd";
    FrmQSO.LblBand.Caption = contest == oltenia144 ? "144" : "6";
    if (contest != oltenia6m) return;
    FrmQSO.Cmd144.Caption = "6m";
    FrmQSO.CmdFm.Visible = true;
}

/// The Maraton contest exchanges names too: the own one on the set-up page, both on the entry form.
void askForName(std::uint16_t contest)
{
    if (contest != maratonContest) return;
    FrmInit.TxtMyName.Visible = true;
    FrmInit.LblMyName.Visible = true;
    FrmInit.TxtMyName.SetFocus();
}

void showNames(std::uint16_t contest)
{
    if (contest != maratonContest) return;
    FrmQSO.takeMaratonPlaces(Modul1.ScaleX >= 1);
    FrmQSO.TxtYourName.Visible = true;
    FrmQSO.TxtMyName.Visible = true;
    FrmQSO.LblRSTe.Caption = "RSTS CODS QTHLocS  NameS";
    FrmQSO.LblRSTR.Caption = "   RSTR CODR QTHLocR  NameR";
}

/// A new contest starts from zero; in the Carpathian trophy the number of the set-up file stays.
void presetSerial(std::uint16_t contest)
{
    if (contest != trofeulCarpati && contest != maratonContest) FrmInit.TxtRpNr.Text = "000";
    FrmInit.TxtRpNr.Visible = false;
    FrmInit.LblRpNr.Visible = false;
    FrmInit.LblInscr.Visible = false;
}

/// The frame that was clicked goes: the operator goes on with the first field to fill in.
void leaveOperatingMode()
{
    FrmInit.FraConcurs.Visible = false;
    (Modul1.ConcId == maratonContest ? FrmInit.TxtMyName : FrmInit.TxtMyCall).SetFocus();
}

void choose(std::uint16_t id)
{
    const Contest& contest = *contestById(id);
    Modul1.ConcId = id;
    Modul1.ConcReturn = 0;
    FrmInit.LblTypTest.Caption = contest.title;
    FrmQSO.LblConc.Caption = contest.shownName;
    Modul1.ConcShort = contest.shortName;
    FrmInit.FrmConcurs.Visible = false;
    FrmInit.FraConcurs.Visible = true;
    presetSerial(id);
    applyPage(contest.page);
    nameOnlyBand(id);
    askForName(id);
    showNames(id);
    layOutEntryForm();
}

}  // namespace

std::span<const Contest> contests()
{
    return catalogue;
}

const Contest* contestById(int id)
{
    const auto* const found = std::find_if(std::begin(catalogue), std::end(catalogue),
                                           [&](const Contest& contest) { return contest.id == id; });
    return found == std::end(catalogue) ? nullptr : found;
}

std::string_view NameConcurs(int id)
{
    const Contest* contest = contestById(id);
    return contest == nullptr ? std::string_view() : contest->reportName;
}

void OpBCampNatUUS_Click()
{
    choose(0);
}

void OpbCarpati_Click()
{
    choose(1);
}

void OpbCluj_Click()
{
    choose(2);
}

void OpBFloareademina_Click()
{
    choose(3);
}

void OpbOltenia_Click()
{
    choose(4);
}

void OpBConstrMas_Click()
{
    choose(5);
}

void OpBTelecom_Click()
{
    choose(6);
}

void OpBMaraton_Click()
{
    choose(7);
}

void OpbZPV_Click()
{
    choose(8);
}

void OpBCampInternUUS_Click()
{
    choose(100);
}

void OpbOltenia6m_Click()
{
    choose(101);
}

void OpbConcurs_Click()
{
    leaveOperatingMode();
    Modul1.QraMemOn = 100;
    platform::msgBox("Inainte de incepere verificati daca tabelele LOG necesare concursului dorit sint goale !",
                     platform::iconExclamation);
}

void OpbTest_Click()
{
    leaveOperatingMode();
    Modul1.QraMemOn = 0;
}

void layOutEntryForm()
{
    if (Modul1.ScaleY < 1)
        screen::qso::MForm();
    else
        screen::qso::MFormMare();
}

void restorePage()
{
    const Contest* contest = contestById(Modul1.ConcId);
    if (contest == nullptr) return;
    applyPage(contest->reloadedPage);
    nameOnlyBand(contest->id);
    showNames(contest->id);
    layOutEntryForm();
    const bool wasChosen = !Modul1.ConcShort.empty();
    if (wasChosen) FrmQSO.LblConc.Caption = contest->shownName;
}

void applyPage(const EntryPage& page)
{
    show(FrmQSO.Cmd432, page.upperBands);
    show(FrmQSO.Cmd1296, page.upperBands);
    if (page.band144Enabled != leave) FrmQSO.Cmd144.Enabled = page.band144Enabled == yes;
    show(FrmQSO.CmdGHz, page.microwaves);
    show(FrmQSO.Lbl144, page.lamp144);
    if (page.fixedBand) Modul1.BandCur = 144;
    if (page.fixedStage) Modul1.Etapa = "A";
    show(FrmQSO.CmdA, page.stages);
    show(FrmQSO.CmdB, page.stages);
    show(FrmQSO.CmdMixt, page.mixedMode);
    if (page.prompt != nullptr) FrmQSO.LblAnunt.Caption = page.prompt;
    if (page.scoreHeight > 0) screen::setDesignHeight(FrmQSO.Frame2, page.scoreHeight);
    if (page.thirdRow) showScoreRow(true, FrmQSO.LblBand2, FrmQSO.LblPkt2, FrmQSO.LblQSO2);
    if (page.fourthRow) showScoreRow(true, FrmQSO.LblBand3, FrmQSO.LblPkt3, FrmQSO.LblQSO3);
    if (page.oneRow) showScoreRow(false, FrmQSO.LblBand1, FrmQSO.LblPkt1, FrmQSO.LblQSO1);
}

}  // namespace runstate
