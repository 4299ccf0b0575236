#include "review/paper.h"

namespace review {

platform::Printer& paper()
{
    return platform::machine().printer;
}

void takeFont(double points)
{
    paper().setFont("Arial", points);
}

void emptyLines(int count)
{
    for (int line = 0; line < count; ++line)
        paper().endLine();
}

void printItems(std::initializer_list<PrintedItem> items)
{
    for (const PrintedItem& item : items)
        paper().print(item.column, item.text);
    paper().endLine();
}

}  // namespace review
