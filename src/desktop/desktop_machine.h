// All drivers of the computer that the desktop program runs on.
#pragma once

#include "desktop/clipboard_mirror.h"
#include "desktop/command_line.h"
#include "desktop/help_file.h"
#include "desktop/key_state.h"
#include "desktop/machine_clock.h"
#include "desktop/message_boxes.h"
#include "desktop/notices.h"
#include "desktop/paper_printer.h"
#include "desktop/screen_area.h"
#include "desktop/serial_port.h"
#include "desktop/sound_devices.h"
#include "desktop/volumes.h"
#include "platform/machine.h"

namespace desktop {

class DesktopMachine {
 public:
    /// On the window thread. `queue` outlives the machine; `publish` as for MessageBoxWindow.
    DesktopMachine(const CommandLine& commandLine, EntryQueue& queue, std::function<void()> publish);

    platform::Machine& machine() { return machine_; }
    MessageBoxWindow& messageBoxes() { return messageBoxes_; }
    PolledKeys& polledKeys() { return polledKeys_; }
    ScreenArea& screenArea() { return screenArea_; }
    HelpFile& help() { return help_; }

 private:
    MachineClock clock_;
    TimedNotices notices_;
    MessageBoxWindow messageBoxes_;
    PolledKeys polledKeys_;
    ClipboardMirror clipboard_;
    SoundDevices sound_;
    SerialLines serialPort_;
    PaperPrinter printer_;
    MountedVolumes volumes_;
    HelpFile help_;
    ScreenArea screenArea_;
    InstalledProgram installation_;
    platform::Machine machine_;
};

}  // namespace desktop
