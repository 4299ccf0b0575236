// A serial device, by the two lines that matter, and finding the one that a port number means.
#pragma once

#include <memory>
#include <string>

namespace desktop {

/// The key is DTR, the transmitter RTS.
enum class SerialLine { key, transmitter };

/// A device that is open. Both lines fall when it is destroyed, and when the process ends in whatever way.
class SerialDevice {
 public:
    virtual ~SerialDevice() = default;
    /// Switches a line. False when the device does not answer any more.
    virtual bool switchLine(SerialLine line, bool on) = 0;
};

/// Drops both lines. False when the device does not answer any more.
bool dropLines(SerialDevice& device);

/// Opens port `number` (from 1) with 19200 bits a second, no parity, 8 bits and one stop bit, its lines down at once.
/// It is COMN on Windows; elsewhere what the link COMN in `programFolder` leads to, and without such a link the first
/// of ttyS, ttyUSB and ttyACM that opens and answers for its lines. Error 8002, with the reason, when there is none.
std::unique_ptr<SerialDevice> openPort(int number, const std::string& programFolder);

/// The part of openPort() that each system has a driver for. `number` is 1 or more.
std::unique_ptr<SerialDevice> openSystemPort(int number, const std::string& programFolder);

}  // namespace desktop
