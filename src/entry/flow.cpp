#include "entry/flow.h"

#include "base/runtime_error.h"
#include "base/text.h"
#include "entry/commit.h"
#include "entry/contest_groups.h"
#include "entry/duplicate.h"
#include "entry/log_table.h"
#include "entry/normalise.h"
#include "entry/search.h"
#include "entry/undo.h"
#include "geo/locator.h"
#include "geo/points.h"
#include "geo/rose.h"
#include "platform/civil_time.h"
#include "platform/keys.h"
#include "platform/machine.h"
#include "runstate/modul1.h"
#include "screen/editing.h"
#include "screen/frm_qso.h"

namespace entry {

namespace {

constexpr int iconExclamation = 48;
constexpr std::size_t wholeCode = 3;
constexpr std::size_t wholeLocator = 6;

std::size_t trimmedLength(const screen::TextBox& box)
{
    return base::length(base::trim(box.Text));
}

/// The state that a field has after load, as opposed to one that was emptied.
bool holdsOneBlank(const screen::TextBox& box)
{
    return box.Text == " ";
}

void markNextField(int keyCode)
{
    FrmQSO.NextField = keyCode == platform::keyTab || keyCode == platform::keySpace ? 100 : 0;
}

void toCall()
{
    FrmQSO.txtIndic.SetFocus();
    FrmQSO.txtIndic.caretToEnd();
}

void switchOnUnlessLocked()
{
    if (FrmQSO.DupLock != 10) FrmQSO.CmdEnterCall.Enabled = true;
}

void emptyAndFocus(screen::TextBox& box)
{
    box.Text = "";
    box.SetFocus();
}

/// Esc gives the QSO up, unless it has just stopped a message.
void abortOnEscape(int keyCode)
{
    if (keyCode != platform::keyEscape || FrmQSO.KeyerBusy != 0) return;
    FrmQSO.AbortFlag = 100;
    switchRecup(true);
    AbbruchX();
}

void clearKeyerBusyOnEscape(int keyCode)
{
    if (keyCode == platform::keyEscape) FrmQSO.KeyerBusy = 0;
}

/// The KeyDown of a field that only waits for Tab or Space.
void sideFieldKeyDown(int& keyCode)
{
    markNextField(keyCode);
    swallowF1(keyCode);
}

/// The KeyPress of a side field: with Tab or Space its text goes to its variable and the operator back to the call.
void leaveSideField(const screen::TextBox& field, std::string& variable)
{
    if (FrmQSO.NextField != 100) return;
    variable = field.Text;
    FrmQSO.CmdEnterCall.Enabled = true;
    toCall();
    FrmQSO.NextField = 0;
}

/// Report and code received, and the button that logs.
void takeReceived()
{
    Modul1.RstRcvd2 = FrmQSO.TxtRSTR2.Text;
    Modul1.RstRcvd1 = FrmQSO.TxtRSTR1.Text;
    Modul1.RstRcvdAll = Modul1.RstRcvd1 + Modul1.RstRcvd2;
    switchOnUnlessLocked();
}

void toLocator()
{
    FrmQSO.TxtRSTr3.SetFocus();
    FrmQSO.TxtRSTr3.caretToEnd();
    FrmQSO.CmdEnterCall.Enabled = false;
}

bool callIsRed()
{
    return FrmQSO.txtIndic.BackColor == screen::red;
}

bool maraton()
{
    return Modul1.ConcId == maratonContest;
}

/// A duplicate: the operator is asked which of the two QSOs keeps its points; the Maraton contest allows none.
void askAboutDuplicate()
{
    if (!callIsRed()) return;
    if (!maraton()) {
        FrmQSO.Frame4.Visible = true;
        return;
    }
    platform::msgBox("La concursuri cu etape scurte nu este prevazuta posibilitatea legaturilor duble !!");
    AbbruchX();
}

/// Where the operator goes on behind the code received.
void goOnBehindCode()
{
    if (Modul1.QraUnknown == 100) return toLocator();
    if (!maraton()) return toCall();
    const std::size_t name = trimmedLength(FrmQSO.TxtYourName);
    if (name > 1) return toCall();
    // A name of one character moves nowhere.
    if (name == 0) FrmQSO.TxtYourName.SetFocus();
}

/// Takes the locator from its field. True when it was accepted; a refused one keeps the focus.
bool takeLocator()
{
    FrmQSO.CmdEnterCall.Enabled = true;
    Modul1.RstRcvd1 = FrmQSO.TxtRSTR1.Text;
    Modul1.RstRcvd2 = FrmQSO.TxtRSTR2.Text;
    Modul1.RcvdLog = Modul1.RstRcvd1 + Modul1.RstRcvd2;
    Modul1.QraLoc = FrmQSO.TxtRSTr3.Text;
    Modul1.QraLog = Modul1.QraLoc;
    if (base::length(base::trim(Modul1.QraLoc)) != wholeLocator) {
        emptyAndFocus(FrmQSO.TxtRSTr3);
        return false;
    }
    geo::ClcCoord();
    geo::CLCRicht();
    geo::Medalion();
    geo::ClcPct();
    if (FrmQSO.QraRefuz != 100) return true;
    FrmQSO.QraRefuz = 0;
    FrmQSO.TxtRSTr3.SetFocus();
    return false;
}

void pressedInCall(int keyCode)
{
    switch (keyCode) {
        case platform::keyF12:
        case platform::keyInsert:
            if (FrmQSO.CmdEnterCall.Enabled) Enter();
            break;
        case platform::keyEscape:
            abortOnEscape(keyCode);
            break;
        case platform::keyF8:
            emptyAndFocus(FrmQSO.TxtRSTR2);
            break;
        case platform::keyF9:
            emptyAndFocus(FrmQSO.TxtRSTr3);
            presetRomanianField();
            break;
        case platform::keyF11:
            emptyAndFocus(FrmQSO.txtRSTE2);
            break;
        default:
            break;
    }
}

/// What the search starts from: the field without the key, or, for Backspace, as the key will leave it.
std::string searchedField(char32_t keyAscii)
{
    if (keyAscii == platform::charBackspace) return screen::textAfterBackspace(FrmQSO.txtIndic);
    return FrmQSO.txtIndic.Text;
}

bool narrows(char32_t keyAscii)
{
    return keyAscii != platform::charEnter && keyAscii != platform::charEscape;
}

}  // namespace

void YesEnabl()
{
    if (Modul1.BandCur <= bandGHz) return;
    for (screen::TextBox* field : {&FrmQSO.txtIndic, &FrmQSO.TxtRSTE1, &FrmQSO.txtRSTE2, &FrmQSO.txtRSTe3,
                                   &FrmQSO.TxtRSTR1, &FrmQSO.TxtRSTR2, &FrmQSO.TxtRSTr3})
        field->Enabled = true;
    if (Modul1.OfflineInput != 100) return;
    FrmQSO.TxtUTC.Enabled = true;
    FrmQSO.TxtDate.Enabled = true;
}

bool modeIsChosen()
{
    const std::string& mode = Modul1.ModeCur;
    return mode == "SSB" || mode == "CW" || mode == "Fm" || mode == "Mixt";
}

void openWhenAllIsChosen()
{
    const bool stageIsChosen = Modul1.Etapa == "A" || Modul1.Etapa == "B";
    if (modeIsChosen() && stageIsChosen) YesEnabl();
}

void NoEnabl()
{
    for (screen::TextBox* field : {&FrmQSO.txtIndic, &FrmQSO.TxtRSTE1, &FrmQSO.txtRSTE2, &FrmQSO.txtRSTe3,
                                   &FrmQSO.TxtRSTR1, &FrmQSO.TxtRSTR2, &FrmQSO.TxtRSTr3})
        field->Enabled = false;
    if (Modul1.OfflineInput != 100) return;
    FrmQSO.TxtUTC.Enabled = false;
    FrmQSO.TxtDate.Enabled = false;
}

void Init()
{
    for (screen::Label* lamp :
         {&FrmQSO.Lbl144, &FrmQSO.Lbl432, &FrmQSO.Lbl1296, &FrmQSO.LblGHz, &FrmQSO.LblA, &FrmQSO.LblB})
        lamp->BackColor = screen::lampOff;
    switch (Modul1.BandCur) {
        case 144:
            FrmQSO.Lbl144.BackColor = screen::lampOn;
            break;
        case 432:
            FrmQSO.Lbl432.BackColor = screen::lampOn;
            break;
        case 1296:
            FrmQSO.Lbl1296.BackColor = screen::lampOn;
            break;
        case bandGHz:
            FrmQSO.LblGHz.BackColor = screen::lampOn;
            break;
        default:
            break;
    }
    for (screen::Grid* grid : {&FrmQSO.DBGrid1, &FrmQSO.DBGrid2, &FrmQSO.DBGrid3, &FrmQSO.DBGrid4, &FrmQSO.DBGrid5,
                               &FrmQSO.DBGrid6, &FrmQSO.DBGrid7, &FrmQSO.DBGrid8, &FrmQSO.DBGrid9})
        grid->Visible = false;
    FrmQSO.Frame3.Visible = Modul1.BandCur == bandGHz;
}

void txtIndic_GotFocus()
{
    ElimSp1();
}

void txtIndic_Click()
{
    FrmQSO.CmdEnterCall.Enabled = false;
}

void txtIndic_KeyDown(int& KeyCode)
{
    markNextField(KeyCode);
    swallowF1(KeyCode);
    pressedInCall(KeyCode);
}

void txtIndic_KeyPress(char32_t& KeyAscii)
{
    KeyAscii = base::upper(KeyAscii);
    FrmQSO.DupLock = 0;
    FrmQSO.CwRepBreak = 100;
    FrmQSO.SsbRepBreak = 100;
    FrmQSO.LblMyCall.Caption = Modul1.MyCall;
    if (KeyAscii == platform::charEnter && FrmQSO.CmdEnterCall.Enabled) Enter();
    if (Modul1.OfflineInput == 100 && FrmQSO.TimeDone == 100) {
        FrmQSO.NextField = 0;
        return;
    }
    if (FrmQSO.NextField == 100) {
        SubRep();
        // The key that took the call does not narrow the grid: it shows the earlier QSOs of the station.
        FrmQSO.NextField = 0;
        return;
    }
    if (narrows(KeyAscii)) narrowLog(searchedField(KeyAscii), KeyAscii);
}

void txtIndic_KeyUp(int& KeyCode)
{
    clearKeyerBusyOnEscape(KeyCode);
}

void TxtRSTR2_GotFocus()
{
    FrmQSO.CmdEnterCall.Enabled = false;
    if (const auto time = platform::validTime(FrmQSO.TxtUTC.Text.get())) {
        Modul1.TimeOff = *time;
        ElimSp();
        return;
    }
    platform::msgBox("ORA INCORECT INTRODUSA . INTRODUCETI ORA CORECT !", iconExclamation);
    FrmQSO.TxtUTC.Text = " ";
    FrmQSO.TxtUTC.SetFocus();
}

void TxtRSTR2_Click()
{
    FrmQSO.CmdEnterCall.Enabled = false;
}

void TxtRSTR2_KeyDown(int& KeyCode)
{
    sideFieldKeyDown(KeyCode);
    abortOnEscape(KeyCode);
}

void TxtRSTR2_KeyPress(char32_t& KeyAscii)
{
    FrmQSO.CwRepBreak = 100;
    KeyAscii = base::upper(KeyAscii);
    if (FrmQSO.NextField != 100) return;
    if (holdsOneBlank(FrmQSO.TxtRSTR2)) {
        FrmQSO.NextField = 0;
        FrmQSO.TxtRSTR2.SetFocus();
        return;
    }
    takeReceived();
    if (callIsRed()) {
        FrmQSO.Frame4.Visible = true;
        FrmQSO.CmdEnterCall.Enabled = false;
    }
    if (!maraton()) goOnBehindCode();
    // Tab and Space in the code field end the program: it is meant to be left by its third character.
    throw base::ProgramEnd{};
}

void TxtRSTR2_KeyUp(int& KeyCode)
{
    if (trimmedLength(FrmQSO.TxtRSTR2) == wholeCode) FrmQSO.NextField = 100;
    if (FrmQSO.NextField == 100 && !holdsOneBlank(FrmQSO.TxtRSTR2)) {
        takeReceived();
        askAboutDuplicate();
        goOnBehindCode();
    }
    FrmQSO.NextField = 0;
    clearKeyerBusyOnEscape(KeyCode);
}

void TxtRSTr3_KeyDown(int& KeyCode)
{
    TxtRSTR2_KeyDown(KeyCode);
}

void TxtRSTr3_KeyPress(char32_t& KeyAscii)
{
    FrmQSO.CwRepBreak = 100;
    KeyAscii = base::upper(KeyAscii);
    if (FrmQSO.NextField != 100) return;
    if (takeLocator()) toCall();
    FrmQSO.NextField = 0;
}

void TxtRSTr3_KeyUp(int& KeyCode)
{
    if (trimmedLength(FrmQSO.TxtRSTr3) == wholeLocator) FrmQSO.NextField = 100;
    const bool finished = FrmQSO.NextField == 100;
    FrmQSO.NextField = 0;
    if (finished && !takeLocator()) return;
    if (finished && maraton()) {
        FrmQSO.TxtYourName.SetFocus();
        FrmQSO.TxtYourName.caretToEnd();
    } else if (finished) {
        toCall();
    }
    clearKeyerBusyOnEscape(KeyCode);
}

void TxtRSTR1_Click()
{
    FrmQSO.CmdEnterCall.Enabled = false;
}

void TxtRSTR1_KeyDown(int& KeyCode)
{
    sideFieldKeyDown(KeyCode);
}

void TxtRSTR1_KeyPress(char32_t& /*KeyAscii*/)
{
    leaveSideField(FrmQSO.TxtRSTR1, Modul1.RstRcvd1);
}

void TxtRSTE1_Click()
{
    FrmQSO.CmdEnterCall.Enabled = false;
}

void TxtRSTE1_KeyDown(int& KeyCode)
{
    sideFieldKeyDown(KeyCode);
}

void TxtRSTE1_KeyPress(char32_t& KeyAscii)
{
    KeyAscii = base::upper(KeyAscii);
    leaveSideField(FrmQSO.TxtRSTE1, Modul1.RstSent1);
}

void txtRSTE2_KeyDown(int& KeyCode)
{
    sideFieldKeyDown(KeyCode);
    abortOnEscape(KeyCode);
}

void txtRSTE2_KeyPress(char32_t& /*KeyAscii*/)
{
    FrmQSO.CwRepBreak = 100;
    leaveSideField(FrmQSO.txtRSTE2, Modul1.RstSent2);
}

void txtRSTE2_KeyUp(int& KeyCode)
{
    clearKeyerBusyOnEscape(KeyCode);
}

void txtRSTe3_KeyDown(int& KeyCode)
{
    sideFieldKeyDown(KeyCode);
}

void txtRSTe3_KeyPress(char32_t& /*KeyAscii*/)
{
    leaveSideField(FrmQSO.txtRSTe3, Modul1.RstSent3);
}

void TxtYourName_KeyDown(int& KeyCode)
{
    sideFieldKeyDown(KeyCode);
}

void TxtYourName_KeyPress(char32_t& KeyAscii)
{
    KeyAscii = base::upper(KeyAscii);
    leaveSideField(FrmQSO.TxtYourName, Modul1.YourName);
}

void swallowF1(int& KeyCode)
{
    if (KeyCode == platform::keyF1) KeyCode = platform::keyNone;
}

}  // namespace entry
