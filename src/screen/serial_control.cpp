#include "screen/serial_control.h"

namespace screen {

PortSwitch& PortSwitch::operator=(bool open)
{
    platform::SerialPort& port = platform::machine().serialPort;
    if (open)
        port.open(control_.CommPort);
    else
        port.close();
    return *this;
}

PortSwitch::operator bool() const
{
    return platform::machine().serialPort.isOpen();
}

LineSwitch& LineSwitch::operator=(bool on)
{
    (platform::machine().serialPort.*set_)(on);
    return *this;
}

SerialControl::SerialControl(Form* form, const char* name) : Control(form, name, Kind::serial, nullptr)
{
}

}  // namespace screen
