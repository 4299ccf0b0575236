// About where a row stands in a set that nobody counts, and which row stands about there.
//
// Some places of the set are marks, with about as many rows between each two of them. Between two marks the rows are
// taken to lie evenly: by their keys, or where the marks differ in a text that the set is sorted by, by that text.
#pragma once

#include <vector>

#include "storage/row_reader.h"

namespace storage {

class PlaceScale {
 public:
    /// `marks`: at least one, in any order, the first and the last row of the set among them.
    explicit PlaceScale(std::vector<Place> marks);

    /// The share of the set that stands before a place: 0 at the first row, 1 at the last. It never falls from a place
    /// to a later one.
    double shareBefore(const Place& place) const;

    /// A place with that share before it (0 to 1), right in front of the row that stands there, if one does.
    Place placeAt(double share) const;

 private:
    std::vector<Place> marks_;
};

}  // namespace storage
