// What comes out of the sound device: the sound library writes it into a file instead of playing it.
#include "desktop/sound_player.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <stop_token>

#include "desktop/sound_devices.h"
#include "platform/files.h"
#include "sound_files.h"
#include "support/temporary_folder.h"

namespace {

using test::soundFile;
using test::SoundFormat;
using namespace std::chrono_literals;

class KeptNotices final : public platform::Notices {
 public:
    void notice(const std::string& text) override { last_ = text; }
    std::string last() const override { return last_; }

 private:
    std::string last_;
};

/// The library reads its settings once, at its first call.
const test::TemporaryFolder& studio()
{
    static const test::TemporaryFolder folder;
    static const bool ready = [] {
        test::writeFile(folder.file("settings"),
                        "sample-type = int16\nchannels = stereo\nfrequency = 48000\n"
                        "[wave]\nfile = " +
                            folder.file("heard.wav").string() + "\n");
        ::setenv("ALSOFT_CONF", folder.file("settings").c_str(), 1);
        ::setenv("ALSOFT_DRIVERS", "wave", 1);
        return true;
    }();
    EXPECT_TRUE(ready);
    return folder;
}

/// What was heard, on one of its two channels.
struct Heard {
    std::chrono::milliseconds length{};
    int loudest = 0;
};

Heard heard(unsigned channel)
{
    const auto recording = platform::readSound(studio().file("heard.wav"));
    if (!recording) return {};
    std::vector<int> samples;
    for (std::size_t at = 2 * channel; at + 1 < recording->samples.size(); at += 4) {
        const auto low = static_cast<unsigned char>(recording->samples[at]);
        samples.push_back(recording->samples[at + 1] * 256 + low);
    }
    const auto sounds = [](int sample) { return std::abs(sample) > 300; };
    const auto begin = std::find_if(samples.begin(), samples.end(), sounds);
    const auto end = std::find_if(samples.rbegin(), samples.rend(), sounds).base();
    if (begin >= end) return {};
    return {std::chrono::milliseconds((end - begin) * 1000 / 48000), *std::max_element(begin, end)};
}

class SoundPlayerTest : public testing::Test {
 protected:
    SoundPlayerTest() { std::filesystem::remove(studio().file("heard.wav")); }

    std::string write(const std::string& name, const std::string& bytes)
    {
        test::writeFile(folder.file(name), bytes);
        return folder.designPath(name);
    }

    test::TemporaryFolder folder;
    KeptNotices notices;
    desktop::SoundDevices sound{notices};
};

class SoundFormatTest : public SoundPlayerTest, public testing::WithParamInterface<SoundFormat> {};

TEST_P(SoundFormatTest, IsHeardToItsEndAsLoudAsItIs)
{
    const std::string file = write("F1.wav", soundFile(GetParam(), 150));
    const auto begin = std::chrono::steady_clock::now();
    sound.play(file);
    EXPECT_GE(std::chrono::steady_clock::now() - begin, 150ms);
    EXPECT_EQ(notices.last(), "");
    for (const unsigned channel : {0U, 1U}) {
        EXPECT_NEAR(static_cast<double>(heard(channel).length.count()), 150, 4);
        EXPECT_NEAR(heard(channel).loudest, 16384, 1200);
    }
}

std::vector<SoundFormat> allFormats()
{
    std::vector<SoundFormat> formats;
    for (const unsigned rate : {8000U, 11025U, 16000U, 22050U, 32000U, 44100U, 48000U})
        for (const unsigned bits : {8U, 16U})
            for (const unsigned channels : {1U, 2U})
                formats.push_back({rate, bits, channels});
    return formats;
}

std::string nameOf(const testing::TestParamInfo<SoundFormat>& info)
{
    const SoundFormat& format = info.param;
    return std::to_string(format.samplesPerSecond) + "Hz" + std::to_string(format.bitsPerSample) + "Bit" +
           (format.channels == 1 ? "Mono" : "Stereo");
}

INSTANTIATE_TEST_SUITE_P(AllFormats, SoundFormatTest, testing::ValuesIn(allFormats()), nameOf);

TEST_F(SoundPlayerTest, ADeviceThatPlaysIsCounted)
{
    EXPECT_GE(sound.outputDevices(), 1);
}

TEST_F(SoundPlayerTest, FilesWithoutAWholeSoundPlayNothing)
{
    const std::string whole = soundFile({}, 3000);
    const std::string files[] = {
        folder.designPath("F1.wav"),
        write("F2.wav", ""),
        write("F3.wav", "CQ CQ CQ de YO2XYZ"),
        write("F4.wav", whole.substr(0, 20)),
        write("F5.wav", whole.substr(0, whole.size() / 2)),
        write("F6.wav", soundFile({}, 0)),
        folder.path().string(),
    };
    for (const std::string& file : files) {
        sound.play(file);
        EXPECT_FALSE(std::filesystem::exists(studio().file("heard.wav"))) << file;
    }
    EXPECT_EQ(notices.last(), "");
}

TEST_F(SoundPlayerTest, AFileIsFoundWhateverItsCase)
{
    write("f1.WAV", soundFile({}, 50));
    sound.play(folder.designPath("F1.wav"));
    EXPECT_NEAR(static_cast<double>(heard(0).length.count()), 50, 4);
}

TEST_F(SoundPlayerTest, AStopEndsALongSound)
{
    const auto minute = platform::readSound(platform::resolve(write("F1.wav", soundFile({}, 60000))));
    ASSERT_TRUE(minute);
    std::stop_source stop;
    stop.request_stop();
    EXPECT_EQ(desktop::playSound(*minute, stop.get_token()), "");
    EXPECT_LT(heard(0).length, 5s);
}

}  // namespace
