// A machine without a screen: all drivers that the program asks for, in virtual time and in the hands of a script.
#pragma once

#include <filesystem>
#include <string>

#include "platform/machine.h"
#include "script/machine_record.h"
#include "script/scripted_boxes.h"
#include "script/virtual_clock.h"
#include "script/virtual_devices.h"
#include "script/virtual_keyboard.h"

namespace script {

class VirtualMachine {
 public:
    /// `folder` is that of the program; it is there.
    explicit VirtualMachine(const std::filesystem::path& folder);
    VirtualMachine(const VirtualMachine&) = delete;
    VirtualMachine& operator=(const VirtualMachine&) = delete;
    ~VirtualMachine() = default;

    MachineDescription description;
    MachineRecord record;
    VirtualClock clock;
    VirtualKeyboard keyboard;
    ScriptedBoxes boxes;
    VirtualClipboard clipboard;
    VirtualSerialPort serialPort{description, record, clock};

    /// The drivers, for a program.
    platform::Machine& drivers() { return drivers_; }

    /// A program begins with this command line.
    void beginRun(const std::string& commandLine);

    /// The program's folder as the program spells it.
    std::string folder() const { return installation_.programFolder(); }

    /// A file of the folder: `path` has forward slashes and is found in any spelling of its parts.
    std::filesystem::path fileAt(const std::string& path) const;

 private:
    RecordedNotices notices_{record};
    VirtualSound sound_{description, record, clock};
    RecordedPrinter printer_{description, record};
    VirtualVolumes volumes_{description};
    RecordedHelp help_{record, clock};
    VirtualScreen screen_{description};
    VirtualInstallation installation_;
    platform::Machine drivers_;
};

}  // namespace script
