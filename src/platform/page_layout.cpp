#include "platform/page_layout.h"

namespace platform {

namespace {

constexpr double pagePoints = 750;
constexpr double lineHeight = 1.15;

}  // namespace

void PageLayout::place(int column, std::size_t columns, double fontPoints)
{
    if (column < nextColumn_) endLine(fontPoints);
    makeRoom(fontPoints);
    nextColumn_ = column + static_cast<int>(columns);
}

void PageLayout::endLine(double fontPoints)
{
    makeRoom(fontPoints);
    top_ += lineHeight * fontPoints;
    ++line_;
    nextColumn_ = 1;
}

void PageLayout::endPage()
{
    ++page_;
    line_ = 1;
    top_ = 0;
    nextColumn_ = 1;
}

void PageLayout::makeRoom(double fontPoints)
{
    const bool lineBegun = nextColumn_ > 1;
    if (!lineBegun && top_ + lineHeight * fontPoints > pagePoints) endPage();
}

}  // namespace platform
