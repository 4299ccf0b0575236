#include "script/virtual_machine.h"

#include "platform/files.h"

namespace script {

namespace fs = std::filesystem;

namespace {

/// From the root, without a separator at its end.
fs::path bareAbsolute(const fs::path& folder)
{
    const fs::path path = fs::absolute(folder).lexically_normal();
    return path.has_filename() ? path : path.parent_path();
}

}  // namespace

VirtualMachine::VirtualMachine(const fs::path& folder)
    : installation_(platform::pathText(bareAbsolute(folder))), drivers_{boxes,     notices_, clock,      keyboard,
                                                                        clipboard, sound_,   serialPort, printer_,
                                                                        volumes_,  help_,    screen_,    installation_}
{
}

void VirtualMachine::beginRun(const std::string& commandLine)
{
    record.begin(clock.monotonic());
    notices_.beginRun();
    installation_.setCommandLine(commandLine);
}

fs::path VirtualMachine::fileAt(const std::string& path) const
{
    return platform::resolve(folder() + "/" + path);
}

}  // namespace script
