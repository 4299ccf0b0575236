#include "app/grid_view.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "base/number.h"
#include "storage/database.h"
#include "storage/schema.h"
#include "support/temporary_folder.h"

namespace {

/// A page with one grid.
struct PageForm : screen::Form {
    PageForm() : Form("Page") {}
    screen::DataControl data{this, "data"};
    screen::Grid grid{this, "grid", &data};
};

class GridViewTest : public testing::Test {
 protected:
    static constexpr std::size_t room = 10;

    GridViewTest() { storage::makeMissingDatabases(folder_.path()); }

    /// QSOs with the calls "YO" and their number in four digits, in view from the first one on.
    void showLog(int count, const std::string& statement = "SELECT * FROM Uus144a ")
    {
        const std::string log = folder_.designPath("LogKelvo.mdb");
        if (count > 0)
            storage::OpenDatabase(log).Execute(
                "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " + base::toText(count) +
                ") INSERT INTO Uus144a (Callsign) SELECT printf('YO%04d', i) FROM n");
        page_.data.DatabaseName = log;
        page_.data.RecordSource = statement;
        page_.data.Refresh();
        views_.scroll(page_.grid, 0, room);
    }

    void deleteRows(const std::string& condition)
    {
        storage::OpenDatabase(folder_.designPath("LogKelvo.mdb")).Execute("DELETE * FROM Uus144a WHERE " + condition);
    }

    const app::GridRows& inView() { return *views_.pictureOf(page_.grid)->rows; }
    void scroll(long rows) { views_.scroll(page_.grid, rows, room); }
    void drag(double place) { views_.drag(page_.grid, place, room); }

    std::vector<std::int64_t> keys()
    {
        std::vector<std::int64_t> keys;
        for (const storage::Row& row : inView().rows)
            keys.push_back(row.key);
        return keys;
    }

    /// So many rows from `first` on are in view.
    void expectRows(std::int64_t first, std::size_t count = room)
    {
        std::vector<std::int64_t> expected(count);
        for (std::size_t i = 0; i < count; ++i)
            expected[i] = first + static_cast<std::int64_t>(i);
        EXPECT_EQ(keys(), expected);
    }

    test::TemporaryFolder folder_;
    PageForm page_;
    app::GridViews views_;
};

TEST_F(GridViewTest, ThePlaceOfTheWindowIsShown)
{
    showLog(110);
    EXPECT_DOUBLE_EQ(inView().place, 0);
    scroll(25);
    expectRows(26);
    EXPECT_DOUBLE_EQ(inView().place, 0.25) << "25 of the 100 rows that the window can go down";
    scroll(74);
    EXPECT_DOUBLE_EQ(inView().place, 0.99);
    scroll(1);
    EXPECT_DOUBLE_EQ(inView().place, 1);
    scroll(-50);
    EXPECT_DOUBLE_EQ(inView().place, 0.5);
}

TEST_F(GridViewTest, TheWindowGoesToThePlaceOfTheThumb)
{
    showLog(110);
    drag(0.5);
    expectRows(51);
    EXPECT_DOUBLE_EQ(inView().place, 0.5);
    drag(0.25);
    expectRows(26);
    drag(1);
    expectRows(101);
    EXPECT_FALSE(inView().moreBelow);
    drag(0);
    expectRows(1);
    EXPECT_FALSE(inView().moreAbove);
    drag(7);
    expectRows(101);
    drag(-7);
    expectRows(1);
}

TEST_F(GridViewTest, TheWindowStaysWhereItWasDragged)
{
    showLog(110);
    drag(0.5);
    const auto before = views_.pictureOf(page_.grid);
    EXPECT_EQ(views_.pictureOf(page_.grid), before);
    scroll(1);
    expectRows(52);
    scroll(0);
    expectRows(52);
}

TEST_F(GridViewTest, EachStepOfADragIsFartherDown)
{
    for (const char* order : {"", "ORDER BY Callsign"}) {
        showLog(0, "SELECT * FROM Uus144a");
        deleteRows("ID>0");
        showLog(700, std::string("SELECT * FROM Uus144a ") + order);
        std::int64_t before = 0;
        for (int step = 0; step <= 300; ++step) {
            drag(step / 300.0);
            ASSERT_EQ(keys().size(), room);
            EXPECT_GE(keys().front(), before);
            before = keys().front();
            EXPECT_NEAR(inView().place, step / 300.0, 0.02);
        }
        EXPECT_FALSE(inView().moreBelow) << order;
    }
}

TEST_F(GridViewTest, GapsOfADeletionAreSteppedOver)
{
    showLog(110);
    deleteRows("ID>20 AND ID<91");
    showLog(0);
    drag(0.5);
    expectRows(91);  // the keys between are gone
    EXPECT_GT(inView().place, 0.8);
    drag(0.1);
    expectRows(11);
}

TEST_F(GridViewTest, WhatHasRoomHasNoPlace)
{
    for (const int count : {0, 1, static_cast<int>(room)}) {
        deleteRows("ID>0");
        showLog(count);
        for (const double place : {0.0, 0.5, 1.0}) {
            drag(place);
            EXPECT_EQ(keys().size(), static_cast<std::size_t>(count));
            EXPECT_FALSE(inView().moreAbove || inView().moreBelow);
            EXPECT_DOUBLE_EQ(inView().place, 0);
        }
    }
}

TEST_F(GridViewTest, AnUnopenedGridTakesNoDrag)
{
    drag(0.5);
    EXPECT_TRUE(inView().rows.empty());
}

TEST_F(GridViewTest, TheCurrentRowComesIntoView)
{
    showLog(110);
    page_.data.Recordset.moveTo(50);
    expectRows(41);  // at the foot
    page_.data.Recordset.moveTo(45);
    expectRows(41);  // it is there already
    page_.data.Recordset.moveTo(40);
    expectRows(40);  // one row up and no farther
    page_.data.Recordset.moveTo(5);
    expectRows(1);  // as many as there are stand before it
    page_.data.Recordset.MoveLast();
    expectRows(101);
}

TEST_F(GridViewTest, APageLeavesOneRowInView)
{
    showLog(30);
    EXPECT_EQ(views_.pageOf(page_.grid), 9);
    views_.scroll(page_.grid, 0, 1);
    EXPECT_EQ(views_.pageOf(page_.grid), 1);
}

}  // namespace
