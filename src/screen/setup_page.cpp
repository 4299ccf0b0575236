#include "screen/setup_page.h"

#include "base/number.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "platform/keys.h"
#include "platform/machine.h"
#include "runstate/modul1.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"

namespace screen {

namespace {

void swallowF1(int& keyCode)
{
    if (keyCode == platform::keyF1) keyCode = platform::keyNone;
}

void goTo(TextBox& box)
{
    box.SetFocus();
    box.caretToEnd();
}

}  // namespace

void typeCapital(char32_t& KeyAscii)
{
    KeyAscii = base::upper(KeyAscii);
}

void TxtMyCall_KeyDown(int& KeyCode)
{
    swallowF1(KeyCode);
    if (KeyCode != platform::keyEnter) return;
    Modul1.Indic = base::trim(FrmInit.TxtMyCall.Text);
    if (Modul1.Indic.empty()) {
        platform::msgBox("Falsche Eingabe");
        return;
    }
    Modul1.MyCall = base::upper(FrmInit.TxtMyCall.Text.get());
    FrmInit.TxtMyCall.Text = Modul1.MyCall;
    goTo(FrmInit.txtMyQRA);
}

void txtMyQRA_KeyDown(int& KeyCode)
{
    swallowF1(KeyCode);
    if (KeyCode != platform::keyEnter) return;
    Modul1.MyQRA = base::upper(FrmInit.txtMyQRA.Text.get());
    FrmInit.txtMyQRA.Text = Modul1.MyQRA;
    Modul1.MyQraPrev = Modul1.MyQRA;
    goTo(FrmInit.TxtTime);
}

void TxtMyName_KeyDown(int& KeyCode)
{
    swallowF1(KeyCode);
    if (KeyCode != platform::keyEnter) return;
    Modul1.MyName = base::trim(FrmInit.TxtMyName.Text);
    goTo(FrmInit.TxtMyCall);
}

void TxtMyName_KeyUp(int& /*KeyCode*/)
{
    if (FrmQSO.life == FormLife::loaded) FrmQSO.TxtMyName.Text = FrmInit.TxtMyName.Text.get();
}

void TxtRpNr_KeyDown(int& KeyCode)
{
    swallowF1(KeyCode);
    if (KeyCode != platform::keyEnter) return;
    base::passing<base::notANumber, base::overflow>([] {
        Modul1.SerNr = 0;
        Modul1.SerNr = base::toInt16(FrmInit.TxtRpNr.Text.get());
    });
    goTo(FrmInit.TxtMyCall);
}

void TxtTime_KeyDown(int& KeyCode)
{
    swallowF1(KeyCode);
}

}  // namespace screen
