// Finding the device that a serial port is, and switching its lines.
#pragma once

#include <QSerialPort>
#include <memory>
#include <string>

namespace desktop {

/// Opens port `number` (from 1), its lines down at once and sure to fall when the process ends in whatever way. It is
/// COMN on Windows; elsewhere what the link COMN in `programFolder` leads to, and without such a link the first of
/// ttyS, ttyUSB and ttyACM that opens and answers for its lines. Error 8002, with the reason, when there is none.
std::unique_ptr<QSerialPort> openPort(int number, const std::string& programFolder);

/// Switches one of the two lines. False when the device does not answer any more.
bool switchLine(QSerialPort& device, QSerialPort::PinoutSignal line, bool on);

/// Drops both lines. False when the device does not answer any more.
bool dropLines(QSerialPort& device);

}  // namespace desktop
