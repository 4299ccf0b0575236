#include "script/virtual_devices.h"

#include "base/number.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "platform/files.h"
#include "platform/sound_file.h"

namespace script {

void VirtualSound::play(const std::string& path)
{
    const std::filesystem::path file = platform::resolve(path);
    std::error_code error;
    const bool there = std::filesystem::exists(file, error);
    // Under the name that the program asks for, however the file spells it.
    const std::string name = path.substr(path.find_last_of("/\\") + 1);
    record_.sounds.push_back({clock_.monotonic(), there ? name : name + " missing"});
    const auto length = platform::soundLength(file);
    if (length) clock_.sleepUntil(clock_.monotonic() + *length);
}

void VirtualSerialPort::open(int number)
{
    if (description_.port != number || description_.portPulled)
        throw base::RuntimeError(base::noSuchPort, "There is no serial port " + base::toText(number));
    open_ = true;
    write("open " + base::toText(number));
}

void VirtualSerialPort::close() noexcept
{
    if (!open_) return;
    set(dtr_, "DTR", false);
    set(rts_, "RTS", false);
    open_ = false;
    write("close");
}

void VirtualSerialPort::pull()
{
    if (!open_) return;
    open_ = dtr_ = rts_ = false;
    write("close");
}

void RecordedPrinter::begin(const std::string& /*name*/)
{
    endDocument();
    mustWork();
    open_ = true;
    bold_ = false;
}

void RecordedPrinter::setFont(const std::string& name, double points)
{
    font_ = name;
    points_ = points;
}

void RecordedPrinter::setBold(bool bold)
{
    bold_ = bold;
}

void RecordedPrinter::print(int column, const std::string& text)
{
    if (!open_) return;
    mustWork();
    layout_.place(column, base::length(text), points_);
    record_.printed.push_back(base::toText(layout_.page()) + "|" + base::toText(layout_.line()) + "|" +
                              base::toText(column) + "|" + font_ + "|" + base::toText(static_cast<long long>(points_)) +
                              "|" + (bold_ ? "yes" : "no") + "|" + text);
}

void RecordedPrinter::endLine()
{
    if (open_) layout_.endLine(points_);
}

void RecordedPrinter::endPage()
{
    if (open_) layout_.endPage();
}

void RecordedPrinter::endDocument()
{
    if (!open_) return;
    mustWork();
    close();
    record_.printed.emplace_back("end");
}

void RecordedPrinter::mustWork()
{
    if (description_.printer != PrinterState::failing) return;
    if (open_) close();
    throw base::RuntimeError(base::existsOrNoAccess, "The printer does not print");
}

/// The next document begins on a page of its own.
void RecordedPrinter::close()
{
    open_ = false;
    layout_.endPage();
}

std::vector<std::string> VirtualVolumes::names() const
{
    std::vector<std::string> names{""};
    if (description_.drive) names.push_back(*description_.drive);
    return names;
}

void VirtualSerialPort::set(bool& line, const char* name, bool on)
{
    if (!open_) throw base::RuntimeError(base::existsOrNoAccess, "The serial port is gone");
    if (line == on) return;
    line = on;
    write(std::string(name) + (on ? " on" : " off"));
}

}  // namespace script
