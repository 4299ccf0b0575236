#include "keyer/messages.h"

#include <algorithm>
#include <array>

#include "base/number.h"
#include "base/text.h"
#include "keyer/calling.h"
#include "keyer/cw.h"
#include "keyer/voice.h"
#include "platform/keys.h"
#include "platform/machine.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"

namespace keyer {

namespace {

/// One message: its field on the entry form, and where its text is kept from run to run.
struct Message {
    screen::TextBox screen::FrmQSOForm::*field;
    std::string runstate::Modul1State::*kept;
};

constexpr std::array messages = {
    Message{&screen::FrmQSOForm::TxtF1, &runstate::Modul1State::TxtCwF1},
    Message{&screen::FrmQSOForm::TxtF2, &runstate::Modul1State::TxtCwF2},
    Message{&screen::FrmQSOForm::TxtF3, &runstate::Modul1State::TxtCwF3},
    Message{&screen::FrmQSOForm::TxtF4, &runstate::Modul1State::TxtCwF4},
    Message{&screen::FrmQSOForm::TxtF5, &runstate::Modul1State::TxtCwF5},
    Message{&screen::FrmQSOForm::TxtF6, &runstate::Modul1State::TxtCwF6},
    Message{&screen::FrmQSOForm::TxtF7, &runstate::Modul1State::TxtCwF7},
};

constexpr std::size_t callingMessage = 0;

bool cwAllowed()
{
    return Modul1.ModeCur == "CW" && Modul1.CwAllowed == 100 && Modul1.OfflineInput != 100;
}

bool answeringKey(int keyCode)
{
    return keyCode >= platform::keyF2 && keyCode <= platform::keyF7;
}

/// Number of the message from 0 that an answering key stands for.
std::size_t messageOf(int keyCode)
{
    return static_cast<std::size_t>(keyCode - platform::keyF1);
}

void sendMessage(std::size_t number)
{
    FrmQSO.KeyerBusy = 100;
    FrmQSO.TxtCw = (FrmQSO.*messages.at(number).field).Text;
    DescTxtCw();
    GoCW();
    FrmQSO.TxtCwCurent.Text = "";
}

void playMessage(std::size_t number)
{
    FrmQSO.WavPath = Modul1.AppPath + "\\WAVUus\\F" + base::toText(static_cast<long long>(number) + 1) + ".wav";
    GoSSB();
}

void takeCallOf(Call call)
{
    if (call == Call::fromField) Modul1.Indic = base::trim(FrmQSO.txtIndic.Text);
}

void sendInCw(int keyCode, Call call)
{
    if (answeringKey(keyCode)) {
        takeCallOf(call);
        return sendMessage(messageOf(keyCode));
    }
    if (FrmQSO.CwF1Armed != 100) return;
    FrmQSO.CwRepBreak = 0;
    FrmQSO.CwF1Armed = 0;
    takeCallOf(call);
    const std::int32_t runs = Modul1.callingRuns;
    sendCall();
    // The operator may have left the form in the middle of the message.
    if (Modul1.callingRuns != runs) return;
    if (Modul1.CwRptFlag == 100 && FrmQSO.CwRepStop == 0) Pauza();
}

void sendInVoice(int keyCode)
{
    if (answeringKey(keyCode)) return playMessage(messageOf(keyCode));
    if (FrmQSO.SsbF1Armed != 100) return;
    FrmQSO.SsbRepBreak = 0;
    FrmQSO.SsbF1Armed = 0;
    const std::int32_t runs = Modul1.callingRuns;
    playMessage(callingMessage);
    if (Modul1.callingRuns != runs) return;
    if (Modul1.SsbRptFlag == 100 && FrmQSO.SsbRepStop == 0) PauzaSSB();
}

void caretBehindCall()
{
    FrmQSO.txtIndic.SetFocus();
    FrmQSO.txtIndic.caretBehindTrimmed();
}

void storeOnEnter(int keyCode, std::size_t number)
{
    if (keyCode != platform::keyEnter) return;
    Modul1.*messages.at(number).kept = (FrmQSO.*messages.at(number).field).Text;
    if (number + 1 == messages.size()) return caretBehindCall();
    (FrmQSO.*messages.at(number + 1).field).SetFocus();
}

/// What stands for "#" and this character.
std::string meaningOf(char32_t character, const Placeholders& placeholders)
{
    switch (character) {
        case U'1':
            return placeholders.myCall;
        case U'2':
            return placeholders.yourCall;
        case U'3':
            return placeholders.code;
        case U'4':
            return placeholders.myLocator;
        default:
            return {};
    }
}

}  // namespace

std::string abbreviatedCode(std::string_view code, int contest)
{
    const bool abbreviates = contest >= 1 && contest <= 9;
    if (abbreviates && code.starts_with("00")) return "TT" + base::right(code, 1);
    if (abbreviates && code.starts_with("0")) return "T" + base::right(code, 2);
    return std::string(code);
}

std::string filledMessage(std::string_view message, const Placeholders& placeholders)
{
    const std::u32string characters = base::toCharacters(base::trim(message));
    std::string filled;
    bool behindSign = false;
    for (const char32_t character : characters) {
        if (behindSign)
            filled += meaningOf(character, placeholders);
        else if (character != U'#')
            filled += base::fromCharacter(character);
        behindSign = !behindSign && character == U'#';
    }
    return filled;
}

void DescTxtCw()
{
    const std::string code = abbreviatedCode(FrmQSO.txtRSTE2.Text, Modul1.ConcId);
    FrmQSO.TxtCw = filledMessage(FrmQSO.TxtCw, {Modul1.MyCall, Modul1.Indic, code, Modul1.MyQRA});
    caretBehindCall();
}

void sendCall()
{
    sendMessage(callingMessage);
}

void armOnF1(int& KeyCode)
{
    if (KeyCode != platform::keyF1) return;
    KeyCode = platform::keyNone;
    if (FrmQSO.MSComm1.PortOpen) return;
    if (cwAllowed()) FrmQSO.CwF1Armed = 100;
    if (voiceAllowed()) FrmQSO.SsbF1Armed = 100;
}

void sendOnFunctionKey(int KeyCode, Call call)
{
    if (FrmQSO.MSComm1.PortOpen) return;
    if (cwAllowed()) return sendInCw(KeyCode, call);
    if (voiceAllowed()) sendInVoice(KeyCode);
}

void changeSpeed(int KeyCode)
{
    constexpr float slowest = 10;
    constexpr float fastest = 40;
    constexpr float step = 2;
    if (Modul1.ModeCur != "CW" || Modul1.CwAllowed != 100) return;
    if (KeyCode == platform::keyPageUp) FrmQSO.Wpm = std::min(FrmQSO.Wpm + step, fastest);
    if (KeyCode == platform::keyPageDown) FrmQSO.Wpm = std::max(FrmQSO.Wpm - step, slowest);
    FrmQSO.lblWPM.Caption = base::toText(static_cast<long long>(FrmQSO.Wpm));
}

void pauseField_KeyPress(char32_t& /*KeyAscii*/)
{
    if (FrmQSO.txtIndic.Enabled) FrmQSO.txtIndic.SetFocus();
}

void TxtF1_KeyDown(int& KeyCode)
{
    storeOnEnter(KeyCode, 0);
}

void TxtF2_KeyDown(int& KeyCode)
{
    storeOnEnter(KeyCode, 1);
}

void TxtF3_KeyDown(int& KeyCode)
{
    storeOnEnter(KeyCode, 2);
}

void TxtF4_KeyDown(int& KeyCode)
{
    storeOnEnter(KeyCode, 3);
}

void TxtF5_KeyDown(int& KeyCode)
{
    storeOnEnter(KeyCode, 4);
}

void TxtF6_KeyDown(int& KeyCode)
{
    storeOnEnter(KeyCode, 5);
}

void TxtF7_KeyDown(int& KeyCode)
{
    storeOnEnter(KeyCode, 6);
}

}  // namespace keyer
