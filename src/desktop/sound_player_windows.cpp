#include <windows.h>
// Behind the header that it needs.
#include <mmsystem.h>

#include <chrono>
#include <vector>

#include "desktop/sound_player.h"
#include "desktop/windows_handle.h"

namespace desktop {

namespace {

/// The system sets it when a device is open, has played its samples, or is closed.
class DeviceEvent {
 public:
    HANDLE handle() const { return handle_.get(); }
    void waitShortly() const
    {
        constexpr DWORD turnMilliseconds = 5;
        WaitForSingleObject(handle(), turnMilliseconds);
    }

 private:
    WindowsHandle handle_{CreateEventW(nullptr, FALSE, FALSE, nullptr)};
};

WAVEFORMATEX formatOf(const platform::SoundFile& sound)
{
    WAVEFORMATEX format{};
    format.wFormatTag = WAVE_FORMAT_PCM;
    format.nChannels = static_cast<WORD>(sound.channels);
    format.nSamplesPerSec = static_cast<DWORD>(sound.samplesPerSecond);
    format.wBitsPerSample = static_cast<WORD>(sound.bitsPerSample);
    format.nBlockAlign = static_cast<WORD>(sound.channels * sound.bitsPerSample / 8);
    format.nAvgBytesPerSec = format.nSamplesPerSec * format.nBlockAlign;
    return format;
}

/// The device that the user chose for sounds, open for one of them.
class OutputDevice {
 public:
    OutputDevice(const WAVEFORMATEX& format, const DeviceEvent& event)
        : isOpen_(waveOutOpen(&device_, WAVE_MAPPER, &format, reinterpret_cast<DWORD_PTR>(event.handle()), 0,
                              CALLBACK_EVENT) == MMSYSERR_NOERROR)
    {
    }
    ~OutputDevice()
    {
        if (!isOpen_) return;
        // What still plays is over at once, and the samples come back.
        waveOutReset(device_);
        if (header_.dwFlags != 0) waveOutUnprepareHeader(device_, &header_, sizeof(header_));
        waveOutClose(device_);
    }
    OutputDevice(const OutputDevice&) = delete;
    OutputDevice& operator=(const OutputDevice&) = delete;

    bool isOpen() const { return isOpen_; }

    /// `samples` stay in place as long as the device is open. False when the device cannot play them.
    bool begin(std::vector<char>& samples)
    {
        header_.lpData = samples.data();
        header_.dwBufferLength = static_cast<DWORD>(samples.size());
        return waveOutPrepareHeader(device_, &header_, sizeof(header_)) == MMSYSERR_NOERROR &&
               waveOutWrite(device_, &header_, sizeof(header_)) == MMSYSERR_NOERROR;
    }

    bool plays() const { return (header_.dwFlags & WHDR_DONE) == 0; }

    /// A device that was pulled out knows no place in the sound any more.
    bool isConnected() const
    {
        MMTIME place{};
        place.wType = TIME_SAMPLES;
        return waveOutGetPosition(device_, &place, sizeof(place)) == MMSYSERR_NOERROR;
    }

 private:
    HWAVEOUT device_ = nullptr;
    WAVEHDR header_{};
    bool isOpen_;
};

}  // namespace

int playingDevices()
{
    return static_cast<int>(waveOutGetNumDevs());
}

std::string playSound(const platform::SoundFile& sound, const std::stop_token& stopped)
{
    if (playingDevices() == 0) return "There is no sound device that could play the message";
    const WAVEFORMATEX format = formatOf(sound);
    std::vector<char> samples = sound.samples;
    // Half a sample at the end is none.
    samples.resize(samples.size() / format.nBlockAlign * format.nBlockAlign);

    const DeviceEvent event;
    OutputDevice device(format, event);
    if (!device.isOpen()) return "The sound device cannot play";
    const auto end = std::chrono::steady_clock::now() + sound.length;
    if (!device.begin(samples)) return "The sound device cannot play the message";
    // The system hands the samples back when it has taken the last one over, which is not heard yet.
    while ((device.plays() || std::chrono::steady_clock::now() < end) && !stopped.stop_requested()) {
        if (!device.isConnected()) return "The sound device went away in the middle of the message";
        event.waitShortly();
    }
    return {};
}

}  // namespace desktop
