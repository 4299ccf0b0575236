#include "screen/setup_page.h"

#include <initializer_list>
#include <string>

#include "base/number.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "platform/civil_time.h"
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

/// Enter takes the text of a field as it stands.
void takeText(int keyCode, const TextBox& box, std::string& text, TextBox& next)
{
    if (keyCode != platform::keyEnter) return;
    text = box.Text;
    goTo(next);
}

void takeCount(int keyCode, const TextBox& box, std::int16_t& count, TextBox& next)
{
    if (keyCode != platform::keyEnter) return;
    count = countIn(box);
    goTo(next);
}

}  // namespace

std::int16_t countIn(const TextBox& box)
{
    std::int16_t count = 0;
    if (!base::trim(box.Text).empty()) base::quietly([&] { count = base::toInt16(box.Text.get()); });
    return count;
}

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
    takeCount(KeyCode, FrmInit.TxtRpNr, Modul1.SerNr, FrmInit.TxtMyCall);
}

void TxtTime_KeyDown(int& KeyCode)
{
    swallowF1(KeyCode);
}

void TxtSD_KeyDown(int& KeyCode)
{
    takeText(KeyCode, FrmInit.TxtSD, Modul1.DateOff, FrmInit.TxtST);
}

void TxtST_KeyDown(int& KeyCode)
{
    takeText(KeyCode, FrmInit.TxtST, Modul1.TimeOff, FrmInit.TxtMyCall);
}

void TxtF1_KeyDown(int& KeyCode)
{
    takeText(KeyCode, FrmInit.TxtF1, Modul1.TxtCwF1, FrmInit.TxtF2);
}

void TxtF2_KeyDown(int& KeyCode)
{
    takeText(KeyCode, FrmInit.TxtF2, Modul1.TxtCwF2, FrmInit.TxtF3);
}

void TxtF3_KeyDown(int& KeyCode)
{
    takeText(KeyCode, FrmInit.TxtF3, Modul1.TxtCwF3, FrmInit.TxtF4);
}

void TxtF4_KeyDown(int& KeyCode)
{
    takeText(KeyCode, FrmInit.TxtF4, Modul1.TxtCwF4, FrmInit.TxtF5);
}

void TxtF5_KeyDown(int& KeyCode)
{
    takeText(KeyCode, FrmInit.TxtF5, Modul1.TxtCwF5, FrmInit.TxtF6);
}

void TxtF6_KeyDown(int& KeyCode)
{
    takeText(KeyCode, FrmInit.TxtF6, Modul1.TxtCwF6, FrmInit.TxtF7);
}

void TxtF7_KeyDown(int& KeyCode)
{
    takeText(KeyCode, FrmInit.TxtF7, Modul1.TxtCwF7, FrmInit.TxtCP);
}

void TxtCP_KeyDown(int& KeyCode)
{
    takeCount(KeyCode, FrmInit.TxtCP, Modul1.CwPort, FrmInit.TxtMyCall);
}

void mnuInputLog_Click()
{
    Modul1.OfflineInput = 100;
    for (Control* control : std::initializer_list<Control*>{&FrmInit.TxtSD, &FrmInit.TxtST, &FrmInit.LblSD,
                                                            &FrmInit.LblST, &FrmQSO.LblOffLine})
        control->Visible = true;
    FrmInit.TxtSD.Text = platform::longDate(platform::machine().clock.now());
    FrmInit.TxtST.Text = "00:00";
    FrmInit.TxtSD.SetFocus();
    Modul1.CwAllowed = 0;
    FrmInit.ChkCwRpt.Value = 0;
    Modul1.CwRptFlag = 0;
}

}  // namespace screen
