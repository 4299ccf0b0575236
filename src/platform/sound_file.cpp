#include "platform/sound_file.h"

#include <array>
#include <cstdint>
#include <fstream>
#include <istream>
#include <string_view>
#include <system_error>

namespace platform {

namespace {

constexpr std::uint16_t plainSamples = 1;
/// The true coding stands further behind.
constexpr std::uint16_t extensibleSamples = 0xFFFE;
constexpr std::uint32_t plainFormatSize = 16;
constexpr std::uint32_t extensibleFormatSize = 40;

struct Format {
    std::uint16_t coding = 0;
    std::uint16_t channels = 0;
    std::uint32_t samplesPerSecond = 0;
    std::uint16_t bitsPerSample = 0;

    bool common() const
    {
        const bool plain = coding == plainSamples;
        const bool channelsKnown = channels == 1 || channels == 2;
        const bool bitsKnown = bitsPerSample == 8 || bitsPerSample == 16;
        return plain && channelsKnown && bitsKnown && samplesPerSecond >= 8000 && samplesPerSecond <= 48000;
    }

    std::uint64_t bytesPerSecond() const { return std::uint64_t{samplesPerSecond} * channels * (bitsPerSample / 8U); }
};

struct ChunkHead {
    std::array<char, 4> name{};
    std::uint32_t size = 0;

    bool is(std::string_view other) const { return std::string_view(name.data(), name.size()) == other; }
};

/// A little-endian number, the bytes that files of this kind have. 0 behind the end of the file.
std::uint32_t number(std::istream& stream, int bytes)
{
    std::uint32_t value = 0;
    for (int i = 0; i < bytes; ++i)
        value |= (static_cast<std::uint32_t>(stream.get()) & 0xFFU) << (8U * static_cast<unsigned>(i));
    return stream ? value : 0;
}

ChunkHead chunkHead(std::istream& stream)
{
    ChunkHead head;
    stream.read(head.name.data(), head.name.size());
    head.size = number(stream, 4);
    return head;
}

Format readFormat(std::istream& stream, std::uint32_t size)
{
    Format format;
    if (size < plainFormatSize) return format;
    format.coding = static_cast<std::uint16_t>(number(stream, 2));
    format.channels = static_cast<std::uint16_t>(number(stream, 2));
    format.samplesPerSecond = number(stream, 4);
    number(stream, 4);  // bytes a second
    number(stream, 2);  // bytes a sample of all channels
    format.bitsPerSample = static_cast<std::uint16_t>(number(stream, 2));
    if (format.coding != extensibleSamples || size < extensibleFormatSize) return format;
    number(stream, 2);  // bytes that follow
    number(stream, 2);  // bits of a sample that are used
    number(stream, 4);  // places of the loudspeakers
    format.coding = static_cast<std::uint16_t>(number(stream, 2));
    return format;
}

/// The samples of a file, and where in it they stand.
struct Samples {
    Format format;
    std::uint32_t size = 0;  ///< bytes
};

/// Leaves the stream at the first sample. Nothing when the file is no whole sound.
std::optional<Samples> findSamples(std::istream& stream, std::uintmax_t fileSize)
{
    if (!chunkHead(stream).is("RIFF")) return std::nullopt;
    std::array<char, 4> kind{};
    stream.read(kind.data(), kind.size());
    if (std::string_view(kind.data(), kind.size()) != "WAVE") return std::nullopt;

    Format format;
    while (stream) {
        const ChunkHead head = chunkHead(stream);
        const auto begin = static_cast<std::uintmax_t>(stream.tellg());
        if (!stream || begin + head.size > fileSize) return std::nullopt;
        if (head.is("fmt ")) format = readFormat(stream, head.size);
        if (head.is("data")) {
            if (!format.common() || head.size == 0) return std::nullopt;
            return Samples{format, head.size};
        }
        // Chunks stand on even bytes.
        stream.seekg(static_cast<std::streamoff>(begin + head.size + head.size % 2));
    }
    return std::nullopt;
}

std::optional<Samples> openSound(const std::filesystem::path& file, std::ifstream& stream)
{
    std::error_code error;
    const std::uintmax_t fileSize = std::filesystem::file_size(file, error);
    if (error) return std::nullopt;
    stream.open(file, std::ios::binary);
    return findSamples(stream, fileSize);
}

std::chrono::nanoseconds lengthOf(const Samples& samples)
{
    constexpr std::uint64_t nanosecondsPerSecond = 1'000'000'000;
    return std::chrono::nanoseconds(samples.size * nanosecondsPerSecond / samples.format.bytesPerSecond());
}

}  // namespace

std::optional<std::chrono::nanoseconds> soundLength(const std::filesystem::path& file)
{
    std::ifstream stream;
    const auto samples = openSound(file, stream);
    if (!samples) return std::nullopt;
    return lengthOf(*samples);
}

std::optional<SoundFile> readSound(const std::filesystem::path& file)
{
    std::ifstream stream;
    const auto samples = openSound(file, stream);
    if (!samples) return std::nullopt;
    SoundFile sound;
    sound.channels = samples->format.channels;
    sound.bitsPerSample = samples->format.bitsPerSample;
    sound.samplesPerSecond = static_cast<int>(samples->format.samplesPerSecond);
    sound.length = lengthOf(*samples);
    sound.samples.resize(samples->size);
    stream.read(sound.samples.data(), static_cast<std::streamsize>(sound.samples.size()));
    if (!stream) return std::nullopt;
    return sound;
}

}  // namespace platform
