#include "desktop/serial_port.h"

#include <utility>

#include "base/runtime_error.h"

namespace desktop {

SerialLines::SerialLines(std::string programFolder) : programFolder_(std::move(programFolder))
{
}

SerialLines::~SerialLines()
{
    close();
    forgetDevice();
}

void SerialLines::open(int number)
{
    close();
    if (!stillAnswers(number)) {
        forgetDevice();
        device_ = openPort(number, programFolder_);
        number_ = number;
    }
    inUse_ = true;
    priority_.emplace();
}

bool SerialLines::stillAnswers(int number)
{
    return device_ != nullptr && number_ == number && dropLines(*device_);
}

void SerialLines::setDtr(bool on)
{
    set(SerialLine::key, on);
}

void SerialLines::setRts(bool on)
{
    set(SerialLine::transmitter, on);
}

void SerialLines::set(SerialLine line, bool on)
{
    if (!inUse_) throw base::RuntimeError(base::existsOrNoAccess, "The serial port is not open");
    if (device_->switchLine(line, on)) return;
    forgetDevice();
    throw base::RuntimeError(base::existsOrNoAccess, "The serial port went away in the middle of a message");
}

void SerialLines::close() noexcept
{
    if (!inUse_) return;
    inUse_ = false;
    priority_.reset();
    if (!dropLines(*device_)) forgetDevice();
}

void SerialLines::forgetDevice() noexcept
{
    inUse_ = false;
    priority_.reset();
    // One line may answer although the other did not.
    if (device_) dropLines(*device_);
    device_.reset();
}

}  // namespace desktop
