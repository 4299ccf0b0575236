// Sound devices in trouble: a configuration of the sound system stands for each.
#include "desktop/sound_devices.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <cstdlib>
#include <stop_token>
#include <thread>

#include "base/runtime_error.h"
#include "desktop/notices.h"
#include "sound_files.h"
#include "support/temporary_folder.h"

namespace {

using namespace std::chrono_literals;

class KeptNotices final : public platform::Notices {
 public:
    void notice(const std::string& text) override { last_ = text; }
    std::string last() const override { return last_; }

 private:
    std::string last_;
};

class SoundDevicesTest : public testing::Test {
 protected:
    SoundDevicesTest() { test::writeFile(folder.file("F1.wav"), test::soundFile({}, 100)); }

    /// The sound device of the computer.
    void device(const std::string& description)
    {
        ::setenv("ALSOFT_DRIVERS", "alsa", 1);
        ::setenv("ALSOFT_LOGLEVEL", "0", 1);
        // Under a new name each time: the sound system reads it again only then.
        static int count = 0;
        const auto file = folder.file("devices" + std::to_string(++count));
        test::writeFile(file, description);
        ::setenv("ALSA_CONFIG_PATH", file.c_str(), 1);
    }
    /// Takes everything, and waits for somebody who never comes.
    void deviceThatHangs()
    {
        const auto pipe = folder.file("pipe");
        ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
        device("pcm.!default {\n type file\n slave.pcm { type null }\n file \"" + pipe.string() +
               "\"\n format raw\n}\n");
    }
    /// Somebody comes after all.
    void letGo()
    {
        std::thread([pipe = folder.file("pipe")] { const std::string all = test::readFile(pipe); }).detach();
    }

    test::TemporaryFolder folder;
    std::string message = folder.designPath("F1.wav");
    KeptNotices notices;
    std::stop_source programStops;
};

TEST_F(SoundDevicesTest, WithoutADeviceNoneIsCountedAndANoticeSaysSo)
{
    device("");
    desktop::SoundDevices sound(notices);
    EXPECT_EQ(sound.outputDevices(), 0);
    sound.play(message);
    EXPECT_EQ(notices.last(), "There is no sound device that could play the message");
}

TEST_F(SoundDevicesTest, ADeviceThatIsPluggedInLaterPlays)
{
    device("");
    desktop::SoundDevices sound(notices);
    EXPECT_EQ(sound.outputDevices(), 0);
    device("pcm.!default { type null }\n");
    EXPECT_EQ(sound.outputDevices(), 1);
    const auto begin = std::chrono::steady_clock::now();
    sound.play(message);
    EXPECT_GE(std::chrono::steady_clock::now() - begin, 100ms);
    EXPECT_EQ(notices.last(), "");
}

TEST_F(SoundDevicesTest, DevicesCountedAheadAreCountedOnce)
{
    device("pcm.!default { type null }\n");
    desktop::SoundDevices sound(notices);
    sound.countAhead();
    EXPECT_EQ(sound.outputDevices(), 1);
    device("");
    EXPECT_EQ(sound.outputDevices(), 0) << "the next time they are counted anew";
}

TEST_F(SoundDevicesTest, TheEndOfTheProgramEndsAMessage)
{
    device("pcm.!default { type null }\n");
    test::writeFile(folder.file("F1.wav"), test::soundFile({}, 60000));
    desktop::SoundDevices sound(notices, programStops.get_token());
    std::thread end([&] { programStops.request_stop(); });
    EXPECT_THROW(sound.play(message), base::ProgramEnd);
    end.join();
}

TEST_F(SoundDevicesTest, ADeviceThatHangsHoldsNobodyUp)
{
    deviceThatHangs();
    {
        desktop::SoundDevices sound(notices);
        sound.play(message);
        EXPECT_EQ(notices.last(), "The sound device hangs: the message was cut off");
        sound.play(message);
        EXPECT_EQ(notices.last(), "The sound device still hangs from the message before");
        letGo();
    }
}

TEST_F(SoundDevicesTest, TheEndOfTheProgramWaitsForNoDevice)
{
    deviceThatHangs();
    {
        desktop::SoundDevices sound(notices, programStops.get_token());
        std::thread end([&] { programStops.request_stop(); });
        EXPECT_THROW(sound.play(message), base::ProgramEnd);
        end.join();
        letGo();
    }
}

}  // namespace
