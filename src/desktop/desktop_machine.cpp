#include "desktop/desktop_machine.h"

namespace desktop {

DesktopMachine::DesktopMachine(const CommandLine& commandLine, EntryQueue& queue, std::function<void()> publish)
    : notices_(clock_),
      messageBoxes_(queue, std::move(publish)),
      help_(commandLine.programFolder, notices_),
      installation_(commandLine),
      machine_{messageBoxes_, notices_, clock_, polledKeys_, clipboard_, sound_, help_, screenArea_, installation_}
{
    screenArea_.measure();
}

}  // namespace desktop
