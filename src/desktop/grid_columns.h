// How wide the columns of a grid are in the window.
#pragma once

#include <cstddef>
#include <vector>

#include "app/picture.h"
#include "desktop/fonts.h"
#include "desktop/form_scale.h"

namespace desktop {

struct GridColumn {
    std::size_t number = 0;  ///< column of the record set
    double width = 0;        ///< pixels
    bool figures = false;    ///< nothing but whole numbers are in view: they stand at the right
};

struct GridColumns {
    std::vector<GridColumn> columns;  ///< those that are seen, side by side
    int fontPixels = 0;               ///< at which what is in view fits
};

/// Room on both sides of a text in its cell, pixels.
constexpr double cellMargin = 3;

/// Shares out `room` pixels. Every column gets the width that the form gives it, and in a larger window as much more as
/// there is room for, up to what it would have if the form grew with the window. When they nearly fill the room then,
/// they fill it. One whose texts need more takes it from free room first, then from columns that have more than they
/// need. When all that is not enough, the font gets smaller than `wantedFontPixels`.
GridColumns layOutColumns(const app::ControlPicture& grid, const FormScale& scale, Fonts& fonts, double room,
                          int wantedFontPixels);

/// The sharing alone: widths by what columns have and need, in pixels.
std::vector<double> sharedWidths(std::vector<double> widths, const std::vector<double>& needs, double room);

}  // namespace desktop
