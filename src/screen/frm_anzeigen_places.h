// Where the jobs of the review form stand on the design screen.
//
// The log in view fills the left side, down to the foot of the page while it is looked through or emptied. The frames
// of the jobs stand in two columns beside it, the station data and the button that ends an input in two strips at the
// foot. Jobs that are never in view together share a place.
#pragma once

#include "screen/control.h"

namespace screen::review_places {

constexpr double pageTop = 120;
constexpr double pageHeight = 6060;                              ///< down to the strips at the foot
constexpr double wholePageHeight = 8760;                         ///< for a job that has none of these strips
constexpr Rectangle log{120, pageTop, 6760, pageHeight};         ///< wide enough for nine columns
constexpr Rectangle maratonLog{120, pageTop, 9000, pageHeight};  ///< and for twelve
constexpr double jobLeft = 7000;                                 ///< first column of frames
constexpr double jobWidth = 2760;  ///< fits beside the wide log of the Maraton contest too
constexpr double maratonJobLeft = 9200;
constexpr double bandLeft = 9880;  ///< second column: the choice of a band
constexpr double bandWidth = 2000;
constexpr Rectangle ediPage{120, pageTop, 9640, pageHeight};
constexpr Rectangle station{0, 6300, 11880, 2040};
constexpr Rectangle endOfInput{4000, 8420, 3200, 440};

}  // namespace screen::review_places
