#include "screen/placing.h"

#include <algorithm>
#include <array>

namespace screen {

namespace {

void place(Control& control, const Rectangle& at)
{
    control.place(at.Left, at.Top, at.Width, at.Height);
}

bool takesKeys(const Control& control)
{
    constexpr std::array kinds = {Kind::textBox,  Kind::commandButton, Kind::optionButton,
                                  Kind::checkBox, Kind::listBox,       Kind::grid};
    return std::find(kinds.begin(), kinds.end(), control.kind) != kinds.end();
}

bool isParkingPlace(const Control& control)
{
    return control.kind == Kind::textBox && static_cast<const TextBox&>(control).parking;
}

}  // namespace

void put(std::initializer_list<PlaceRow> rows)
{
    for (const PlaceRow& row : rows)
        place(row.control, row.place);
}

void put(std::initializer_list<LabelRow> rows)
{
    for (const LabelRow& row : rows)
        put(row.label, row.caption, row.place);
}

void put(std::initializer_list<FieldRow> rows)
{
    for (const FieldRow& row : rows) {
        row.box.Text = row.text;
        row.box.ToolTipText = row.toolTip;
        place(row.box, row.place);
    }
}

void put(std::initializer_list<MenuRow> rows)
{
    for (const MenuRow& row : rows)
        row.entry.Caption = row.caption;
}

void put(std::initializer_list<DataRow> rows)
{
    for (const DataRow& row : rows)
        row.data.RecordSource = row.recordSource;
}

void setFont(std::initializer_list<Control*> controls, double points, bool bold)
{
    for (Control* control : controls) {
        control->fontPoints = points;
        control->bold = bold;
    }
}

void setBackColor(std::initializer_list<Control*> controls, Colour colour)
{
    for (Control* control : controls)
        control->BackColor = colour;
}

void hide(std::initializer_list<Control*> controls)
{
    for (Control* control : controls)
        control->Visible = false;
}

void disable(std::initializer_list<Control*> controls)
{
    for (Control* control : controls)
        control->Enabled = false;
}

void plainCharactersOnly(std::initializer_list<TextBox*> boxes)
{
    for (TextBox* box : boxes)
        box->inputMethod = false;
}

void makeParkingPlace(TextBox& box)
{
    box.parking = true;
    box.place(0, 0, 0, 0);
}

void stopTabEverywhere(const Form& form)
{
    for (Control* control : form.controls())
        control->TabStop = takesKeys(*control) && !isParkingPlace(*control);
}

}  // namespace screen
