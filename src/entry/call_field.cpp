#include "entry/call_field.h"

#include "base/text.h"
#include "entry/commit.h"
#include "entry/duplicate.h"
#include "entry/field_keys.h"
#include "entry/normalise.h"
#include "entry/offline.h"
#include "entry/search.h"
#include "keyer/messages.h"
#include "platform/keys.h"
#include "runstate/modul1.h"
#include "screen/editing.h"
#include "screen/frm_qso.h"

namespace entry {

namespace {

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
    keyer::armOnF1(KeyCode);
    pressedInCall(KeyCode);
    keyer::sendOnFunctionKey(KeyCode, keyer::Call::fromField);
    keyer::changeSpeed(KeyCode);
    reopenPaperTime(KeyCode);
}

void txtIndic_KeyPress(char32_t& KeyAscii)
{
    KeyAscii = base::upper(KeyAscii);
    FrmQSO.DupLock = 0;
    FrmQSO.CwRepBreak = 100;
    FrmQSO.SsbRepBreak = 100;
    FrmQSO.LblMyCall.Caption = Modul1.MyCall;
    if (KeyAscii == platform::charEnter && FrmQSO.CmdEnterCall.Enabled) Enter();
    if (paperLog() && FrmQSO.TimeDone == 100) {
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

}  // namespace entry
