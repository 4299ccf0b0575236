#include "entry/received_fields.h"

#include "base/runtime_error.h"
#include "base/text.h"
#include "entry/commit.h"
#include "entry/contest_groups.h"
#include "entry/field_keys.h"
#include "entry/normalise.h"
#include "geo/locator.h"
#include "geo/points.h"
#include "geo/rose.h"
#include "platform/civil_time.h"
#include "platform/machine.h"
#include "runstate/contest_codes.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"

namespace entry {

namespace {

constexpr std::size_t wholeCode = 3;
constexpr std::size_t wholeLocator = 6;

/// The state that a field has after load, as opposed to one that was emptied.
bool holdsOneBlank(const screen::TextBox& box)
{
    return box.Text == " ";
}

void switchOnUnlessLocked()
{
    if (FrmQSO.DupLock != 10) FrmQSO.CmdEnterCall.Enabled = true;
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
    return Modul1.ConcId == runstate::maratonContest;
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

}  // namespace

void TxtRSTR2_GotFocus()
{
    FrmQSO.CmdEnterCall.Enabled = false;
    if (const auto time = platform::validTime(FrmQSO.TxtUTC.Text.get())) {
        Modul1.TimeOff = *time;
        ElimSp();
        return;
    }
    platform::msgBox("ORA INCORECT INTRODUSA . INTRODUCETI ORA CORECT !", platform::iconExclamation);
    FrmQSO.TxtUTC.Text = " ";
    FrmQSO.TxtUTC.SetFocus();
}

void TxtRSTR2_Click()
{
    FrmQSO.CmdEnterCall.Enabled = false;
}

void TxtRSTR2_KeyDown(int& KeyCode)
{
    exchangeFieldKeyDown(KeyCode);
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
    // Where it is not taken the release of the key empties the field once more, of the blank that Space left there.
    if (!takeLocator()) return;
    toCall();
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

}  // namespace entry
