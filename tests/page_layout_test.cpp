// Where printed items stand on the pages.
#include "platform/page_layout.h"

#include <gtest/gtest.h>

namespace {

using platform::PageLayout;

void printLines(PageLayout& layout, int count, double points)
{
    for (int line = 0; line < count; ++line) {
        layout.place(5, 3, points);
        layout.endLine(points);
    }
}

TEST(PageLayoutTest, LinesAreCountedFromOneAndStandBelowEachOther)
{
    PageLayout layout;
    layout.place(1, 1, 10);
    EXPECT_EQ(layout.page(), 1);
    EXPECT_EQ(layout.line(), 1);
    EXPECT_DOUBLE_EQ(layout.top(), 0);
    layout.endLine(10);
    layout.place(1, 1, 10);
    EXPECT_EQ(layout.line(), 2);
    EXPECT_DOUBLE_EQ(layout.top(), 11.5);
    layout.endLine(20);
    EXPECT_DOUBLE_EQ(layout.top(), 11.5 + 23) << "as high as the font that the line ends with";
}

TEST(PageLayoutTest, AnItemWhoseColumnIsPassedGoesToTheNextLine)
{
    PageLayout layout;
    layout.place(5, 10, 10);
    layout.place(15, 1, 10);
    EXPECT_EQ(layout.line(), 1) << "the first free column";
    layout.place(15, 1, 10);
    EXPECT_EQ(layout.line(), 2);
    layout.place(16, 1, 10);
    EXPECT_EQ(layout.line(), 2);
}

TEST(PageLayoutTest, APageHasSevenHundredAndFiftyPointsOfLines)
{
    PageLayout layout;
    printLines(layout, 65, 10);  // 747.5 points
    EXPECT_EQ(layout.page(), 1);
    layout.place(5, 3, 10);
    EXPECT_EQ(layout.page(), 2);
    EXPECT_EQ(layout.line(), 1);
    EXPECT_DOUBLE_EQ(layout.top(), 0);
}

TEST(PageLayoutTest, ASmallerLineMayStillHaveRoom)
{
    PageLayout layout;
    printLines(layout, 65, 10);
    layout.place(5, 3, 2);  // 2.3 points of the 2.5 that are left
    EXPECT_EQ(layout.page(), 1);
}

TEST(PageLayoutTest, APageThatIsExactlyFullIsNotLeftBeforeTheNextLine)
{
    PageLayout layout;
    printLines(layout, 3, 200);  // 690 points
    layout.place(1, 1, 60 / 1.15);
    layout.endLine(60 / 1.15);
    EXPECT_EQ(layout.page(), 1);
    layout.endPage();
    EXPECT_EQ(layout.page(), 2) << "no empty page between";
    EXPECT_EQ(layout.line(), 1);
}

TEST(PageLayoutTest, EmptyLinesOverflowLikeOthers)
{
    PageLayout layout;
    printLines(layout, 65, 10);
    layout.endLine(10);
    EXPECT_EQ(layout.page(), 2);
    layout.place(5, 3, 10);
    EXPECT_EQ(layout.line(), 2);
}

TEST(PageLayoutTest, ALineThatWasBegunStaysOnItsPage)
{
    PageLayout layout;
    printLines(layout, 64, 10);
    layout.place(5, 3, 10);
    layout.place(20, 3, 40);
    EXPECT_EQ(layout.page(), 1);
    layout.endLine(10);
    EXPECT_EQ(layout.page(), 1);
}

TEST(PageLayoutTest, APageEndsInTheMiddleOfALine)
{
    PageLayout layout;
    layout.place(50, 3, 10);
    layout.endPage();
    layout.place(5, 3, 10);
    EXPECT_EQ(layout.page(), 2);
    EXPECT_EQ(layout.line(), 1);
}

}  // namespace
