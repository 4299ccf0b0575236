#include "platform/machine.h"

#include <stdexcept>

namespace platform {

namespace {

Machine* currentMachine = nullptr;

EventServing& currentServing()
{
    static EventServing serving;
    return serving;
}

}  // namespace

Machine& machine()
{
    if (currentMachine == nullptr) throw std::logic_error("no program is running on any machine");
    return *currentMachine;
}

void setMachine(Machine* current, EventServing serving)
{
    currentMachine = current;
    currentServing() = std::move(serving);
}

void serveEvents()
{
    if (currentServing()) currentServing()();
}

Button msgBox(const std::string& text, int style, const std::string& title)
{
    return machine().messageBoxes.show({text, title, style});
}

}  // namespace platform
