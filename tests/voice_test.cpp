// When voice messages may be played: each condition by itself.
#include "keyer/voice.h"

#include <gtest/gtest.h>

#include <string>

#include "runstate/modul1.h"

namespace {

TEST(VoiceMessages, ArePlayedOnlyWhenEverythingAllowsThem)
{
    for (const char* mode : {"SSB", "Fm", "CW", "Mixt", "00", "", "FM", "ssb"})
        for (const int card : {100, 0})
            for (const int paper : {100, 10, 0})
                for (const int allowed : {100, 10, 0}) {
                    Modul1.ModeCur = mode;
                    Modul1.SoundCard = static_cast<std::uint16_t>(card);
                    Modul1.OfflineInput = static_cast<std::int16_t>(paper);
                    Modul1.SsbAllowed = static_cast<std::uint16_t>(allowed);
                    const bool voice = mode == std::string("SSB") || mode == std::string("Fm");
                    EXPECT_EQ(keyer::voiceAllowed(), voice && card == 100 && paper != 100 && allowed == 100)
                        << mode << " " << card << " " << paper << " " << allowed;
                }
    Modul1 = {};
}

}  // namespace
