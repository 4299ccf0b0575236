// Printed logs: numbered rows under a head, for the organisers who take paper.
#pragma once

#include <cstdint>

namespace review {

/// Begins the document of a log.
void beginPrintedLog();

/// The head of a page: contest, year, call, band, and the words above the columns.
void printLogHead();

/// The row of `LogRec`.
void printLogRow();

/// The row behind which the writer changes the page and prints another head. It does so once: later pages follow where
/// the printer's own end of the page puts them, without a head.
constexpr std::int16_t lastRowOfFirstPage = 45;

/// Ends the page, for another head.
void endLogPage();

/// "TOTAL", and the points at a column.
void printLogTotal(int column, std::int32_t points);

/// Ends the document.
void endPrintedLog();

}  // namespace review
