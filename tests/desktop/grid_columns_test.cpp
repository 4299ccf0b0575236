#include "desktop/grid_columns.h"

#include <gtest/gtest.h>

#include "test_page.h"

namespace {

using desktop::sharedWidths;
using Widths = std::vector<double>;

TEST(GridColumnsTest, ColumnsKeepTheirWidthsWhileTheirTextsFit)
{
    EXPECT_EQ(sharedWidths({60, 40, 40}, {50, 40, 10}, 200), (Widths{60, 40, 40}));
}

TEST(GridColumnsTest, FreeRoomGoesToAColumnThatNeedsIt)
{
    EXPECT_EQ(sharedWidths({60, 40, 40}, {50, 48, 10}, 150), (Widths{60, 48, 40}));
}

TEST(GridColumnsTest, ColumnsWithSpareRoomGiveWhenNoneIsFree)
{
    EXPECT_EQ(sharedWidths({60, 40, 40}, {50, 50, 30}, 140), (Widths{55, 50, 35}));
}

TEST(GridColumnsTest, AllGetNarrowerInANarrowGrid)
{
    EXPECT_EQ(sharedWidths({100, 50}, {10, 10}, 75), (Widths{50, 25}));
}

TEST(GridColumnsTest, TooLittleForAllIsSharedByNeed)
{
    const Widths widths = sharedWidths({40, 40}, {60, 60}, 100);
    EXPECT_EQ(widths, (Widths{50, 50}));
}

TEST(GridColumnsTest, ColumnsOfNoWidthAreNotSeen)
{
    test_page::Page page;
    const app::ControlPicture& grid = page.addGrid({0, 0, 6000, 3000}, 3, false, false);
    desktop::Fonts fonts;
    const auto layout = desktop::layOutColumns(grid, desktop::FormScale(12000, 9000, {800, 600}), fonts, 400, 11);
    ASSERT_EQ(layout.columns.size(), 1U);
    EXPECT_EQ(layout.columns[0].number, 1U);
    EXPECT_EQ(layout.columns[0].width, 80);
    EXPECT_EQ(layout.fontPixels, 11);
}

TEST(GridColumnsTest, ColumnsGrowWithTheWindowAsFarAsThereIsRoom)
{
    test_page::Page page;
    const app::ControlPicture& grid = page.addGrid({0, 0, 14400, 3000}, 3, false, false);
    desktop::Fonts fonts;
    // The form of a screen of 1600 by 1200 keeps the widths of one of 800.
    const desktop::FormScale scale(24000, 18000, {1600, 1200});
    const auto widthIn = [&](double room) {
        return desktop::layOutColumns(grid, scale, fonts, room, 11).columns[0].width;
    };
    EXPECT_EQ(widthIn(400), 160) << "1200 twips on a screen twice as wide";
    EXPECT_EQ(widthIn(120), 120);
    EXPECT_EQ(widthIn(70), 70);
}

TEST(GridColumnsTest, ColumnsThatNearlyFillTheRoomFillIt)
{
    test_page::Page page;
    const app::ControlPicture& grid = page.addGrid({0, 0, 6000, 3000}, 3, false, false);
    desktop::Fonts fonts;
    const desktop::FormScale scale(12000, 9000, {800, 600});
    EXPECT_EQ(desktop::layOutColumns(grid, scale, fonts, 100, 11).columns[0].width, 100);
    EXPECT_EQ(desktop::layOutColumns(grid, scale, fonts, 110, 11).columns[0].width, 80);
}

TEST(GridColumnsTest, AColumnOfWholeNumbersIsKnown)
{
    const auto isOfFigures = [](const std::vector<std::string>& texts) {
        test_page::Page page;
        app::ControlPicture& control = page.addGrid({0, 0, 6000, 3000}, 0, false, false);
        auto rows = std::make_shared<app::GridRows>();
        for (const std::string& text : texts)
            rows->rows.push_back({1, {"1", text}});
        auto grid = std::make_shared<app::GridPicture>(*control.grid);
        grid->rows = rows;
        control.grid = grid;
        desktop::Fonts fonts;
        const desktop::FormScale scale(12000, 9000, {800, 600});
        return desktop::layOutColumns(control, scale, fonts, 400, 11).columns.at(0).figures;
    };
    EXPECT_TRUE(isOfFigures({"72", "1250", "0"}));
    EXPECT_FALSE(isOfFigures({"72", "YO2ABC"}));
    EXPECT_FALSE(isOfFigures({"72", ""}));
    EXPECT_FALSE(isOfFigures({}));
}

TEST(GridColumnsTest, TheFontGetsSmallerWhenThereIsNoRoomAtAll)
{
    test_page::Page page;
    const app::ControlPicture& grid = page.addGrid({0, 0, 6000, 3000}, 3, false, false);
    desktop::Fonts fonts;
    const auto layout = desktop::layOutColumns(grid, desktop::FormScale(12000, 9000, {800, 600}), fonts, 60, 20);
    EXPECT_LT(layout.fontPixels, 20);
    EXPECT_GE(layout.fontPixels, desktop::smallestFontPixels);
}

}  // namespace
