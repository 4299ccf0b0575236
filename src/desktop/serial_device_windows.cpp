#include <windows.h>

#include <utility>

#include "base/number.h"
#include "base/runtime_error.h"
#include "desktop/serial_device.h"
#include "desktop/windows_handle.h"

namespace desktop {

namespace {

class CommDevice final : public SerialDevice {
 public:
    explicit CommDevice(WindowsHandle handle) : handle_(std::move(handle)) {}

    /// Gives the lines to this program alone: no handshake switches them, and they are down. False when there is no
    /// serial hardware behind the name.
    bool takeLines()
    {
        DCB settings{};
        settings.DCBlength = sizeof(settings);
        if (GetCommState(handle_.get(), &settings) == 0) return false;
        // What the program before left of these may be something that the driver refuses.
        settings.fBinary = TRUE;
        settings.fErrorChar = FALSE;
        settings.fNull = FALSE;
        settings.fAbortOnError = FALSE;
        settings.BaudRate = CBR_19200;
        settings.ByteSize = 8;
        settings.Parity = NOPARITY;
        settings.StopBits = ONESTOPBIT;
        settings.fOutxCtsFlow = FALSE;
        settings.fOutxDsrFlow = FALSE;
        settings.fDsrSensitivity = FALSE;
        settings.fOutX = FALSE;
        settings.fInX = FALSE;
        settings.fDtrControl = DTR_CONTROL_DISABLE;
        settings.fRtsControl = RTS_CONTROL_DISABLE;
        return SetCommState(handle_.get(), &settings) != 0 && dropLines(*this);
    }

    bool switchLine(SerialLine line, bool on) override
    {
        const DWORD key = on ? SETDTR : CLRDTR;
        const DWORD transmitter = on ? SETRTS : CLRRTS;
        return EscapeCommFunction(handle_.get(), line == SerialLine::key ? key : transmitter) != 0;
    }

 private:
    /// The driver drops both lines with the handle, and the system takes the handle with the process.
    WindowsHandle handle_;
};

/// What the system said when it refused to open the port.
std::string sentence(int number, DWORD error)
{
    const std::string name = "COM" + base::toText(number);
    const std::string port = "Serial port " + base::toText(number);
    switch (error) {
        case ERROR_FILE_NOT_FOUND:
        case ERROR_PATH_NOT_FOUND:
            return port + " is not there: plug the adapter in, or look up its COM number in the device manager";
        case ERROR_ACCESS_DENIED:
        case ERROR_SHARING_VIOLATION:
            return port + ", " + name + ", is busy: another program has it open";
        default:
            return port + ", " + name + ", does not answer (Windows error " + base::toText(error) + ")";
    }
}

}  // namespace

std::unique_ptr<SerialDevice> openSystemPort(int number, const std::string& /*programFolder*/)
{
    // Nobody else may have it open at the same time. From number 10 on the name alone is none.
    const std::wstring name = L"\\\\.\\COM" + std::to_wstring(number);
    const HANDLE handle =
        CreateFileW(name.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    if (handle == INVALID_HANDLE_VALUE) throw base::RuntimeError(base::noSuchPort, sentence(number, GetLastError()));
    auto device = std::make_unique<CommDevice>(WindowsHandle(handle));
    if (device->takeLines()) return device;
    throw base::RuntimeError(base::noSuchPort, "Serial port " + base::toText(number) + ", COM" + base::toText(number) +
                                                   ", has no hardware behind it");
}

}  // namespace desktop
