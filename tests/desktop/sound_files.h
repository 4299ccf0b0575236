// Sound files for tests.
#pragma once

#include <cmath>
#include <cstdint>
#include <numbers>
#include <string>

namespace test {

struct SoundFormat {
    unsigned samplesPerSecond = 8000;
    unsigned bitsPerSample = 16;
    unsigned channels = 1;
};

inline std::string littleEndian(std::uint64_t value, unsigned bytes)
{
    std::string text;
    for (unsigned i = 0; i < bytes; ++i)
        text += static_cast<char>((value >> (8 * i)) & 0xFFU);
    return text;
}

/// A tone at half of the greatest loudness, as the bytes of a file.
inline std::string soundFile(const SoundFormat& format, unsigned milliseconds)
{
    constexpr double tone = 700;
    std::string samples;
    for (unsigned i = 0; i < format.samplesPerSecond * milliseconds / 1000; ++i) {
        const double wave = 0.5 * std::sin(2 * std::numbers::pi * tone * i / format.samplesPerSecond);
        const long sample = format.bitsPerSample == 8 ? std::lround(128 + 127 * wave) : std::lround(32767 * wave);
        for (unsigned channel = 0; channel < format.channels; ++channel)
            samples += littleEndian(static_cast<std::uint64_t>(sample), format.bitsPerSample / 8);
    }
    const unsigned frame = format.channels * format.bitsPerSample / 8;
    const std::string head = "WAVEfmt " + littleEndian(16, 4) + littleEndian(1, 2) + littleEndian(format.channels, 2) +
                             littleEndian(format.samplesPerSecond, 4) +
                             littleEndian(format.samplesPerSecond * frame, 4) + littleEndian(frame, 2) +
                             littleEndian(format.bitsPerSample, 2) + "data" + littleEndian(samples.size(), 4);
    return "RIFF" + littleEndian(head.size() + samples.size(), 4) + head + samples;
}

}  // namespace test
