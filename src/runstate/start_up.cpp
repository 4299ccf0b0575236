#include "runstate/start_up.h"

#include <cctype>

#include "base/number.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "entry/commit.h"
#include "entry/flow.h"
#include "entry/undo.h"
#include "platform/machine.h"
#include "runstate/contest_codes.h"
#include "runstate/contests.h"
#include "runstate/modul1.h"
#include "runstate/setup_files.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"
#include "screen/keying_choices.h"
#include "screen/scale.h"
#include "storage/open_databases.h"

namespace runstate {

namespace {

constexpr const char* modesExplained[] = {
    "Programul permite doua moduri de operare. ",
    "     -In modul CONCURS, (butonul CONCURS apasat) toate modificarile de QRA Locator sint memorate automat in baza "
    "de "
    "date.",
    "                -Al doilea mod este util pentru invatarea programului sau pentru antrenament.",
    "Cind butonul TEST este apasat, operatorul poate introduce orice date corespunzatoare QRA Locatorului fara a "
    "afecta baza de date.",
    "               Aceasta inseamna ca in modul normal de lucru (CONTEST) toate datele referitoare la QRA Locator "
    "scrise in modul de lucru (TEST) vor fi ignorate.",
};

/// The trap of both form Loads: a database that cannot be reached is told and may end the program; with AUTO everything
/// does; all else goes on with the next step.
base::ResumeNext loadTrap()
{
    return base::ResumeNext([answer = platform::buttonOk](const base::RuntimeError& error) mutable {
        if (error.number() == base::noDatabase)
            answer = platform::msgBox("Keine Verbindung zum Server !", platform::styleOkCancel);
        if (base::upper(platform::machine().installation.commandLine()) == "AUTO") throw base::ProgramEnd{};
        if (answer == platform::buttonCancel) throw base::ProgramEnd{};
        // A first run has no set-up files.
        if (error.number() != base::noSuchFile) base::reportSwallowed(error);
    });
}

void explainModes()
{
    std::string text;
    for (const char* piece : modesExplained)
        text += piece;
    FrmInit.LblAnunt.Caption = text;
}

void showStation()
{
    FrmInit.TxtMyCall.Text = Modul1.MyCall;
    FrmInit.TxtTime.Text = Modul1.TimeDiff;
    FrmInit.txtMyQRA.Text = Modul1.MyQRA;
    FrmInit.TxtMyName.Text = base::trim(Modul1.MyName);
}

void askForSoundCard()
{
    bool card = false;
    screen::Soundkarte(card);
    Modul1.SoundCard = card ? 100 : 0;
    if (card) return;
    FrmInit.ChkSSBRpt.Value = 0;
    FrmInit.ChkSSBRpt.Visible = false;
    FrmInit.FramSSB.Visible = false;
    FrmInit.OpbSSBN.Value = true;
    FrmInit.OpbSSBN.Visible = false;
    FrmInit.OpbSSBJ.Visible = false;
    Modul1.SsbAllowed = 0;
}

void startAfresh()
{
    Modul1.BandCur = 0;
    Modul1.ModeCur = "00";
    Modul1.Etapa = "";
    Modul1.CwAllowed = 10;
    Modul1.SsbAllowed = 10;
}

/// The keying choices as they were when the page was left.
void restoreKeyingChoices()
{
    const bool cw = Modul1.CwAllowed == 100;
    const bool voice = Modul1.SsbAllowed == 100;
    (cw ? FrmInit.OpbCwJ : FrmInit.OpbCwN).Value = true;
    (voice ? FrmInit.OpbSSBJ : FrmInit.OpbSSBN).Value = true;
    FrmInit.FramTxtCw.Visible = cw;
    FrmInit.ChkCwRpt.Visible = cw;
    FrmInit.ChkSSBRpt.Visible = voice;
}

/// The serial shown on the entry form, from the label that this contest counts in.
const std::string& serialShown()
{
    const bool byBand = Modul1.ConcId == 2 || Modul1.ConcId == 5 || Modul1.ConcId == 8;
    if (byBand && Modul1.BandCur == 432) return FrmQSO.LblCod432.Caption;
    if (byBand && Modul1.BandCur == 1296) return FrmQSO.LblCod1296.Caption;
    return FrmQSO.LblCod.Caption;
}

void restoreContest()
{
    FrmInit.FraConcurs.Visible = false;
    FrmInit.FrmConcurs.Visible = false;
    restoreKeyingChoices();
    const Contest* contest = contestById(Modul1.ConcId);
    if (contest != nullptr) FrmInit.LblTypTest.Caption = contest->restoredTitle;
    if (Modul1.ConcId == 6) {
        FrmQSO.CmdMixt.Visible = false;
        FrmQSO.LblMixt.Visible = false;
    }
    if (Modul1.ConcId != maratonContest) {
        FrmInit.TxtRpNr.Text = serialShown();
        return;
    }
    FrmInit.TxtMyName.Visible = true;
    FrmInit.LblMyName.Visible = true;
    FrmInit.TxtMyName.SetFocus();
    FrmInit.TxtRpNr.Visible = false;
    FrmInit.LblRpNr.Visible = false;
    FrmInit.LblInscr.Visible = false;
}

void showMessages()
{
    FrmInit.TxtF1.Text = Modul1.TxtCwF1;
    FrmInit.TxtF2.Text = Modul1.TxtCwF2;
    FrmInit.TxtF3.Text = Modul1.TxtCwF3;
    FrmInit.TxtF4.Text = Modul1.TxtCwF4;
    FrmInit.TxtF5.Text = Modul1.TxtCwF5;
    FrmInit.TxtF6.Text = Modul1.TxtCwF6;
    FrmInit.TxtF7.Text = Modul1.TxtCwF7;
}

/// Proves that the database engine and the folder can be reached; nothing else reads this database.
void proveEngine()
{
    Modul1.DbLog = storage::OpenDatabase(storage::engineProofPath());
    storage::TableDef definition = storage::Database::CreateTableDef("QRA");
    definition.SourceTableName = "QRA";
    base::passing<base::existsOrNoAccess>([&] { Modul1.DbLog.AppendTableDef(definition); });
}

void bindDataControls()
{
    FrmQSO.QRA.DatabaseName = Modul1.AppDir + "\\dbsKelvo.mdb";
    for (screen::DataControl* log : {&FrmQSO.Uus144a, &FrmQSO.Uus144b, &FrmQSO.Uus432a, &FrmQSO.Uus432b,
                                     &FrmQSO.Uus1296a, &FrmQSO.Uus1296b, &FrmQSO.UusGHz, &FrmQSO.UusLGYO2})
        log->DatabaseName = storage::logDatabasePath();
}

void lightModeLamp()
{
    if (Modul1.ModeCur == "CW") FrmQSO.LblCW.BackColor = screen::lampOn;
    if (Modul1.ModeCur == "SSB") FrmQSO.LblSSB.BackColor = screen::lampOn;
}

bool namedBand()
{
    return Modul1.BandCur == 144 || Modul1.BandCur == 432 || Modul1.BandCur == 1296;
}

}  // namespace

void showMessagesOnEntryForm()
{
    FrmQSO.TxtF1.Text = Modul1.TxtCwF1;
    FrmQSO.TxtF2.Text = Modul1.TxtCwF2;
    FrmQSO.TxtF3.Text = Modul1.TxtCwF3;
    FrmQSO.TxtF4.Text = Modul1.TxtCwF4;
    FrmQSO.TxtF5.Text = Modul1.TxtCwF5;
    FrmQSO.TxtF6.Text = Modul1.TxtCwF6;
    FrmQSO.TxtF7.Text = Modul1.TxtCwF7;
}

void FrmInit_Load()
{
    base::ResumeNext go = loadTrap();
    FrmInit.LblContest.Caption = "BEFORE START PLEASE FILL THIS PAGE ";
    FrmInit.HelpContextID = 100;
    screen::fillScreen(FrmInit);
    if (Modul1.ScaleY < 1)
        screen::init::MForm();
    else
        screen::init::MFormMare();
    Modul1.AppPath = platform::machine().installation.programFolder();
    Modul1.OfflineInput = 0;
    FrmQSO.LblOffLine.Visible = false;
    Modul1.AppDir = appDirOf(Modul1.AppPath);
    Modul1.TotalsDone = 0;
    explainModes();
    const bool onlyOn144 = Modul1.ConcId == 1 || Modul1.ConcId == 4 || Modul1.ConcId == 6;
    if (onlyOn144) Modul1.BandCur = 144;
    const bool firstRun = go(ReadInitDat) == base::noSuchFile;
    showStation();
    if (!firstRun) FrmInit.TxtRpNr.Text = base::toText(Modul1.SerNr);
    askForSoundCard();
    FrmInit.ChkCwRpt.Value = Modul1.CwRptFlag == 100 ? 1 : 0;
    FrmInit.ChkSSBRpt.Value = Modul1.SsbRptFlag == 100 ? 1 : 0;
    if (Modul1.ConcReturn == 0) startAfresh();
    if (Modul1.ConcReturn == 100) go(restoreContest);
    if (Modul1.SoundCard == 0) Modul1.SsbAllowed = 0;
    const bool noMessages = go(ReadTextCw) == base::noSuchFile;
    showMessages();
    if (!noMessages || Modul1.CwPort != 0) FrmInit.TxtCP.Text = base::toText(Modul1.CwPort);
    go([] {
        screen::touch(FrmQSO);
        FrmQSO.Hide();
    });
    go(proveEngine);
    FrmInit.Show();
    FrmInit.TxtRpNr.SetFocus();
}

void FrmQSO_Load()
{
    base::ResumeNext go = loadTrap();
    FrmQSO.HelpContextID = 400;
    FrmQSO.BaseCaption = FrmQSO.Caption;
    screen::fillScreen(FrmQSO);
    layOutEntryForm();
    entry::switchRecup(false);
    bindDataControls();
    if (Modul1.ModeCur == "  " || Modul1.BandCur == 0) FrmQSO.LblAnunt.Visible = true;
    FrmQSO.DBGrid9.Visible = false;
    FrmQSO.LblOffLine.Visible = Modul1.OfflineInput == 100;
    restorePage();
    if (Modul1.ConcId == maratonContest) FrmQSO.TxtMyName.Text = Modul1.MyName;
    go(ReadTextCw);
    showMessagesOnEntryForm();
    if (namedBand()) entry::Init();
    go(ReadInitDat);
    FrmQSO.TxtMyName.Text = base::trim(Modul1.MyName);
    FrmQSO.lblWPM.Caption = base::toText(static_cast<long long>(FrmQSO.Wpm));
    entry::ScrMyDat();
    lightModeLamp();
    FrmQSO.Hide();
    go(storage::DBsInit);
}

std::string appDirOf(std::string_view appPath)
{
    const std::size_t bracket = appPath.rfind(']');
    if (bracket == std::string_view::npos) return std::string(appPath);
    const bool hasDrive =
        appPath.size() > 1 && appPath[1] == ':' && std::isalpha(static_cast<unsigned char>(appPath[0])) != 0;
    return std::string(hasDrive ? appPath.substr(0, 2) : std::string_view()) + std::string(appPath.substr(bracket + 1));
}

}  // namespace runstate
