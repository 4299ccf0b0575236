#include "keyer/cw.h"

#include <string>
#include <string_view>

#include "base/number.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "keyer/morse.h"
#include "keyer/port.h"
#include "keyer/stop_keys.h"
#include "platform/machine.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"

namespace keyer {

namespace {

using namespace std::chrono_literals;

/// Before a character events are served so long before the line is due, which hides the time that serving takes.
constexpr auto servingLead = 5ms;

/// A line that changes later than this was kept waiting by a handler, not by the clock.
constexpr auto latenessOfClock = 250us;

platform::Clock& clock()
{
    return platform::machine().clock;
}

/// What was just sent lasts so long: the line is due to change that much later. Counted from moment to moment, so that
/// what a sleep is late does not add up.
void lasts(double milliseconds)
{
    FrmQSO.keyingDeadline += wholeMilliseconds(milliseconds);
}

void waitUntilDue()
{
    clock().sleepUntil(FrmQSO.keyingDeadline);
}

/// A character begins: behind a handler that took long, its elements keep their length and the space before it grows.
void startCharacter()
{
    waitUntilDue();
    const platform::MonotonicTime now = clock().monotonic();
    if (now > FrmQSO.keyingDeadline + latenessOfClock) FrmQSO.keyingDeadline = now;
}

bool stopAsked()
{
    const bool pressed = stopKeyPressed();
    return pressed && Modul1.ModeCur == "CW" && Modul1.CwAllowed == 100;
}

/// Puts the walk behind its hundredth character: a longer message goes on there.
void stopMessage()
{
    constexpr std::int16_t lastOfWalk = 100;
    FrmQSO.CharIdx = lastOfWalk;
}

void serveBeforeCharacter()
{
    clock().sleepUntil(FrmQSO.keyingDeadline - servingLead);
    platform::serveEvents();
}

void showProgress(const std::string& progress)
{
    FrmQSO.TxtCwCurent.Text = progress;
    FrmQSO.TxtCwCurent.caretToEnd();
    platform::showState();
}

/// A stop key that is held puts the walk back to the same character again and again; time has to go by.
void letTimePass()
{
    FrmQSO.keyingDeadline += 1ms;
    waitUntilDue();
}

}  // namespace

void GoCW()
{
    base::ResumeNext go(giveUpWithoutPort);
    const LinesDown whateverEndsTheMessage;
    FrmQSO.MorseCnt = static_cast<std::int16_t>(MorseTab.size());
    platform::machine().keyState.forget();
    go([] {
        openPort();
        FrmQSO.keyingDeadline = clock().monotonic();
        FrmQSO.TickBase = 20;
        FrmQSO.TxtCwCurent.Visible = true;
        File();
    });
    FrmQSO.TxtCwCurent.Visible = false;
}

void File()
{
    const TimeUnits units = timeUnits(FrmQSO.Wpm, FrmQSO.TickBase);
    FrmQSO.CharUnit = units.CharUnit;
    FrmQSO.ElemUnit = units.ElemUnit;
    FileSend();
}

void FileSend()
{
    FrmQSO.CharUnit = static_cast<float>(FrmQSO.CharUnit * spacing);
    Tmr();
    FrmQSO.SecStart = FrmQSO.SecNow;
    const std::u32string text = base::toCharacters(base::trim(FrmQSO.TxtCw));
    const std::int16_t length = base::toInt16(static_cast<long long>(text.size()));
    std::string progress;
    std::int16_t previous = 0;
    for (FrmQSO.CharIdx = 1; FrmQSO.CharIdx <= length; FrmQSO.CharIdx = base::toInt16(FrmQSO.CharIdx + 1LL)) {
        if (FrmQSO.CharIdx == previous) letTimePass();
        previous = FrmQSO.CharIdx;
        FrmQSO.SymCur = base::fromCharacter(text[static_cast<std::size_t>(FrmQSO.CharIdx - 1)]);
        serveBeforeCharacter();
        // A handler may have ended the message, and even sent another one.
        if (!FrmQSO.MSComm1.PortOpen) return;
        progress += FrmQSO.SymCur;
        showProgress(progress);
        GenMorse();
    }
    FrmQSO.SymCur = " ";
    GenMorse();
    waitUntilDue();
    Tmr();
    FrmQSO.SecNow -= FrmQSO.SecStart;
}

void GenMorse()
{
    for (FrmQSO.TabIdx = 1; FrmQSO.TabIdx <= static_cast<float>(FrmQSO.MorseCnt); ++FrmQSO.TabIdx) {
        const std::string_view row = MorseTab.at(static_cast<std::size_t>(FrmQSO.TabIdx) - 1);
        if (row.substr(0, 1) == FrmQSO.SymCur) MakeSound();
    }
    if (FrmQSO.SymCur == " ") lasts(blankTime(FrmQSO.ElemUnit));
}

void MakeSound()
{
    const std::string_view row = MorseTab.at(static_cast<std::size_t>(FrmQSO.TabIdx) - 1);
    startCharacter();
    for (const char element : row.substr(1)) {
        if (stopAsked()) return stopMessage();
        FrmQSO.ElemLen = element == '-' ? 3 : 1;
        FrmQSO.KeyOnMs = static_cast<float>(elementTime(FrmQSO.ElemUnit, FrmQSO.ElemLen));
        FrmQSO.KeyOffMs = static_cast<float>(elementTime(FrmQSO.ElemUnit, 1));
        Ti1();
    }
    lasts(letterSpaceTime(FrmQSO.CharUnit, FrmQSO.ElemUnit));
}

void Ti1()
{
    FrmQSO.MSComm1.DTREnable = true;
    lasts(FrmQSO.KeyOnMs);
    waitUntilDue();
    FrmQSO.MSComm1.DTREnable = false;
    lasts(FrmQSO.KeyOffMs);
    waitUntilDue();
}

void Tmr()
{
    const auto time = std::chrono::hh_mm_ss(std::chrono::floor<std::chrono::seconds>(clock().timeOfDay()));
    FrmQSO.SecNow =
        static_cast<float>(time.hours().count() * 3600 + time.minutes().count() * 60 + time.seconds().count());
}

void endSending()
{
    FrmQSO.MSComm1.PortOpen = false;
    ++Modul1.callingRuns;
}

}  // namespace keyer
