// The serial port whose lines hold the transmitter on and key it, on a device of this computer.
//
// The device is opened for the first message and stays open from then on, because opening one raises its lines for a
// moment. Before the first message nothing is touched. However the process ends, the system drops the lines with it.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "desktop/keying_priority.h"
#include "desktop/serial_device.h"
#include "platform/machine.h"

namespace desktop {

class SerialLines final : public platform::SerialPort {
 public:
    /// A link COMN in `programFolder` says which device port N is.
    explicit SerialLines(std::string programFolder);
    ~SerialLines() override;

    SerialLines(const SerialLines&) = delete;
    SerialLines& operator=(const SerialLines&) = delete;

    void open(int number) override;
    bool isOpen() const override { return inUse_; }
    void setDtr(bool on) override;
    void setRts(bool on) override;
    void close() noexcept override;

 private:
    /// The device of the last message may serve again.
    bool stillAnswers(int number);
    void set(SerialLine line, bool on);
    void forgetDevice() noexcept;

    std::string programFolder_;
    std::unique_ptr<SerialDevice> device_;  ///< stays open between messages
    int number_ = 0;                        ///< of the port that the device is
    bool inUse_ = false;
    std::optional<KeyingPriority> priority_;  ///< while in use
};

}  // namespace desktop
