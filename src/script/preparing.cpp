#include "script/preparing.h"

#include "platform/files.h"
#include "script/folder_files.h"
#include "script/key_names.h"
#include "script/number_words.h"
#include "script/tables.h"
#include "script/words.h"

namespace script {

namespace {

platform::Key keyIn(const Statement& statement)
{
    return keyNamed(statement.text(0)).value();
}

int numberAt(const Statement& statement, std::size_t word)
{
    return static_cast<int>(wholeNumber(statement.text(word)).value());
}

PrinterState printerState(const Word& word)
{
    if (isWord(word, "fail")) return PrinterState::failing;
    return isWord(word, "yes") ? PrinterState::there : PrinterState::missing;
}

void setCalendar(const Statement& statement, VirtualClock& clock)
{
    clock.setCalendar(calendarDay(statement.text(0)).value() + timeOfDay(statement.text(1)).value());
}

void plugPort(const Statement& statement, MachineDescription& description)
{
    const bool none = isWord(statement.words[0], "none");
    description.port = none ? std::nullopt : std::optional<int>(numberAt(statement, 0));
    description.portPulled = false;
}

void mountDrive(const Statement& statement, VirtualMachine& machine)
{
    machine.description.drive.reset();
    if (isWord(statement.words[0], "none")) return;
    const std::filesystem::path folder = machine.fileAt(statement.text(0));
    makeFolder(folder);
    machine.description.drive = platform::pathText(folder);
}

void queueAnswers(const Statement& statement, ScriptedBoxes& boxes)
{
    for (const Word& word : statement.words)
        boxes.queueAnswer(buttonNamed(word.text).value(), statement.line);
}

bool prepareDevices(const Statement& statement, VirtualMachine& machine)
{
    MachineDescription& description = machine.description;
    switch (statement.verb) {
        case Verb::screen:
            description.screen = {numberAt(statement, 0), numberAt(statement, 1)};
            return true;
        case Verb::soundCard:
            description.soundCard = isWord(statement.words[0], "yes");
            return true;
        case Verb::port:
            plugPort(statement, description);
            return true;
        case Verb::unplug:
            description.portPulled = true;
            machine.serialPort.pull();
            return true;
        case Verb::printer:
            description.printer = printerState(statement.words[0]);
            return true;
        case Verb::drive:
            mountDrive(statement, machine);
            return true;
        default:
            return false;
    }
}

bool prepareFolder(const Statement& statement, const VirtualMachine& machine)
{
    switch (statement.verb) {
        case Verb::file:
            writeTextFile(machine.fileAt(statement.text(0)), statement.lines);
            return true;
        case Verb::wav:
            writeSoundFile(machine.fileAt(statement.text(0)), seconds(statement.text(1)).value());
            return true;
        case Verb::sql:
            databaseNamed(statement.text(0), machine).change(statement.text(1));
            return true;
        default:
            return false;
    }
}

bool prepareHands(const Statement& statement, VirtualMachine& machine)
{
    switch (statement.verb) {
        case Verb::now:
            setCalendar(statement, machine.clock);
            return true;
        case Verb::hold:
            machine.keyboard.hold(keyIn(statement));
            return true;
        case Verb::release:
            machine.keyboard.letGo(keyIn(statement));
            return true;
        case Verb::answer:
            queueAnswers(statement, machine.boxes);
            return true;
        default:
            return false;
    }
}

}  // namespace

bool prepare(const Statement& statement, VirtualMachine& machine)
{
    return prepareDevices(statement, machine) || prepareFolder(statement, machine) || prepareHands(statement, machine);
}

}  // namespace script
