#include "script/input.h"

#include "base/text.h"
#include "script/finding.h"
#include "script/key_names.h"
#include "script/number_words.h"
#include "script/rows_shown.h"

namespace script {

using app::QueueEntry;
using platform::Key;

namespace {

using Movements = std::deque<Movement>;

Key keyAt(const Statement& statement, std::size_t word)
{
    return keyNamed(statement.text(word)).value();
}

long rowAt(const Statement& statement, std::size_t word)
{
    return wholeNumber(statement.text(word)).value();
}

/// The clipboard is pasted by its keys, which the program never sees.
bool isPaste(const Key& key)
{
    return key.code == 'V' && key.ctrl && !key.alt && !key.shift;
}

Movement down(const Key& key, VirtualMachine& machine)
{
    const auto press = [key, &machine] { machine.keyboard.press(key); };
    if (isPaste(key)) return {[&machine] { return app::TextPasted{machine.clipboard.text()}; }, press};
    return {[key] { return app::KeyWentDown{key, false}; }, press};
}

Movement up(const Key& key, VirtualMachine& machine)
{
    return {[key] { return app::KeyWentUp{key}; }, [key, &machine] { machine.keyboard.release(key); }};
}

void strike(Movements& movements, const Key& key, VirtualMachine& machine)
{
    movements.push_back(down(key, machine));
    movements.push_back(up(key, machine));
}

Movements typing(const std::string& text, VirtualMachine& machine)
{
    Movements movements;
    for (const char32_t character : base::toCharacters(text))
        strike(movements, keyTyping(character), machine);
    return movements;
}

Movements striking(const Statement& statement, VirtualMachine& machine)
{
    Movements movements;
    for (std::size_t word = 0; word < statement.words.size(); ++word)
        strike(movements, keyAt(statement, word), machine);
    return movements;
}

Movements repeating(const Statement& statement, VirtualMachine& machine)
{
    const Key key = keyAt(statement, 0);
    const std::string& name = statement.text(0);
    const auto entry = [key, name, &machine]() -> QueueEntry {
        if (!machine.keyboard.isDown(key)) throw StepFailed{name + " to be down", "it is up"};
        return app::KeyWentDown{key, true};
    };
    return Movements(static_cast<std::size_t>(rowAt(statement, 1)), Movement{entry});
}

Movement pasting(const std::string& text, VirtualMachine& machine)
{
    return {[text] { return app::TextPasted{text}; }, [text, &machine] { machine.clipboard.setText(text); }};
}

screen::Control& clickable(const std::string& name)
{
    screen::Control& control = controlNamed(name);
    const std::string why = whyNotClickable(control);
    if (!why.empty()) throw StepFailed{name + " to take a click", why};
    return control;
}

screen::Control& focusable(const std::string& name)
{
    screen::Control& control = controlNamed(name);
    const std::string why = whyNotFocusable(control);
    if (!why.empty()) throw StepFailed{name + " to take the focus", why};
    return control;
}

QueueEntry rowTouch(const std::string& name, long row, bool twice)
{
    screen::Control& control = clickable(name);
    if (control.kind == screen::Kind::listBox)
        return app::ListItemPicked{&control, static_cast<int>(listIndex(listNamed(name), row))};
    return app::RowPicked{&control, gridRow(gridNamed(name), row).key, twice};
}

/// A double click on a list picks the item first; on a grid it is one gesture.
Movements touchingRow(const Statement& statement, bool twice)
{
    const std::string& name = statement.text(0);
    const long row = rowAt(statement, 1);
    if (!twice) return {{[name, row] { return rowTouch(name, row, false); }}};

    auto list = std::make_shared<screen::Control*>(nullptr);
    const auto first = [name, row, list] {
        screen::Control& control = controlNamed(name);
        if (control.kind == screen::Kind::listBox) *list = &control;
        return rowTouch(name, row, true);
    };
    const auto second = [list]() -> QueueEntry {
        if (*list == nullptr) return app::PictureAsked{};
        return app::ControlDoubleClicked{*list};
    };
    return {{first}, {second}};
}

std::optional<Movements> movementsOf(const Statement& statement, VirtualMachine& machine)
{
    const auto once = [](auto entry) { return Movements{{entry}}; };
    const auto name = [&] { return statement.text(0); };
    switch (statement.verb) {
        case Verb::click:
            return once([name = name()] { return app::ControlClicked{&clickable(name)}; });
        case Verb::doubleClick:
            return once([name = name()] { return app::ControlDoubleClicked{&clickable(name)}; });
        case Verb::focus:
            return once([name = name()] { return app::FocusAsked{&focusable(name)}; });
        case Verb::close:
            return once([] { return app::CloseAsked{}; });
        case Verb::type:
            return typing(statement.text(0), machine);
        case Verb::paste:
            return Movements{pasting(statement.text(0), machine)};
        case Verb::key:
            return striking(statement, machine);
        case Verb::keyDown:
            return Movements{down(keyAt(statement, 0), machine)};
        case Verb::keyUp:
            return Movements{up(keyAt(statement, 0), machine)};
        case Verb::keyRepeat:
            return repeating(statement, machine);
        case Verb::row:
            return touchingRow(statement, false);
        case Verb::doubleRow:
            return touchingRow(statement, true);
        default:
            return std::nullopt;
    }
}

}  // namespace

std::optional<Input> inputOf(const Statement& statement, VirtualMachine& machine)
{
    std::optional<Movements> movements = movementsOf(statement, machine);
    if (!movements) return std::nullopt;
    return Input{.line = statement.line, .movements = *std::move(movements)};
}

}  // namespace script
