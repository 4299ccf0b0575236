#include "desktop/desktop_machine.h"

namespace desktop {

DesktopMachine::DesktopMachine(const CommandLine& commandLine, EntryQueue& queue, std::function<void()> publish)
    : clock_(queue.stopToken(), [&queue] { queue.noteRest(); }),
      notices_(clock_),
      messageBoxes_(queue, std::move(publish)),
      sound_(notices_, queue.stopToken(), [&queue] { queue.noteRest(); }),
      serialPort_(commandLine.programFolder),
      printer_(commandLine.programFolder, notices_),
      volumes_(commandLine.programFolder),
      help_(commandLine.programFolder, commandLine.executableFolder, notices_),
      installation_(commandLine),
      machine_{messageBoxes_, notices_, clock_,   polledKeys_, clipboard_,  sound_,
               serialPort_,   printer_, volumes_, help_,       screenArea_, installation_}
{
    screenArea_.measure();
    // The first page asks how many there are.
    sound_.countAhead();
}

}  // namespace desktop
