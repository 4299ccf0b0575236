// Where printed items stand on the pages of a document: lines of 1.15 times the size of the font, 750 points of them a
// page.
#pragma once

#include <string>

namespace platform {

class PageLayout {
 public:
    int page() const { return page_; }
    /// Line on the page, from 1.
    int line() const { return line_; }
    /// Top of the line, in points from the first line of the page.
    double top() const { return top_; }

    /// Room for an item of `columns` characters at a column: goes to the next line when the column is passed already,
    /// and to the next page when the page is full. Lines are as high as the font that they end with.
    void place(int column, std::size_t columns, double fontPoints);

    void endLine(double fontPoints);
    void endPage();

 private:
    void makeRoom(double fontPoints);

    int page_ = 1;
    int line_ = 1;
    double top_ = 0;
    int nextColumn_ = 1;  ///< the first that is free on the line
};

}  // namespace platform
