#include "desktop/sound_devices.h"

#include <fstream>
#include <string>

#ifdef _WIN32
#include <windows.h>
// Behind the header that it needs.
#include <mmsystem.h>
#endif

namespace desktop {

int playbackDevices(std::istream& streams)
{
    int devices = 0;
    for (std::string line; std::getline(streams, line);)
        if (line.find("playback") != std::string::npos) ++devices;
    return devices;
}

int SoundDevices::outputDevices() const
{
#ifdef _WIN32
    return static_cast<int>(waveOutGetNumDevs());
#else
    std::ifstream streams("/proc/asound/pcm");
    return playbackDevices(streams);
#endif
}

}  // namespace desktop
