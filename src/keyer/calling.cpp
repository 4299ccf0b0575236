#include "keyer/calling.h"

#include <chrono>
#include <utility>

#include "base/number.h"
#include "keyer/messages.h"
#include "keyer/stop_keys.h"
#include "keyer/voice.h"
#include "platform/machine.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"

namespace keyer {

namespace {

using namespace std::chrono_literals;

using Flag = std::int16_t screen::FrmQSOForm::*;

/// What calling in CW and in voice have of their own.
struct Calling {
    screen::TextBox screen::FrmQSOForm::*pause;
    Flag repBreak;
    Flag repStop;
    screen::Colour whileSending;
    screen::Colour atTheEnd;
    void (*send)();
};

constexpr screen::Colour paleBlue{192, 255, 255};

constexpr Calling inCw = {&screen::FrmQSOForm::txtPauseCW,
                          &screen::FrmQSOForm::CwRepBreak,
                          &screen::FrmQSOForm::CwRepStop,
                          screen::yellow,
                          screen::yellow,
                          sendCall};
constexpr Calling inVoice = {&screen::FrmQSOForm::TxtPauseSSB,
                             &screen::FrmQSOForm::SsbRepBreak,
                             &screen::FrmQSOForm::SsbRepStop,
                             screen::green,
                             paleBlue,
                             GoSSB};

double secondsOfDay()
{
    return std::chrono::duration<double>(platform::machine().clock.timeOfDay()).count();
}

bool broken(const Calling& calling, std::int32_t run)
{
    if (Modul1.callingRuns != run) return true;
    if (stopKeyPressed()) return true;
    return std::exchange(FrmQSO.*calling.repBreak, std::int16_t{0}) == 100;
}

/// False when the wait was broken.
bool waitOut(const Calling& calling, double pause, std::int32_t run)
{
    constexpr double secondsOfOneDay = 86400;
    const double start = secondsOfDay();
    bool overMidnight = false;
    for (;;) {
        platform::serveEvents();
        if (broken(calling, run)) return false;
        const double now = secondsOfDay();
        if (now < start) overMidnight = true;
        if (now + (overMidnight ? secondsOfOneDay : 0) - start > pause) return true;
        platform::Clock& clock = platform::machine().clock;
        clock.sleepUntil(clock.monotonic() + 1ms);
    }
}

void callAgain(const Calling& calling)
{
    screen::TextBox& box = FrmQSO.*calling.pause;
    const std::int32_t run = ++Modul1.callingRuns;
    const double pause = base::numericValue(box.Text);
    do {
        box.BackColor = screen::red;
        if (!waitOut(calling, pause, run)) break;
        box.BackColor = calling.whileSending;
        calling.send();
    } while (FrmQSO.*calling.repStop != 100 && Modul1.callingRuns == run);
    box.BackColor = calling.atTheEnd;
}

}  // namespace

void Pauza()
{
    callAgain(inCw);
}

void PauzaSSB()
{
    callAgain(inVoice);
}

}  // namespace keyer
