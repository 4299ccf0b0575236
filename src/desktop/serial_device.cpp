#include "desktop/serial_device.h"

#include <QFileInfo>
#include <QStringList>
#include <cerrno>

#include "base/number.h"
#include "base/runtime_error.h"

#ifdef Q_OS_UNIX
#include <sys/ioctl.h>
#include <termios.h>
#endif

namespace desktop {

namespace {

/// Why a device is not the port, the nearest to success last.
enum class Refusal { notThere, noHardware, notAllowed, busy };

struct Refused {
    Refusal why = Refusal::notThere;
    QString device;
};

#ifdef Q_OS_UNIX

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

/// When the last process that has the device open is gone, the system drops the lines.
bool dropLinesWithProcess(QSerialPort& device)
{
    termios settings{};
    if (::tcgetattr(device.handle(), &settings) != 0) return false;
    settings.c_cflag |= HUPCL;
    return ::tcsetattr(device.handle(), TCSANOW, &settings) == 0;
}

#else

QStringList devicesOf(int number, const std::string&)
{
    return {QStringLiteral("COM%1").arg(number)};
}

/// Here the driver does so by itself.
bool dropLinesWithProcess(QSerialPort&)
{
    return true;
}

#endif

Refusal refusalOf(const QSerialPort& device)
{
    if (device.error() == QSerialPort::DeviceNotFoundError) return Refusal::notThere;
    if (device.error() != QSerialPort::PermissionError) return Refusal::noHardware;
    // The toolkit counts a device that another program holds as one that may not be opened.
    return device.errorString() == qt_error_string(EACCES) ? Refusal::notAllowed : Refusal::busy;
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
           " to its device beside the program";
}

/// Opens one device. Nothing, and the reason in `refusal`, when it cannot be the port.
std::unique_ptr<QSerialPort> openDevice(const QString& path, Refusal& refusal)
{
    auto device = std::make_unique<QSerialPort>(path);
    device->setBaudRate(QSerialPort::Baud19200);
    // Nothing is read: what arrives shall not wake anybody.
    if (!device->open(QIODevice::WriteOnly)) {
        refusal = refusalOf(*device);
        return nullptr;
    }
    if (dropLines(*device) && dropLinesWithProcess(*device)) return device;
    refusal = Refusal::noHardware;
    return nullptr;
}

}  // namespace

std::unique_ptr<QSerialPort> openPort(int number, const std::string& programFolder)
{
    Refused nearest;
    if (number < 1) throw base::RuntimeError(base::noSuchPort, "There is no serial port " + base::toText(number));
    for (const QString& path : devicesOf(number, programFolder)) {
        Refusal refusal{};
        if (auto device = openDevice(path, refusal)) return device;
        if (refusal > nearest.why) nearest = {refusal, path};
    }
    throw base::RuntimeError(base::noSuchPort, sentence(number, nearest));
}

bool switchLine(QSerialPort& device, QSerialPort::PinoutSignal line, bool on)
{
#ifdef Q_OS_UNIX
    // Directly: the toolkit asks for the present state first, which costs an adapter a way over its bus and back.
    const int bit = line == QSerialPort::DataTerminalReadySignal ? TIOCM_DTR : TIOCM_RTS;
    return ::ioctl(device.handle(), on ? TIOCMBIS : TIOCMBIC, &bit) == 0;
#else
    return line == QSerialPort::DataTerminalReadySignal ? device.setDataTerminalReady(on) : device.setRequestToSend(on);
#endif
}

bool dropLines(QSerialPort& device)
{
    // The key first. Both are tried, whatever becomes of the other.
    const bool keyIsUp = switchLine(device, QSerialPort::DataTerminalReadySignal, false);
    const bool transmitterIsOff = switchLine(device, QSerialPort::RequestToSendSignal, false);
    return keyIsUp && transmitterIsOff;
}

}  // namespace desktop
