// Where the jobs of the review form stand on the design screen.
//
// Margins and gaps are 120 twips. The log in view fills the left side, down to the foot of the page while it is looked
// through or emptied. Beside it the first column has what a job begins with, a log or a band to choose, and the second
// one what comes of it. The station data and the button that ends an input stand in two strips at the foot. Jobs that
// are never in view together share a place.
#pragma once

#include <initializer_list>

#include "screen/control.h"

namespace screen::review_places {

constexpr double margin = 120;
constexpr double pageTop = margin;
constexpr double pageHeight = 6060;                                 ///< down to the strips at the foot
constexpr double wholePageHeight = 8760;                            ///< for a job that has none of these strips
constexpr Rectangle log{margin, pageTop, 6720, pageHeight};         ///< wide enough for nine columns
constexpr Rectangle maratonLog{margin, pageTop, 8960, pageHeight};  ///< and for twelve
constexpr double jobLeft = 6960;                                    ///< first column of frames
constexpr double jobWidth = 2880;
constexpr double resultLeft = 9960;  ///< second column
constexpr double resultWidth = 1920;
constexpr double maratonJobLeft = 9200;  ///< the wide log leaves room for one column
constexpr double maratonJobWidth = 2680;
constexpr Rectangle archive{jobLeft, pageTop, 4920, pageHeight};
constexpr Rectangle ediPage{margin, pageTop, 11760, pageHeight};
constexpr Rectangle station{0, 6300, 12000, 2040};
constexpr Rectangle endOfInput{4000, 8460, 3240, 420};

constexpr double firstOption = 360;  ///< from the top of its frame
constexpr double optionHeight = 300;
constexpr double optionWidth = maratonJobWidth - 2 * margin;

struct OptionRow {
    OptionButton& option;
    const char* caption;
};

/// Puts the options of a frame of the first column one below the other. Returns the height of the frame that they ask
/// for.
double putOptions(std::initializer_list<OptionRow> rows);

}  // namespace screen::review_places
