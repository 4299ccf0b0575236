// From the twips of a form to the pixels of the window that shows it, and back.
#pragma once

#include <QPointF>
#include <QRect>
#include <QSize>

#include "screen/control.h"

namespace desktop {

/// The form fills the client area: both axes map linearly, each by its own factor.
class FormScale {
 public:
    FormScale() = default;
    /// `width` and `height` of the form in twips, both above 0; `client` in pixels.
    FormScale(double width, double height, QSize client);

    double x(double twips) const { return twips * pixelsPerTwipX_; }
    double y(double twips) const { return twips * pixelsPerTwipY_; }
    QPointF point(double twipsX, double twipsY) const { return {x(twipsX), y(twipsY)}; }

    /// Whole pixels of a place. Neighbours that touch in twips touch in pixels.
    QRect pixels(const screen::Rectangle& place) const;

    /// The twips under a point of the window.
    QPointF twips(QPointF pixels) const { return {pixels.x() / pixelsPerTwipX_, pixels.y() / pixelsPerTwipY_}; }

    /// Pixels for a width on a screen of 12000 twips.
    double designX(double twips) const { return twips * growthX_ / 15; }

    /// Pixels of a font of `points`, which are those of a screen of 800 by 600. On a wide screen, where the boxes are
    /// wide for their height, it grows somewhat more than the height does.
    int fontPixels(double points) const;

    /// Pixels for a length on a screen 600 pixels high, at least 1.
    int designPixels(double pixels) const;

 private:
    double pixelsPerTwipX_ = 1.0 / 15;
    double pixelsPerTwipY_ = 1.0 / 15;
    double growth_ = 1;   ///< height of the window in screens of 600 pixels
    double growthX_ = 1;  ///< its width in screens of 800 pixels
    double growthOfFonts_ = 1;
};

}  // namespace desktop
