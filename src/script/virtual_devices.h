// The smaller drivers of a scripted machine.
#pragma once

#include <optional>
#include <string>

#include "platform/machine.h"
#include "platform/page_layout.h"
#include "script/machine_record.h"

namespace script {

enum class PrinterState { there, missing, failing };

/// What the machine has.
struct MachineDescription {
    bool soundCard = true;
    std::optional<int> port;  ///< number of the serial port
    bool portPulled = false;  ///< the adapter of that port was pulled
    PrinterState printer = PrinterState::there;
    std::optional<std::string> drive;  ///< folder that stands for drive A:
    platform::ScreenSize screen;
};

class RecordedNotices final : public platform::Notices {
 public:
    explicit RecordedNotices(MachineRecord& record) : record_(record) {}
    void notice(const std::string& text) override
    {
        last_ = text;
        record_.notices.push_back(text);
    }
    std::string last() const override { return last_; }

    /// A program begins: it has not noticed anything yet.
    void beginRun() { last_.clear(); }

 private:
    MachineRecord& record_;
    std::string last_;
};

class VirtualClipboard final : public platform::Clipboard {
 public:
    std::string text() const override { return text_; }
    void setText(const std::string& text) override { text_ = text; }

 private:
    std::string text_;
};

/// Plays sound files by letting the time of their length go by.
class VirtualSound final : public platform::Sound {
 public:
    VirtualSound(const MachineDescription& description, MachineRecord& record, platform::Clock& clock)
        : description_(description), record_(record), clock_(clock)
    {
    }
    int outputDevices() const override { return description_.soundCard ? 1 : 0; }
    void play(const std::string& path) override;

 private:
    const MachineDescription& description_;
    MachineRecord& record_;
    platform::Clock& clock_;
};

/// The one serial port of the machine, with a record of each change of its lines.
class VirtualSerialPort final : public platform::SerialPort {
 public:
    VirtualSerialPort(const MachineDescription& description, MachineRecord& record, const platform::Clock& clock)
        : description_(description), record_(record), clock_(clock)
    {
    }
    void open(int number) override;
    bool isOpen() const override { return open_; }
    void setDtr(bool on) override { set(dtr_, "DTR", on); }
    void setRts(bool on) override { set(rts_, "RTS", on); }
    void close() noexcept override;

    /// The adapter is pulled: the lines are gone with it.
    void pull();

 private:
    void set(bool& line, const char* name, bool on);
    void write(const std::string& what) { record_.serial.push_back({clock_.monotonic(), what}); }

    const MachineDescription& description_;
    MachineRecord& record_;
    const platform::Clock& clock_;
    bool open_ = false;
    bool dtr_ = false;
    bool rts_ = false;
};

/// Prints into the record. A printer that is missing prints all the same, as its stand-in does; a failing one fails.
class RecordedPrinter final : public platform::Printer {
 public:
    RecordedPrinter(const MachineDescription& description, MachineRecord& record)
        : description_(description), record_(record)
    {
    }
    void begin(const std::string& name) override;
    void setFont(const std::string& name, double points) override;
    void setBold(bool bold) override;
    void print(int column, const std::string& text) override;
    void endLine() override;
    void endPage() override;
    void endDocument() override;

 private:
    void mustWork();
    void close();

    const MachineDescription& description_;
    MachineRecord& record_;
    platform::PageLayout layout_;
    bool open_ = false;  ///< a document is being printed
    std::string font_;
    double points_ = 0;
    bool bold_ = false;
};

class VirtualVolumes final : public platform::Volumes {
 public:
    explicit VirtualVolumes(const MachineDescription& description) : description_(description) {}
    std::optional<std::string> driveA() const override { return description_.drive; }
    std::vector<std::string> names() const override;

 private:
    const MachineDescription& description_;
};

class RecordedHelp final : public platform::HelpViewer {
 public:
    RecordedHelp(MachineRecord& record, const platform::Clock& clock) : record_(record), clock_(clock) {}
    void open(int context) override { record_.help.push_back({clock_.monotonic(), std::to_string(context)}); }

 private:
    MachineRecord& record_;
    const platform::Clock& clock_;
};

class VirtualScreen final : public platform::Screen {
 public:
    explicit VirtualScreen(const MachineDescription& description) : description_(description) {}
    platform::ScreenSize size() const override { return description_.screen; }

 private:
    const MachineDescription& description_;
};

class VirtualInstallation final : public platform::Installation {
 public:
    explicit VirtualInstallation(std::string folder) : folder_(std::move(folder)) {}
    std::string programFolder() const override { return folder_; }
    std::string commandLine() const override { return commandLine_; }
    void setCommandLine(const std::string& commandLine) { commandLine_ = commandLine; }

 private:
    std::string folder_;
    std::string commandLine_;
};

}  // namespace script
