#include "script/expectations.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>

#include "base/number.h"
#include "base/text.h"
#include "script/finding.h"
#include "script/folder_files.h"
#include "script/grammar.h"
#include "script/keyed_text.h"
#include "script/number_words.h"
#include "script/rows_shown.h"
#include "script/state_variables.h"
#include "script/step_failed.h"
#include "script/tables.h"
#include "script/words.h"

namespace script {

namespace {

/// A check of something on the screen, or in the memory of the program, when none runs.
void mustRun(const ProgramRun& run)
{
    if (!run.running()) throw StepFailed{"a running program", run.ended() ? "it has ended" : "none"};
}

void mustMean(const std::string& name, const std::string& word, const Value& value)
{
    if (means(word, value)) return;
    const bool isText = std::holds_alternative<std::string>(value);
    throw StepFailed{name + " " + (isText ? inQuotes(word) : word), shown(value)};
}

std::vector<std::string> valuesBehind(const Statement& statement, std::size_t first)
{
    std::vector<std::string> values;
    for (std::size_t word = first; word < statement.words.size(); ++word)
        values.push_back(statement.text(word));
    return values;
}

long numberAt(const Statement& statement, std::size_t word)
{
    return wholeNumber(statement.text(word)).value();
}

void mustEqual(const std::string& what, const std::vector<std::string>& expected, const std::vector<std::string>& got)
{
    if (expected == got) return;
    throw StepFailed{what + " " + rowText(expected), got.empty() ? "nothing" : rowText(got)};
}

void mustCount(const std::string& where, long expected, long got)
{
    if (expected != got) throw StepFailed{std::to_string(expected) + " rows in " + where, std::to_string(got)};
}

std::string withFolder(std::string text, const VirtualMachine& machine)
{
    constexpr std::string_view placeholder = "{FOLDER}";
    const std::string folder = machine.folder();
    for (std::size_t at = text.find(placeholder); at != std::string::npos; at = text.find(placeholder, at)) {
        text.replace(at, placeholder.size(), folder);
        at += folder.size();
    }
    return text;
}

ShownBox nextBox(const std::string& expected, VirtualMachine& machine)
{
    const std::optional<ShownBox> box = machine.boxes.takeUnchecked();
    if (!box) throw StepFailed{expected, "no message"};
    return *box;
}

/// The oldest box said this, under this title and in this style as far as they are given.
void checkMessage(const Statement& statement, VirtualMachine& machine)
{
    const std::string text = withFolder(statement.text(0), machine);
    const bool hasTitle = statement.words.size() > 1;
    const bool hasStyle = statement.words.size() > 2;
    const std::string title = hasTitle ? " " + inQuotes(statement.text(1)) : "";
    const std::string style = hasStyle ? " " + statement.text(2) : "";
    const std::string expected = "message " + inQuotes(text) + title + style;

    const platform::MessageBoxRequest request = nextBox(expected, machine).request;
    const bool said = request.text == text && (!hasTitle || request.title == statement.text(1)) &&
                      (!hasStyle || request.style == numberAt(statement, 2));
    if (said) return;
    throw StepFailed{expected, inQuotes(request.text) + (hasTitle ? " " + inQuotes(request.title) : "") +
                                   (hasStyle ? " " + std::to_string(request.style) : "")};
}

void checkMessageLike(const Statement& statement, VirtualMachine& machine)
{
    const std::string part = withFolder(statement.text(0), machine);
    const std::string expected = "message like " + inQuotes(part);
    const std::string text = nextBox(expected, machine).request.text;
    if (text.find(part) == std::string::npos) throw StepFailed{expected, inQuotes(text)};
}

void checkNoMessage(VirtualMachine& machine)
{
    const ShownBox* left = machine.boxes.oldestUnchecked();
    if (left != nullptr) throw StepFailed{"no message", inQuotes(left->request.text)};
}

void checkProperty(const Statement& statement)
{
    const FoundProperty property = propertyAt(statement.text(0));
    mustMean(property.name, statement.text(1), property.value);
}

void checkFocus(const Statement& statement)
{
    const screen::Control& wanted = controlNamed(statement.text(0));
    const screen::Form* form = screen::activeForm();
    const screen::Control* focused = form == nullptr ? nullptr : form->ActiveControl;
    if (focused == &wanted) return;
    throw StepFailed{"focus on " + statement.text(0), focused == nullptr ? "none" : focused->name};
}

void checkForm(const Statement& statement)
{
    const screen::Form* form = screen::activeForm();
    const std::string name = form == nullptr ? "none" : form->name;
    if (!base::equalIgnoringCase(name, statement.text(0))) throw StepFailed{"form " + statement.text(0), name};
}

void checkEnded(const ProgramRun& run)
{
    if (run.ended()) return;
    throw StepFailed{"a program that has ended", run.running() ? "one that runs" : "none was started"};
}

void checkOff(const Statement& statement)
{
    const screen::Control& control = controlNamed(statement.text(0));
    if (whyNotClickable(control).empty()) throw StepFailed{control.name + " off", "it can be clicked"};
}

void checkState(const Statement& statement)
{
    const std::optional<StateVariable> variable = stateVariable(statement.text(0));
    if (!variable) throw StepFailed{"a variable " + statement.text(0), "none of that name"};
    mustMean("state " + variable->name, statement.text(1), variable->value);
}

void checkRows(const Statement& statement, const VirtualMachine& machine)
{
    FoundTable table = tableNamed(statement.text(0), machine);
    mustCount(std::string(table.schema.name), numberAt(statement, 1), table.file.rowCount(table.schema));
}

void checkRow(const Statement& statement, const VirtualMachine& machine)
{
    FoundTable table = tableNamed(statement.text(0), machine);
    const std::string what = "row " + statement.text(1) + " of " + std::string(table.schema.name);
    const auto row = table.file.row(table.schema, numberAt(statement, 1));
    if (!row) throw StepFailed{what, std::to_string(table.file.rowCount(table.schema)) + " rows"};
    mustEqual(what, valuesBehind(statement, 2), comparedValues(table.schema, *row));
}

void checkGrid(const Statement& statement)
{
    const screen::Grid& grid = gridNamed(statement.text(0));
    const std::vector<std::string> values = visibleValues(grid, gridRow(grid, numberAt(statement, 1)));
    mustEqual("row " + statement.text(1) + " of " + grid.name, valuesBehind(statement, 2), values);
}

void checkGridRows(const Statement& statement)
{
    const screen::Grid& grid = gridNamed(statement.text(0));
    mustCount(grid.name, numberAt(statement, 1), gridRowCount(grid));
}

void checkCurrent(const Statement& statement)
{
    const screen::Grid& grid = gridNamed(statement.text(0));
    const long number = numberAt(statement, 1);
    const long wanted = number < 0 ? gridRowCount(grid) + 1 + number : number;
    const long current = currentGridRow(grid);
    if (current == wanted && current > 0) return;
    throw StepFailed{grid.name + " on row " + statement.text(1), current == 0 ? "none" : std::to_string(current)};
}

void checkList(const Statement& statement)
{
    const screen::ListBox& list = listNamed(statement.text(0));
    const std::string& item = list.items.at(listIndex(list, numberAt(statement, 1)));
    if (item == statement.text(2)) return;
    throw StepFailed{"row " + statement.text(1) + " of " + list.name + " " + inQuotes(statement.text(2)),
                     inQuotes(item)};
}

void checkKeyed(const Statement& statement, VirtualMachine& machine)
{
    const auto wpm = static_cast<float>(base::numericValue(statement.text(0)));
    const std::string keyed = keyedText(machine.record.takeMessages(), wpm);
    if (keyed != statement.text(1))
        throw StepFailed{inQuotes(statement.text(1)) + " keyed at " + statement.text(0),
                         keyed.empty() ? "nothing was sent" : inQuotes(keyed)};
}

void checkSounds(const Statement& statement, VirtualMachine& machine)
{
    mustEqual("sounds", valuesBehind(statement, 0), machine.record.takeSounds());
}

void checkNoFile(const Statement& statement, const VirtualMachine& machine)
{
    std::error_code ignored;
    if (std::filesystem::exists(machine.fileAt(statement.text(0)), ignored))
        throw StepFailed{"no file " + statement.text(0), "one"};
}

void checkTheProgram(const Statement& statement)
{
    switch (statement.verb) {
        case Verb::expectProperty:
            return checkProperty(statement);
        case Verb::expectFocus:
            return checkFocus(statement);
        case Verb::expectForm:
            return checkForm(statement);
        case Verb::expectOff:
            return checkOff(statement);
        case Verb::expectState:
            return checkState(statement);
        case Verb::expectGrid:
            return checkGrid(statement);
        case Verb::expectGridRows:
            return checkGridRows(statement);
        case Verb::expectCurrent:
            return checkCurrent(statement);
        case Verb::expectList:
            return checkList(statement);
        default:
            return;
    }
}

}  // namespace

bool isCheck(Verb verb)
{
    constexpr std::array checks = {"expect", "message", "nomessage", "nofile"};
    const std::string_view usage = ruleOf(verb).usage;
    return std::any_of(checks.begin(), checks.end(), [&](std::string_view word) { return usage.starts_with(word); });
}

void check(const Statement& statement, VirtualMachine& machine, const ProgramRun& run)
{
    switch (statement.verb) {
        case Verb::message:
            return checkMessage(statement, machine);
        case Verb::messageLike:
            return checkMessageLike(statement, machine);
        case Verb::messageAny:
            return static_cast<void>(nextBox("a message", machine));
        case Verb::noMessage:
            return checkNoMessage(machine);
        case Verb::expectEnded:
            return checkEnded(run);
        case Verb::expectRows:
            return checkRows(statement, machine);
        case Verb::expectRow:
            return checkRow(statement, machine);
        case Verb::expectKeyed:
            return checkKeyed(statement, machine);
        case Verb::expectSounds:
            return checkSounds(statement, machine);
        case Verb::expectFile:
            return mustHaveLines(machine.fileAt(statement.text(0)), statement.lines);
        case Verb::noFile:
            return checkNoFile(statement, machine);
        default:
            mustRun(run);
            return checkTheProgram(statement);
    }
}

}  // namespace script
