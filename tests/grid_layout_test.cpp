// The grid set-up: one grid in view, and the width of every column.
#include "screen/grid_layout.h"

#include <gtest/gtest.h>

#include <vector>

#include "runstate/modul1.h"
#include "screen/frm_anzeigen.h"
#include "screen/frm_qso.h"

namespace {

constexpr std::uint16_t onEntryForm = 100;
constexpr std::uint16_t onReviewForm = 1000;

struct LogRow {
    const char* table;
    void (*layOut)();
    screen::Grid& entry;
    screen::Grid& review;
    std::size_t columns;
};

const LogRow logs[] = {
    {"Uus144a", screen::layOutUus144a, FrmQSO.DBGrid1, FrmAnzeigen.DBGrid1, 9},
    {"Uus144b", screen::layOutUus144b, FrmQSO.DBGrid2, FrmAnzeigen.DBGrid2, 9},
    {"Uus432a", screen::layOutUus432a, FrmQSO.DBGrid3, FrmAnzeigen.DBGrid3, 9},
    {"Uus432b", screen::layOutUus432b, FrmQSO.DBGrid4, FrmAnzeigen.DBGrid4, 9},
    {"Uus1296a", screen::layOutUus1296a, FrmQSO.DBGrid6, FrmAnzeigen.DBGrid6, 9},
    {"Uus1296b", screen::layOutUus1296b, FrmQSO.DBGrid7, FrmAnzeigen.DBGrid7, 9},
    {"UusGHz", screen::layOutUusGHz, FrmQSO.DBGrid8, FrmAnzeigen.DBGrid8, 9},
    {"UusLGYO2", screen::layOutUusLGYO2, FrmQSO.DBGrid9, FrmAnzeigen.DBGrid9, 12},
};

class GridLayout : public testing::Test {
 protected:
    void SetUp() override
    {
        Modul1 = {};
        Modul1.ScaleX = 1;
        screen::rebuild(FrmQSO, screen::FormLife::neverLoaded);
        screen::rebuild(FrmAnzeigen, screen::FormLife::neverLoaded);
    }
};

std::vector<const screen::Control*> gridsInView(const screen::Form& form)
{
    std::vector<const screen::Control*> found;
    for (const screen::Control* control : form.controls())
        if (control->kind == screen::Kind::grid && control->Visible) found.push_back(control);
    return found;
}

void expectWidths(const screen::Grid& grid, const std::vector<double>& widths)
{
    for (std::size_t column = 0; column < widths.size(); ++column)
        EXPECT_NEAR(grid.columnWidths[column], widths[column], 0.01) << grid.name << " column " << column;
}

TEST_F(GridLayout, OneGridShowsOnTheFormThatIsMeant)
{
    for (const LogRow& log : logs) {
        Modul1.GridRebuild = onEntryForm;
        log.layOut();
        EXPECT_EQ(gridsInView(FrmQSO), std::vector<const screen::Control*>{&log.entry}) << log.table;

        Modul1.GridRebuild = onReviewForm;
        log.layOut();
        EXPECT_EQ(gridsInView(FrmAnzeigen), std::vector<const screen::Control*>{&log.review}) << log.table;
        EXPECT_EQ(gridsInView(FrmQSO), std::vector<const screen::Control*>{&log.entry}) << log.table;
    }
}

TEST_F(GridLayout, WithoutAFormThatIsMeantNothingChanges)
{
    Modul1.GridRebuild = 0;
    for (const LogRow& log : logs) {
        log.layOut();
        EXPECT_EQ(log.entry.columnWidths[1], 0) << log.table;
        EXPECT_EQ(log.review.columnWidths[1], 0) << log.table;
    }
    EXPECT_TRUE(gridsInView(FrmQSO).empty());
    EXPECT_TRUE(gridsInView(FrmAnzeigen).empty());
}

TEST_F(GridLayout, TheCounterIsNeverSeenAndEveryOtherColumnIs)
{
    for (const std::uint16_t form : {onEntryForm, onReviewForm})
        for (const LogRow& log : logs) {
            screen::Grid& grid = form == onEntryForm ? log.entry : log.review;
            grid.columnWidths[0] = 700;
            Modul1.GridRebuild = form;
            log.layOut();
            EXPECT_EQ(grid.columnWidths[0], 0) << log.table;
            for (std::size_t column = 1; column <= log.columns; ++column) {
                EXPECT_GE(grid.columnWidths[column], 400) << log.table << column;
                EXPECT_LE(grid.columnWidths[column], 1100) << log.table << column;
            }
        }
}

TEST_F(GridLayout, ColumnsFitTheGridOfTheEntryForm)
{
    constexpr double scrollBar = 255;
    Modul1.GridRebuild = onEntryForm;
    FrmQSO.takeMaratonPlaces();
    for (const LogRow& log : logs) {
        log.layOut();
        double sum = 0;
        for (const double width : log.entry.columnWidths)
            sum += width;
        EXPECT_LE(sum, log.entry.Width - scrollBar) << log.table;
    }
}

TEST_F(GridLayout, Widths144OnTheReviewForm)
{
    Modul1.GridRebuild = onReviewForm;
    Modul1.ScaleX = 1.5F;  // fixed widths: the factor does not matter
    screen::layOutUus144a();
    screen::layOutUus144b();
    expectWidths(FrmAnzeigen.DBGrid1, {0, 900, 910, 600, 650, 650, 400, 600, 700, 500});
    expectWidths(FrmAnzeigen.DBGrid2, {0, 900, 910, 600, 650, 650, 400, 600, 700, 500});
}

TEST_F(GridLayout, Widths144OnTheReviewFormInContest4)
{
    Modul1.GridRebuild = onReviewForm;
    Modul1.ConcId = 4;
    Modul1.ScaleX = 1.5F;
    screen::layOutUus144a();
    expectWidths(FrmAnzeigen.DBGrid1, {0, 1200, 1215, 600, 650, 650, 400, 900, 700, 500});
}

TEST_F(GridLayout, Widths144OnTheReviewFormOfASmallScreen)
{
    Modul1.GridRebuild = onReviewForm;
    Modul1.ScaleX = 0.5F;
    screen::layOutUus144a();
    expectWidths(FrmAnzeigen.DBGrid1, {0, 500, 430, 600, 375, 375, 225, 600, 425, 500});
}

TEST_F(GridLayout, Widths144OnTheReviewFormOfASmallScreenInContest4)
{
    Modul1.GridRebuild = onReviewForm;
    Modul1.ConcId = 4;
    Modul1.ScaleX = 0.5F;
    screen::layOutUus144a();
    expectWidths(FrmAnzeigen.DBGrid1, {0, 500, 430, 600, 375, 375, 225, 300, 425, 500});
}

TEST_F(GridLayout, Widths144OnTheEntryForm)
{
    Modul1.GridRebuild = onEntryForm;
    Modul1.ScaleX = 1.5F;
    screen::layOutUus144a();
    screen::layOutUus144b();
    expectWidths(FrmQSO.DBGrid1, {0, 1350, 1365, 900, 900, 900, 900, 900, 1050, 750});
    expectWidths(FrmQSO.DBGrid2, {0, 1350, 1365, 900, 900, 900, 900, 900, 1050, 750});
}

TEST_F(GridLayout, WidthsOfTheMaraton)
{
    Modul1.ConcId = 7;
    for (const std::uint16_t form : {onEntryForm, onReviewForm}) {
        Modul1.GridRebuild = form;
        screen::layOutUusLGYO2();
    }
    expectWidths(FrmQSO.DBGrid9, {0, 900, 900, 600, 600, 600, 600, 600, 600, 600, 650, 650, 650});
    expectWidths(FrmAnzeigen.DBGrid9, {0, 900, 900, 600, 600, 600, 600, 600, 600, 600, 650, 650, 650});
}

TEST_F(GridLayout, TheLocatorMemoryShowsBothColumnsOnTheReviewFormOnly)
{
    Modul1.GridRebuild = onReviewForm;
    screen::layOutUus144a();
    Modul1.GridRebuild = onEntryForm;
    screen::layOutUus144a();
    screen::layOutQra();
    EXPECT_EQ(gridsInView(FrmAnzeigen), std::vector<const screen::Control*>{&FrmAnzeigen.DBGrid5});
    EXPECT_EQ(gridsInView(FrmQSO), std::vector<const screen::Control*>{&FrmQSO.DBGrid1});
    EXPECT_GT(FrmAnzeigen.DBGrid5.columnWidths[0], 0);
    EXPECT_GT(FrmAnzeigen.DBGrid5.columnWidths[1], 0);
}

}  // namespace
