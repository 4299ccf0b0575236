// How a form puts its controls on the page: caption, text, tooltip and place in one row of a table.
#pragma once

#include <initializer_list>

#include "screen/form.h"

namespace screen {

constexpr double frameTitlePoints = 9;  ///< font of the titles of frames

struct LabelRow {
    Label& label;
    const char* caption;
    Rectangle place;
};

struct FieldRow {
    TextBox& box;
    const char* text;
    const char* toolTip;
    Rectangle place;
};

struct MenuRow {
    MenuEntry& entry;
    const char* caption;
};

struct DataRow {
    DataControl& data;
    const char* recordSource;
};

struct PlaceRow {
    Control& control;
    Rectangle place;
};

/// Gives a control its caption and its place on the design screen, in twips.
template <typename Captioned>
void put(Captioned& control, const char* caption, const Rectangle& place)
{
    control.Caption = caption;
    control.place(place.Left, place.Top, place.Width, place.Height);
}

/// Gives controls their places on the design screen, in twips.
void put(std::initializer_list<PlaceRow> rows);

/// Gives labels their captions and places.
void put(std::initializer_list<LabelRow> rows);

/// Gives text boxes their first text, tooltip and place.
void put(std::initializer_list<FieldRow> rows);

/// Gives menu entries their captions.
void put(std::initializer_list<MenuRow> rows);

/// Gives data controls the record source that stands until the first statement is assigned.
void put(std::initializer_list<DataRow> rows);

/// Sets the font of some controls: size in points, bold or not.
void setFont(std::initializer_list<Control*> controls, double points, bool bold);

/// Sets the colour behind some controls.
void setBackColor(std::initializer_list<Control*> controls, Colour colour);

/// Starts controls hidden.
void hide(std::initializer_list<Control*> controls);

/// Starts controls switched off.
void disable(std::initializer_list<Control*> controls);

/// Keeps input methods off boxes that take plain characters only.
void plainCharactersOnly(std::initializer_list<TextBox*> boxes);

/// Makes a box the place of the focus when no field shall have it: never drawn, always focusable.
void makeParkingPlace(TextBox& box);

/// Lets Tab stop at every control of the form that takes keys, in the order of the page. Parking places are left out.
void stopTabEverywhere(const Form& form);

}  // namespace screen
