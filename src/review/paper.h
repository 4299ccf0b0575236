// The paper that logs and summaries are printed on, line by line.
#pragma once

#include <initializer_list>
#include <string>

#include "platform/machine.h"

namespace review {

/// The printer of this machine.
platform::Printer& paper();

/// The typeface of everything that is printed, in points.
void takeFont(double points);

void emptyLines(int count);

struct PrintedItem {
    int column;  ///< from 1
    std::string text;
};

/// One line of items, and its end.
void printItems(std::initializer_list<PrintedItem> items);

}  // namespace review
