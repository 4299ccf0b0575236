#include "keyer/voice.h"

#include "keyer/morse.h"
#include "keyer/port.h"
#include "platform/machine.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"

namespace keyer {

namespace {

void play()
{
    // Nothing is served until the sound is over: what calling has coloured is to be seen meanwhile.
    platform::showState();
    platform::machine().sound.play(FrmQSO.WavPath);
}

void playWithoutPort(const base::RuntimeError& error)
{
    if (error.number() != base::noSuchPort || !voiceAllowed()) return giveUpWithoutPort(error);
    base::reportSwallowed(error);
    play();
}

}  // namespace

void GoSSB()
{
    base::ResumeNext go(playWithoutPort);
    const LinesDown whateverEndsTheMessage;
    FrmQSO.MorseCnt = static_cast<std::int16_t>(MorseTab.size());
    platform::machine().keyState.forget();
    go([] {
        openPort();
        play();
        FrmQSO.MSComm1.RTSEnable = false;
        // A function key that was pressed meanwhile finds the port in use, and is ignored. What was typed is not lost.
        platform::serveEvents();
    });
}

bool voiceAllowed()
{
    const bool voice = Modul1.ModeCur == "SSB" || Modul1.ModeCur == "Fm";
    return voice && Modul1.SoundCard == 100 && Modul1.OfflineInput != 100 && Modul1.SsbAllowed == 100;
}

}  // namespace keyer
