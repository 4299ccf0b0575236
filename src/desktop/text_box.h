// A text box in the window: where its characters stand, and its picture.
#pragma once

#include <QString>
#include <vector>

#include "desktop/look.h"

namespace desktop {

/// The text of a box laid out in one line. A text that is too long first gets smaller, then it is scrolled so that the
/// caret is in sight.
struct TextBoxLayout {
    QRect place;
    QRectF inner;  ///< where text can stand, pixels of the window
    int fontPixels = 0;
    Face face = Face::text;
    QString text;
    std::vector<qsizetype> starts;  ///< of every character in `text`, and the end of the text
    std::vector<double> edges;      ///< left edge of every character from the start of the text, and the end of it
    double offset = 0;              ///< pixels scrolled out at the left

    /// Character in front of which the caret comes when the pointer is at this x.
    std::size_t caretAt(double x) const;
    /// x of a caret in front of this character.
    double caretX(std::size_t character) const;
};

/// `offset` is that of the last layout of the box, so that the text moves only when it must.
TextBoxLayout layOutTextBox(const app::ControlPicture& box, const FormScale& scale, Fonts& fonts, double offset);

void paintTextBox(Canvas& canvas, const app::ControlPicture& box, const TextBoxLayout& layout, bool caretShown);

}  // namespace desktop
