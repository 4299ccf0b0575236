// How the forms follow the size of the screen.
//
// Every control has a place on the design screen of 12000 by 9000 twips. Left and Width are multiplied by ScaleX of the
// run state, Top and Height by ScaleY; fonts stay. Scaling starts from the design place each time, so doing it twice is
// doing it once.
#pragma once

#include "screen/form.h"

namespace screen {

/// Gives a form the size of the screen, and works out the factors from it.
void fillScreen(Form& form);

/// Puts every control of the form where its design place lies at the present factors. The ends of lines are set by
/// whoever draws them and stay.
void scaleForm(Form& form);

/// Gives a control another height on the design screen, in twips, and shows it so at the present factor.
void setDesignHeight(Control& control, double height);

/// The same with its width.
void setDesignWidth(Control& control, double width);

/// The same with its distance from the upper edge of what holds it.
void setDesignTop(Control& control, double top);

namespace init {

/// Scales the set-up page to a screen lower than the design screen.
void MForm();

/// Scales the set-up page to the design screen or a larger one.
void MFormMare();

}  // namespace init

namespace qso {

/// Scales the entry form to a screen lower than the design screen.
void MForm();

/// Scales the entry form to the design screen or a larger one.
void MFormMare();

}  // namespace qso

}  // namespace screen
