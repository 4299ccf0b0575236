// The serial port as a control of a form: its properties act on the port of the machine.
#pragma once

#include <cstdint>
#include <string>

#include "screen/control.h"

namespace screen {

struct SerialControl;

/// Whether the port is in use. Setting it takes `CommPort` into use, both lines down, or ends the use with both lines
/// down. Error 8002 when there is no such port.
class PortSwitch {
 public:
    explicit PortSwitch(const SerialControl& control) : control_(control) {}
    PortSwitch(const PortSwitch&) = delete;
    PortSwitch& operator=(const PortSwitch&) = delete;
    ~PortSwitch() = default;
    PortSwitch& operator=(bool open);
    operator bool() const;

 private:
    const SerialControl& control_;
};

/// A line of the port that can only be set. Error 75 when the port is not in use or its adapter was pulled.
class LineSwitch {
 public:
    using Set = void (platform::SerialPort::*)(bool);
    explicit LineSwitch(Set set) : set_(set) {}
    LineSwitch(const LineSwitch&) = delete;
    LineSwitch& operator=(const LineSwitch&) = delete;
    ~LineSwitch() = default;
    LineSwitch& operator=(bool on);

 private:
    Set set_;
};

struct SerialControl : Control {
    SerialControl(Form* form, const char* name);
    std::int16_t CommPort = 0;
    std::string Settings;  ///< of the bytes on the line; none is ever sent
    PortSwitch PortOpen{*this};
    LineSwitch DTREnable{&platform::SerialPort::setDtr};
    LineSwitch RTSEnable{&platform::SerialPort::setRts};
};

}  // namespace screen
