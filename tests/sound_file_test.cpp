// How long a sound file plays: every common format, and all that is not one.
#include "platform/sound_file.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <optional>
#include <string>

#include "support/temporary_folder.h"

namespace {

using std::chrono::milliseconds;
using std::chrono::nanoseconds;

constexpr unsigned pcm = 1;
constexpr unsigned floatingPoint = 3;
constexpr unsigned aLaw = 6;
constexpr unsigned extensible = 0xFFFE;

std::string littleEndian(std::uint64_t value, int bytes)
{
    std::string text;
    for (; bytes > 0; --bytes, value /= 256)
        text += static_cast<char>(value % 256);
    return text;
}

struct Sound {
    unsigned coding = pcm;
    unsigned channels = 1;
    unsigned samplesPerSecond = 8000;
    unsigned bitsPerSample = 8;

    unsigned bytesPerSecond() const { return samplesPerSecond * channels * bitsPerSample / 8; }
};

/// A chunk, on even bytes.
std::string chunk(const std::string& name, const std::string& content)
{
    const std::string padding(content.size() % 2, '\0');
    return name + littleEndian(content.size(), 4) + content + padding;
}

std::string formatOf(const Sound& sound)
{
    return littleEndian(sound.coding, 2) + littleEndian(sound.channels, 2) + littleEndian(sound.samplesPerSecond, 4) +
           littleEndian(sound.bytesPerSecond(), 4) + littleEndian(sound.channels * sound.bitsPerSample / 8, 2) +
           littleEndian(sound.bitsPerSample, 2);
}

/// The longer format of newer programs, with the true coding at its end.
std::string longFormatOf(Sound sound, unsigned trueCoding)
{
    sound.coding = extensible;
    const std::string family("\x00\x00\x00\x00\x10\x00\x80\x00\x00\xAA\x00\x38\x9B\x71", 14);
    return formatOf(sound) + littleEndian(22, 2) + littleEndian(sound.bitsPerSample, 2) + littleEndian(4, 4) +
           littleEndian(trueCoding, 2) + family;
}

std::string riff(const std::string& chunks)
{
    return "RIFF" + littleEndian(4 + chunks.size(), 4) + "WAVE" + chunks;
}

std::string soundOf(const Sound& sound, std::size_t bytes)
{
    return riff(chunk("fmt ", formatOf(sound)) + chunk("data", std::string(bytes, '\x40')));
}

class SoundFile : public testing::Test {
 protected:
    std::optional<nanoseconds> lengthOf(const std::string& bytes)
    {
        test::writeFile(file_, bytes);
        return platform::soundLength(file_);
    }

    test::TemporaryFolder folder_;
    std::filesystem::path file_ = folder_.file("F1.wav");
};

TEST_F(SoundFile, OfEachCommonFormatHasItsLength)
{
    for (const unsigned bits : {8U, 16U})
        for (const unsigned samples : {8000U, 11025U, 16000U, 22050U, 32000U, 44100U, 48000U})
            for (const unsigned channels : {1U, 2U}) {
                const Sound sound{pcm, channels, samples, bits};
                SCOPED_TRACE(testing::Message() << bits << " bits, " << samples << " Hz, " << channels << " channels");
                EXPECT_EQ(lengthOf(soundOf(sound, sound.bytesPerSecond())), milliseconds(1000));
                EXPECT_EQ(lengthOf(soundOf(sound, std::size_t{3} * sound.bytesPerSecond())), milliseconds(3000));
                EXPECT_EQ(lengthOf(riff(chunk("fmt ", longFormatOf(sound, pcm)) +
                                        chunk("data", std::string(sound.bytesPerSecond(), '\0')))),
                          milliseconds(1000));
            }
}

TEST_F(SoundFile, IsMeasuredToTheSample)
{
    EXPECT_EQ(lengthOf(soundOf({}, 1)), nanoseconds(125'000));
    EXPECT_EQ(lengthOf(soundOf({}, 8001)), nanoseconds(1'000'125'000));
    EXPECT_EQ(lengthOf(soundOf({pcm, 1, 44100, 16}, 2)), nanoseconds(22'675));
}

TEST_F(SoundFile, MayHoldOtherChunks)
{
    const std::string format = chunk("fmt ", formatOf({}));
    const std::string data = chunk("data", std::string(4000, '\x80'));
    const std::string odd = chunk("LIST", "INFOa");
    const std::string even = chunk("fact", "1234");
    EXPECT_EQ(lengthOf(riff(odd + format + even + odd + data)), milliseconds(500));
    EXPECT_EQ(lengthOf(riff(format + data + odd)), milliseconds(500));
    EXPECT_EQ(lengthOf(riff(chunk("JUNK", "") + format + chunk("junk", std::string(70000, 'x')) + data)),
              milliseconds(500));
    EXPECT_EQ(lengthOf(riff(chunk("fmt ", formatOf({}) + std::string(2, '\0')) + data)), milliseconds(500));
}

TEST_F(SoundFile, MayEndInAnOddByte)
{
    const std::string unpadded = "data" + littleEndian(8001, 4) + std::string(8001, '\x80');
    EXPECT_EQ(lengthOf(riff(chunk("fmt ", formatOf({})) + unpadded)), nanoseconds(1'000'125'000));
}

TEST_F(SoundFile, ThatIsNoSoundHasNoLength)
{
    EXPECT_EQ(platform::soundLength(folder_.file("F2.wav")), std::nullopt);
    EXPECT_EQ(platform::soundLength(folder_.path()), std::nullopt);
    EXPECT_EQ(lengthOf(""), std::nullopt);
    EXPECT_EQ(lengthOf("R"), std::nullopt);
    EXPECT_EQ(lengthOf("CQ CQ CQ de YO2ABC, a text that is long enough for the head of a sound file"), std::nullopt);
    EXPECT_EQ(lengthOf(std::string(100, '\0')), std::nullopt);
    EXPECT_EQ(lengthOf("RIFF" + littleEndian(4, 4) + "WAVE"), std::nullopt);
    EXPECT_EQ(lengthOf("RIFX" + soundOf({}, 8000).substr(4)), std::nullopt);
    std::string picture = soundOf({}, 8000);
    EXPECT_EQ(lengthOf(picture.replace(8, 4, "AVI ")), std::nullopt);
}

TEST_F(SoundFile, ThatIsCutShortHasNoLength)
{
    const std::string whole = soundOf({}, 8000);
    for (const std::size_t kept : {4U, 8U, 11U, 12U, 15U, 20U, 30U, 36U, 40U, 43U, 44U, 45U, 4000U, 8043U})
        EXPECT_EQ(lengthOf(whole.substr(0, kept)), std::nullopt) << kept;
    EXPECT_EQ(lengthOf(whole), milliseconds(1000));
    EXPECT_EQ(lengthOf(riff(chunk("fmt ", formatOf({})) + "data" + littleEndian(0xFFFFFFFF, 4) + "x")), std::nullopt);
    EXPECT_EQ(lengthOf(riff("LIST" + littleEndian(0xFFFFFFFF, 4) + chunk("fmt ", formatOf({})))), std::nullopt);
}

TEST_F(SoundFile, WithoutDataHasNoLength)
{
    EXPECT_EQ(lengthOf(soundOf({}, 0)), std::nullopt);
    EXPECT_EQ(lengthOf(riff(chunk("fmt ", formatOf({})))), std::nullopt);
    EXPECT_EQ(lengthOf(riff(chunk("data", std::string(8000, '\x80')))), std::nullopt);
    EXPECT_EQ(lengthOf(riff(chunk("data", std::string(8000, '\x80')) + chunk("fmt ", formatOf({})))), std::nullopt);
    EXPECT_EQ(lengthOf(riff(chunk("fmt ", formatOf({}).substr(0, 14)) + chunk("data", std::string(8000, '\x80')))),
              std::nullopt);
}

TEST_F(SoundFile, InAnotherCodingHasNoLength)
{
    constexpr Sound refused[] = {
        {pcm, 1, 44100, 24},
        {pcm, 2, 48000, 24},
        {pcm, 1, 44100, 32},
        {pcm, 1, 44100, 12},
        {floatingPoint, 1, 44100, 32},
        {floatingPoint, 1, 44100, 16},
        {aLaw, 1, 8000, 8},
        {7, 1, 8000, 8},
        {2, 1, 8000, 4},
        {pcm, 0, 44100, 16},
        {pcm, 3, 44100, 16},
        {pcm, 6, 48000, 16},
        {pcm, 1, 0, 16},
        {pcm, 1, 7999, 16},
        {pcm, 1, 48001, 16},
        {pcm, 1, 96000, 16},
        {pcm, 1, 44100, 0},
    };
    for (const Sound& sound : refused)
        EXPECT_EQ(lengthOf(soundOf(sound, 9600)), std::nullopt)
            << sound.coding << " " << sound.channels << " " << sound.samplesPerSecond << " " << sound.bitsPerSample;
}

TEST_F(SoundFile, InALongFormatIsJudgedByItsTrueCoding)
{
    const std::string data = chunk("data", std::string(8000, '\x80'));
    EXPECT_EQ(lengthOf(riff(chunk("fmt ", longFormatOf({}, pcm)) + data)), milliseconds(1000));
    for (const unsigned coding : {floatingPoint, aLaw, 7U, extensible})
        EXPECT_EQ(lengthOf(riff(chunk("fmt ", longFormatOf({}, coding)) + data)), std::nullopt) << coding;
    EXPECT_EQ(lengthOf(riff(chunk("fmt ", longFormatOf({pcm, 1, 44100, 24}, pcm)) + data)), std::nullopt);
    EXPECT_EQ(lengthOf(riff(chunk("fmt ", longFormatOf({}, pcm).substr(0, 18)) + data)), std::nullopt);
}

}  // namespace
