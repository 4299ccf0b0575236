#include "platform/machine.h"

#include <stdexcept>

namespace platform {

namespace {

Machine* currentMachine = nullptr;

ProgramLoop& currentLoop()
{
    static ProgramLoop loop;
    return loop;
}

}  // namespace

Machine& machine()
{
    if (currentMachine == nullptr) throw std::logic_error("no program is running on any machine");
    return *currentMachine;
}

void setMachine(Machine* current, ProgramLoop loop)
{
    currentMachine = current;
    currentLoop() = std::move(loop);
}

void serveEvents()
{
    if (currentLoop().serveEvents) currentLoop().serveEvents();
}

void showState()
{
    if (currentLoop().showState) currentLoop().showState();
}

Button msgBox(const std::string& text, int style, const std::string& title)
{
    machine().serialPort.close();
    return machine().messageBoxes.show({text, title, style});
}

}  // namespace platform
