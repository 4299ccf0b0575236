#include <sys/ioctl.h>
#include <termios.h>

#include <QFileInfo>
#include <QSerialPort>
#include <QStringList>
#include <cerrno>

#include "base/number.h"
#include "base/runtime_error.h"
#include "desktop/serial_device.h"

namespace desktop {

namespace {

/// Why a device is not the port, the nearest to success last.
enum class Refusal { notThere, noHardware, notAllowed, busy };

struct Refused {
    Refusal why = Refusal::notThere;
    QString device;
};

class TerminalDevice final : public SerialDevice {
 public:
    explicit TerminalDevice(const QString& path) : device_(path) { device_.setBaudRate(QSerialPort::Baud19200); }

    /// Nothing is read: what arrives shall not wake anybody.
    bool open() { return device_.open(QIODevice::WriteOnly); }

    /// Directly: the toolkit asks for the present state first, which costs an adapter a way over its bus and back.
    bool switchLine(SerialLine line, bool on) override
    {
        const int bit = line == SerialLine::key ? TIOCM_DTR : TIOCM_RTS;
        return ::ioctl(device_.handle(), on ? TIOCMBIS : TIOCMBIC, &bit) == 0;
    }

    /// When the last process that has the device open is gone, the system drops the lines.
    bool dropLinesWithProcess()
    {
        termios settings{};
        if (::tcgetattr(device_.handle(), &settings) != 0) return false;
        settings.c_cflag |= HUPCL;
        return ::tcsetattr(device_.handle(), TCSANOW, &settings) == 0;
    }

    /// Why it did not open.
    Refusal refusal() const
    {
        if (device_.error() == QSerialPort::DeviceNotFoundError) return Refusal::notThere;
        if (device_.error() != QSerialPort::PermissionError) return Refusal::noHardware;
        // The toolkit counts a device that another program holds as one that may not be opened.
        return device_.errorString() == qt_error_string(EACCES) ? Refusal::notAllowed : Refusal::busy;
    }

 private:
    QSerialPort device_;
};

QStringList devicesOf(int number, const std::string& programFolder)
{
    const QFileInfo link(QString::fromStdString(programFolder + "/COM" + base::toText(number)));
    // Whoever made the link means this device and no other, plugged in or not.
    if (link.isSymLink() || link.exists()) return {link.absoluteFilePath()};
    QStringList devices;
    for (const char* kind : {"/dev/ttyS", "/dev/ttyUSB", "/dev/ttyACM"})
        devices += kind + QString::number(number - 1);
    return devices;
}

std::string sentence(int number, const Refused& refused)
{
    const std::string port = "Serial port " + base::toText(number);
    const std::string device = port + ", " + refused.device.toStdString() + ",";
    switch (refused.why) {
        case Refusal::noHardware:
            return device + " has no hardware behind it";
        case Refusal::notAllowed:
            return device + " may not be opened by this user: only members of the group dialout may";
        case Refusal::busy:
            return device + " is busy: another program has it open";
        case Refusal::notThere:
            break;
    }
    return port + " is not there: plug the adapter in, or make a link COM" + base::toText(number) +
           " to its device beside LogKelvo.mdb";
}

/// Opens one device. Nothing, and the reason in `refusal`, when it cannot be the port.
std::unique_ptr<SerialDevice> openDevice(const QString& path, Refusal& refusal)
{
    auto device = std::make_unique<TerminalDevice>(path);
    if (!device->open()) {
        refusal = device->refusal();
        return nullptr;
    }
    if (dropLines(*device) && device->dropLinesWithProcess()) return device;
    refusal = Refusal::noHardware;
    return nullptr;
}

}  // namespace

std::unique_ptr<SerialDevice> openSystemPort(int number, const std::string& programFolder)
{
    Refused nearest;
    for (const QString& path : devicesOf(number, programFolder)) {
        Refusal refusal{};
        if (auto device = openDevice(path, refusal)) return device;
        if (refusal > nearest.why) nearest = {refusal, path};
    }
    throw base::RuntimeError(base::noSuchPort, sentence(number, nearest));
}

}  // namespace desktop
