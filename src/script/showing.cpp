#include "script/showing.h"

#include "script/finding.h"
#include "script/folder_files.h"
#include "script/properties.h"
#include "script/rows_shown.h"
#include "script/state_variables.h"
#include "script/step_failed.h"
#include "script/tables.h"

namespace script {

namespace {

using Lines = std::vector<std::string>;

std::string assignment(const std::string& name, const Value& value)
{
    return name + "=" + shown(value);
}

Lines property(const std::string& reference)
{
    const FoundProperty found = propertyAt(reference);
    return {assignment(found.name, found.value)};
}

const screen::Form& formOnScreen()
{
    const screen::Form* form = screen::activeForm();
    if (form == nullptr) throw StepFailed{"a form on the screen", "none"};
    return *form;
}

Lines controls()
{
    Lines lines;
    for (const screen::Control* control : formOnScreen().controls())
        for (const Property& each : properties())
            if (const std::optional<Value> value = each.of(*control))
                lines.push_back(assignment(control->name + "." + std::string(each.name), *value));
    return lines;
}

Lines state(const std::string& name)
{
    const std::optional<StateVariable> variable = stateVariable(name);
    if (!variable) throw StepFailed{"a variable " + name, "none of that name"};
    return {"state " + assignment(variable->name, variable->value)};
}

Lines table(const std::string& name, const VirtualMachine& machine)
{
    FoundTable found = tableNamed(name, machine);
    Lines lines;
    for (const auto& row : found.file.rows(found.schema))
        lines.push_back(rowText(row));
    return lines;
}

Lines grid(const std::string& name)
{
    const screen::Grid& found = gridNamed(name);
    Lines lines;
    for (const storage::Row& row : gridRows(found))
        lines.push_back(rowText(visibleValues(found, row)));
    return lines;
}

Lines messages(const VirtualMachine& machine)
{
    Lines lines;
    for (const ShownBox& box : machine.boxes.all())
        lines.push_back(boxText(box));
    return lines;
}

Lines events(const std::vector<TimedEvent>& events, const VirtualMachine& machine)
{
    Lines lines;
    for (const TimedEvent& event : events)
        lines.push_back(machine.record.print(event));
    return lines;
}

Lines focus()
{
    const screen::Control* control = formOnScreen().ActiveControl;
    return {control == nullptr ? "none" : control->name};
}

Lines partsOfProgram(const Statement& statement)
{
    switch (statement.verb) {
        case Verb::showProperty:
            return property(statement.text(0));
        case Verb::showControls:
            return controls();
        case Verb::showState:
            return state(statement.text(0));
        case Verb::showGrid:
            return grid(statement.text(0));
        case Verb::showFocus:
            return focus();
        case Verb::showForm:
            return {formOnScreen().name};
        default:
            return {};
    }
}

}  // namespace

Lines linesToShow(const Statement& statement, const VirtualMachine& machine, const ProgramRun& run)
{
    switch (statement.verb) {
        case Verb::showTable:
            return table(statement.text(0), machine);
        case Verb::showFile:
            return linesOf(machine.fileAt(statement.text(0)));
        case Verb::showMessages:
            return messages(machine);
        case Verb::showNotices:
            return machine.record.notices;
        case Verb::showSerial:
            return events(machine.record.serial, machine);
        case Verb::showSounds:
            return events(machine.record.sounds, machine);
        case Verb::showPrinter:
            return machine.record.printed;
        case Verb::showHelp:
            return events(machine.record.help, machine);
        default:
            break;
    }
    if (!run.running()) throw StepFailed{"a running program", run.ended() ? "it has ended" : "none"};
    return partsOfProgram(statement);
}

}  // namespace script
