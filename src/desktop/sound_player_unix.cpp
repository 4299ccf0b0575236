#include "desktop/sound_player.h"

#include <al.h>
#include <alc.h>
#include <alext.h>

#include <array>
#include <chrono>
#include <cstring>
#include <memory>
#include <string_view>
#include <thread>
#include <vector>

namespace desktop {

namespace {

using namespace std::chrono_literals;

/// The library plays into nothing, under this name, where it finds no device.
constexpr std::string_view nothing = "No Output";

struct CloseDevice {
    void operator()(ALCdevice* device) const { alcCloseDevice(device); }
};
using Device = std::unique_ptr<ALCdevice, CloseDevice>;

struct DestroyContext {
    void operator()(ALCcontext* context) const
    {
        alcMakeContextCurrent(nullptr);
        alcDestroyContext(context);
    }
};
using Context = std::unique_ptr<ALCcontext, DestroyContext>;

/// Empty when there is none.
Device openDevice()
{
    Device device(alcOpenDevice(nullptr));
    if (device && alcGetString(device.get(), ALC_ALL_DEVICES_SPECIFIER) == nothing) return nullptr;
    return device;
}

/// Names in the library's list, which ends with an empty one.
int listedDevices()
{
    int count = 0;
    const char* name = alcGetString(nullptr, ALC_ALL_DEVICES_SPECIFIER);
    for (; name != nullptr && *name != '\0'; name += std::strlen(name) + 1)
        if (name != nothing) ++count;
    return count;
}

/// The samples on two channels: what has only one would come out at half the power.
std::vector<char> onBothChannels(const platform::SoundFile& sound)
{
    if (sound.channels == 2) return sound.samples;
    const auto width = static_cast<std::size_t>(sound.bitsPerSample) / 8;
    std::vector<char> both;
    both.reserve(2 * sound.samples.size());
    for (std::size_t at = 0; at + width <= sound.samples.size(); at += width)
        for (int channel = 0; channel < 2; ++channel)
            both.insert(both.end(), sound.samples.begin() + static_cast<std::ptrdiff_t>(at),
                        sound.samples.begin() + static_cast<std::ptrdiff_t>(at + width));
    return both;
}

/// One sound that plays in the current context.
class Source {
 public:
    explicit Source(const platform::SoundFile& sound)
    {
        std::vector<char> samples = onBothChannels(sound);
        // Half a sample at the end is none.
        const auto frame = static_cast<std::size_t>(sound.bitsPerSample) / 4;
        samples.resize(samples.size() / frame * frame);
        alGenBuffers(1, &buffer_);
        alBufferData(buffer_, sound.bitsPerSample == 8 ? AL_FORMAT_STEREO8 : AL_FORMAT_STEREO16, samples.data(),
                     static_cast<ALsizei>(samples.size()), sound.samplesPerSecond);
        alGenSources(1, &source_);
        // As it is, not as something heard in a room.
        alSourcei(source_, AL_DIRECT_CHANNELS_SOFT, AL_TRUE);
        alSourcei(source_, AL_BUFFER, static_cast<ALint>(buffer_));
        alSourcePlay(source_);
    }
    ~Source()
    {
        alSourceStop(source_);
        alDeleteSources(1, &source_);
        alDeleteBuffers(1, &buffer_);
    }
    Source(const Source&) = delete;
    Source& operator=(const Source&) = delete;

    bool plays() const
    {
        ALint state = AL_STOPPED;
        alGetSourcei(source_, AL_SOURCE_STATE, &state);
        return state == AL_PLAYING;
    }

 private:
    ALuint buffer_ = 0;
    ALuint source_ = 0;
};

bool isConnected(ALCdevice* device)
{
    ALCint connected = ALC_TRUE;
    alcGetIntegerv(device, ALC_CONNECTED, 1, &connected);
    return connected == ALC_TRUE;
}

/// How long the device takes from a sample to what is heard of it.
std::chrono::nanoseconds latencyOf(ALCdevice* device)
{
    const auto query = reinterpret_cast<LPALCGETINTEGER64VSOFT>(alcGetProcAddress(device, "alcGetInteger64vSOFT"));
    if (query == nullptr) return 0ns;
    ALCint64SOFT latency = 0;
    query(device, ALC_DEVICE_LATENCY_SOFT, 1, &latency);
    return std::chrono::nanoseconds(latency);
}

}  // namespace

int playingDevices()
{
    const int listed = listedDevices();
    // The one that stands for all others is listed even when there are none: opening it tells.
    return listed > 1 || openDevice() ? listed : 0;
}

std::string playSound(const platform::SoundFile& sound, const std::stop_token& stopped)
{
    const Device device = openDevice();
    if (!device) return "There is no sound device that could play the message";
    const Context context(alcCreateContext(device.get(), nullptr));
    if (!context || alcMakeContextCurrent(context.get()) == ALC_FALSE) return "The sound device cannot play";

    const auto begin = std::chrono::steady_clock::now();
    const Source source(sound);
    if (alGetError() != AL_NO_ERROR) return "The sound device cannot play the message";
    constexpr auto turn = 5ms;
    while (source.plays() && !stopped.stop_requested()) {
        if (!isConnected(device.get())) break;
        std::this_thread::sleep_for(turn);
    }
    if (!isConnected(device.get())) return "The sound device went away in the middle of the message";

    // All samples are with the device now, the last ones not heard yet.
    const auto end = begin + sound.length + latencyOf(device.get());
    while (std::chrono::steady_clock::now() < end && !stopped.stop_requested())
        std::this_thread::sleep_for(turn);
    return {};
}

}  // namespace desktop
