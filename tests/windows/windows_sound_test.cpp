// The sound driver of the Windows program. sound_with_wine.sh runs it, once with a device and once without.
#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "desktop/sound_files.h"
#include "desktop/sound_player.h"
#include "support/temporary_folder.h"

namespace {

using namespace std::chrono_literals;
using std::chrono::steady_clock;

platform::SoundFile tone(const test::SoundFormat& format, unsigned milliseconds)
{
    const test::TemporaryFolder folder;
    test::writeFile(folder.file("F1.wav"), test::soundFile(format, milliseconds));
    return platform::readSound(folder.file("F1.wav")).value();
}

TEST(WithADevice, EveryFormatIsHeardToItsEnd)
{
    EXPECT_GE(desktop::playingDevices(), 1);
    for (const unsigned samplesPerSecond : {8000U, 11025U, 22050U, 44100U, 48000U})
        for (const unsigned bits : {8U, 16U})
            for (const unsigned channels : {1U, 2U}) {
                const auto sound = tone({samplesPerSecond, bits, channels}, 300);
                const auto begin = steady_clock::now();
                EXPECT_EQ(desktop::playSound(sound, {}), "") << samplesPerSecond << ' ' << bits << ' ' << channels;
                EXPECT_GE(steady_clock::now() - begin, 300ms) << samplesPerSecond << ' ' << bits << ' ' << channels;
            }
}

TEST(WithADevice, AStopEndsTheSound)
{
    const auto sound = tone({}, 60'000);
    std::stop_source program;
    const auto begin = steady_clock::now();
    std::thread other([&program] {
        std::this_thread::sleep_for(100ms);
        program.request_stop();
    });
    EXPECT_EQ(desktop::playSound(sound, program.get_token()), "");
    EXPECT_LT(steady_clock::now() - begin, 60s);
    other.join();
}

TEST(WithoutADevice, NothingIsPlayedAndTheReasonGiven)
{
    EXPECT_EQ(desktop::playingDevices(), 0);
    EXPECT_EQ(desktop::playSound(tone({}, 300), {}), "There is no sound device that could play the message");
}

}  // namespace
