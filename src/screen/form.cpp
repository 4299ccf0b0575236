#include "screen/form.h"

#include <algorithm>
#include <array>

#include "base/text.h"
#include "platform/machine.h"

namespace screen {

namespace {

Form* shownForm = nullptr;

}  // namespace

Control* Form::find(std::string_view controlName) const
{
    const auto found = std::find_if(controls_.begin(), controls_.end(), [&](const Control* control) {
        return base::equalIgnoringCase(control->name, controlName);
    });
    return found == controls_.end() ? nullptr : *found;
}

void Form::Show()
{
    Visible = true;
    shownForm = this;
}

void Form::Hide()
{
    Visible = false;
    if (shownForm == this) shownForm = nullptr;
}

void Form::Unload()
{
    Hide();
    if (life == FormLife::loaded) life = FormLife::unloaded;
}

Form* activeForm()
{
    return shownForm;
}

void forgetActiveForm()
{
    shownForm = nullptr;
}

Control::Control(Form* form, const char* name, Kind kind, Control* container)
    : form(*form), name(name), kind(kind), container(container)
{
    form->controls_.push_back(this);
}

bool Control::seen() const
{
    return Visible && (container == nullptr || container->seen());
}

bool Control::enabled() const
{
    return Enabled && (container == nullptr || container->enabled());
}

bool Control::canTakeFocus() const
{
    // Not the grids: an operator who touches a row goes on typing into the field that he was in.
    constexpr std::array takesKeys = {Kind::textBox, Kind::commandButton, Kind::optionButton, Kind::checkBox,
                                      Kind::listBox};
    const bool rightKind = std::find(takesKeys.begin(), takesKeys.end(), kind) != takesKeys.end();
    return rightKind && seen() && enabled();
}

void Control::SetFocus()
{
    if (canTakeFocus()) form.ActiveControl = this;
}

void Control::place(double left, double top, double width, double height)
{
    design = {left, top, width, height};
    Left = left;
    Top = top;
    Width = width;
    Height = height;
}

BoxText& BoxText::operator=(const std::string& text)
{
    value_ = text;
    box_.SelStart = 0;
    box_.SelLength = 0;
    box_.typingHistory.clear();
    return *this;
}

TextBox::TextBox(Form* form, const char* name, Control* container) : Control(form, name, Kind::textBox, container)
{
    BackColor = white;
}

void TextBox::caretToEnd()
{
    SelStart = base::length(Text);
    SelLength = 0;
}

void TextBox::caretBehindTrimmed()
{
    SelStart = base::length(base::trim(Text));
    SelLength = 0;
}

Label::Label(Form* form, const char* name, Control* container) : Control(form, name, Kind::label, container)
{
}

CommandButton::CommandButton(Form* form, const char* name, Control* container)
    : Control(form, name, Kind::commandButton, container)
{
}

OptionValue& OptionValue::operator=(bool chosen)
{
    if (chosen)
        for (Control* control : option_.form.controls())
            if (control->kind == Kind::optionButton && control->container == option_.container)
                static_cast<OptionButton*>(control)->Value.chosen_ = false;
    chosen_ = chosen;
    return *this;
}

OptionButton::OptionButton(Form* form, const char* name, Control* container)
    : Control(form, name, Kind::optionButton, container)
{
}

CheckBox::CheckBox(Form* form, const char* name, Control* container) : Control(form, name, Kind::checkBox, container)
{
}

Frame::Frame(Form* form, const char* name, Control* container) : Control(form, name, Kind::frame, container)
{
}

ListBox::ListBox(Form* form, const char* name, Control* container) : Control(form, name, Kind::listBox, container)
{
    BackColor = white;
}

void ListBox::Clear()
{
    items.clear();
    ListIndex = -1;
}

void ListBox::AddItem(const std::string& item)
{
    items.push_back(item);
}

std::string ListBox::Text() const
{
    if (ListIndex < 0 || static_cast<std::size_t>(ListIndex) >= items.size()) return {};
    return items[static_cast<std::size_t>(ListIndex)];
}

Line::Line(Form* form, const char* name, Control* container) : Control(form, name, Kind::line, container)
{
}

Timer::Timer(Form* form, const char* name) : Control(form, name, Kind::timer, nullptr)
{
}

MenuEntry::MenuEntry(Form* form, const char* name, MenuEntry* above) : Control(form, name, Kind::menuEntry, above)
{
}

DataControl::DataControl(Form* form, const char* name) : Control(form, name, Kind::data, nullptr)
{
}

void DataControl::Refresh()
{
    Recordset = storage::OpenDatabase(DatabaseName).OpenRecordset(RecordSource);
}

Grid::Grid(Form* form, const char* name, DataControl* data) : Control(form, name, Kind::grid, nullptr), data(data)
{
    BackColor = white;
}

}  // namespace screen
