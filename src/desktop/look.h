// Colours of the window, and what all painters share.
#pragma once

#include <QColor>
#include <QPainter>
#include <QPalette>

#include "app/picture.h"
#include "desktop/fonts.h"
#include "desktop/form_scale.h"

namespace desktop {

/// What a painter paints with.
struct Canvas {
    QPainter& painter;
    const FormScale& scale;
    Fonts& fonts;
};

QColor toolkitColour(screen::Colour colour);

/// Behind all controls.
QColor formColour();
/// Around the control that has the focus.
QColor focusColour();
/// Behind selected text and the chosen item of a list; the text upon it.
QColor selectionColour();
QColor selectedTextColour();
/// Behind the row on which a grid stands.
QColor currentRowColour();
/// Lines around things, around frames and what is off, and between the parts of a thing.
QColor edgeColour();
QColor frameColour();
QColor faintLineColour();
/// Upon which buttons stand out from the form; whatever the program has coloured keeps its colour.
QColor faceColourOf(const app::ControlPicture& button);

/// The colours of menus and boxes: those of the desktop, but what is off keeps enough contrast to be read.
QPalette readable(QPalette colours);

/// Gives the application the style of its menus and boxes, and these colours.
void styleApplication();

/// The colour of the control's text: greyed when the control is off, but with enough contrast to its own background.
QColor textColourOf(const app::ControlPicture& control);

/// The frame around a control that has the focus: dark outside and white inside, to be seen on every ground.
void paintFocus(Canvas& canvas, const QRect& place);
/// Pixels that it takes on each side.
int focusThickness(const FormScale& scale);

/// Text in a box, at most `wanted` pixels high and as much smaller as the box asks for.
void paintFittedText(Canvas& canvas, const QRectF& box, const QString& text, int wanted, bool bold, int flags);

}  // namespace desktop
