#include "desktop/serial_device.h"

#include "base/number.h"
#include "base/runtime_error.h"

namespace desktop {

bool dropLines(SerialDevice& device)
{
    // The key first. Both are tried, whatever becomes of the other.
    const bool keyIsUp = device.switchLine(SerialLine::key, false);
    const bool transmitterIsOff = device.switchLine(SerialLine::transmitter, false);
    return keyIsUp && transmitterIsOff;
}

std::unique_ptr<SerialDevice> openPort(int number, const std::string& programFolder)
{
    if (number < 1) throw base::RuntimeError(base::noSuchPort, "There is no serial port " + base::toText(number));
    return openSystemPort(number, programFolder);
}

}  // namespace desktop
