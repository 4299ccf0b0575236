// Sound files: how long they play, and what is in them.
#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <vector>

namespace platform {

/// How long a sound file plays. Nothing when it is missing, is no PCM sound in a RIFF WAVE file (8 or 16 bits a sample,
/// one or two channels, 8 to 48 kHz; Microsoft and IBM, "Multimedia Programming Interface and Data
/// Specifications 1.0"), is empty, or is shorter than it says.
std::optional<std::chrono::nanoseconds> soundLength(const std::filesystem::path& file);

/// A sound as its file holds it.
struct SoundFile {
    int channels = 0;          ///< 1 or 2; their samples stand side by side
    int bitsPerSample = 0;     ///< 8 (without a sign) or 16 (with one, the low byte first)
    int samplesPerSecond = 0;  ///< of each channel
    std::chrono::nanoseconds length{};
    std::vector<char> samples;
};

/// Reads a whole sound file. Nothing where soundLength() gives nothing.
std::optional<SoundFile> readSound(const std::filesystem::path& file);

}  // namespace platform
