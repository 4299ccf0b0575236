// Coming back to a contest: the entry form loaded again, and the set-up page in the middle of a run.
#include <gtest/gtest.h>

#include <string>

#include "runstate/modul1.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"
#include "support/contest_pages.h"

namespace {

using ContestReturn = test::ContestChoice;
using test::expectNames;
using test::expectPage;
using test::fourModes;
using test::PageRow;
using test::pickBand;
using test::threeModes;

// ---- The entry form loaded again

constexpr PageRow pagesLoadedAgain[] = {
    //   bands               stages modes       band stage prompt                   score
    {0, "144 432 1296", "", threeModes, 432, "", "Select  BAND and MODE", 1455, 2},
    {1, "(144)", "AB", fourModes, 144, "", "SELECT MODE SI ETAPA", 1455, 2},
    {2, "144 432 1296", "", threeModes, 432, "", pickBand, 1815, 3},
    {3, "144 432 1296", "", threeModes, 432, "", pickBand, 1815, 3},
    {4, "(144)", "", threeModes, 144, "A", "SELECT MODE ", 1455, 1},
    {5, "144 432 1296", "", threeModes, 432, "", pickBand, 1815, 3},
    {6, "(144)", "AB", threeModes, 144, "", "SELECT MODE SI ETAPA", 1455, 2},
    {7, "144 432 1296", "", threeModes, 432, "", "Select  BAND and MODE", 1815, 3},
    {8, "144 432 1296", "", threeModes, 432, "", pickBand, 1815, 3},
    {100, "144 432 1296 GHz", "", fourModes, 432, "", pickBand, 2215, 4},
    {101, "(6m)", "", threeModes, 144, "A", "SELECT MODE ", 1455, 1},
};

TEST_F(ContestReturn, SetUpAnEntryFormThatIsLoadedAgain)
{
    for (const PageRow& page : pagesLoadedAgain) {
        SCOPED_TRACE(page.id);
        enter(page.id);
        Modul1.BandCur = 432;
        const std::string shownName = FrmQSO.LblConc.Caption;
        FrmQSO.Unload();
        screen::load(FrmQSO);
        expectPage(page);
        expectNames(page.id == 7);
        EXPECT_EQ(FrmQSO.LblConc.Caption, shownName);
        EXPECT_FALSE(FrmQSO.Visible);
    }
}

// ---- The way back to the set-up page

struct WayBackRow {
    int id;
    int band;
    const char* serial;  ///< TxtRpNr; nullptr when it is hidden
};

constexpr WayBackRow waysBack[] = {
    {0, 144, "011"},   {0, 432, "011"},   {0, 1296, "011"},   {1, 144, "011"},    {2, 144, "011"},
    {2, 432, "022"},   {2, 1296, "033"},  {3, 144, "011"},    {3, 432, "011"},    {3, 1296, "011"},
    {4, 144, "011"},   {5, 144, "011"},   {5, 432, "022"},    {5, 1296, "033"},   {6, 144, "011"},
    {7, 144, nullptr}, {7, 432, nullptr}, {8, 144, "011"},    {8, 432, "022"},    {8, 1296, "033"},
    {100, 144, "011"}, {100, 432, "011"}, {100, 1296, "011"}, {100, 2320, "011"}, {101, 144, "011"},
};

struct TitleRow {
    int id;
    const char* title;  ///< LblTypTest
};

constexpr TitleRow titles[] = {
    {0, "Camp.Nat.UUS"},    {1, "Trofeul Carpati"},     {2, "Conc.Cluj Napoca"}, {3, "Floarea de mina"},
    {4, "Oltenia 144 MHz"}, {5, "Constructor masini"},  {6, "Ziua Telecom"},     {7, "Lugoj Maraton"},
    {8, "Zi de vara"},      {100, "Camp.Internat.UUS"}, {101, "Oltenia 6 m"},
};

const char* restoredTitle(int id)
{
    for (const TitleRow& row : titles)
        if (row.id == id) return row.title;
    return "";
}

TEST_F(ContestReturn, AreRestoredOnTheWayBack)
{
    for (const WayBackRow& row : waysBack) {
        SCOPED_TRACE(std::to_string(row.id) + " on " + std::to_string(row.band));
        enter(row.id);
        Modul1.BandCur = row.band;
        FrmQSO.LblCod.Caption = "011";
        FrmQSO.LblCod432.Caption = "022";
        FrmQSO.LblCod1296.Caption = "033";
        FrmQSO.LblCodGhz.Caption = "044";
        const std::string shownName = FrmQSO.LblConc.Caption;
        const std::string shortName = Modul1.ConcShort;
        program.click(FrmQSO.mnuAnfang);

        EXPECT_TRUE(FrmInit.Visible);
        EXPECT_FALSE(FrmQSO.Visible);
        EXPECT_EQ(Modul1.ConcReturn, 100);
        EXPECT_EQ(Modul1.ConcId, row.id);
        EXPECT_EQ(FrmInit.LblTypTest.Caption, restoredTitle(row.id));
        EXPECT_FALSE(FrmInit.FrmConcurs.Visible);
        EXPECT_FALSE(FrmInit.FraConcurs.Visible);
        EXPECT_EQ(FrmInit.TxtRpNr.Visible, row.serial != nullptr);
        EXPECT_EQ(FrmInit.LblRpNr.Visible, row.serial != nullptr);
        EXPECT_EQ(FrmInit.TxtRpNr.Text, row.serial != nullptr ? row.serial : FrmInit.TxtRpNr.Text.get());
        const bool namesExchanged = row.id == 7;
        EXPECT_EQ(FrmInit.TxtMyName.Visible, namesExchanged);
        EXPECT_EQ(FrmInit.LblMyName.Visible, namesExchanged);
        EXPECT_EQ(FrmInit.ActiveControl, namesExchanged ? &FrmInit.TxtMyName : &FrmInit.TxtRpNr);
        EXPECT_EQ(FrmQSO.LblMixt.Visible, row.id != 6);
        EXPECT_EQ(FrmQSO.LblConc.Caption, shownName);
        EXPECT_EQ(Modul1.ConcShort, shortName);
    }
}

TEST_F(ContestReturn, OfOneBandComeBackToIt)
{
    for (const TitleRow& row : titles) {
        SCOPED_TRACE(row.id);
        enter(row.id);
        Modul1.BandCur = 0;
        program.click(FrmQSO.mnuAnfang);
        EXPECT_EQ(Modul1.BandCur, row.id == 1 || row.id == 4 || row.id == 6 ? 144 : 0);
    }
}

TEST_F(ContestReturn, WithoutMixtKeepItHiddenOnTheWayBack)
{
    enter(6);
    FrmQSO.CmdMixt.Visible = true;
    program.click(FrmQSO.mnuAnfang);
    EXPECT_FALSE(FrmQSO.CmdMixt.Visible);
    enter(8);
    program.click(FrmQSO.mnuAnfang);
    EXPECT_TRUE(FrmQSO.CmdMixt.Visible);
}

TEST_F(ContestReturn, AreLeftByTheEndOfTheRunOnly)
{
    enter(4);
    program.click(FrmQSO.mnuAnfang);
    program.click(FrmInit.OpBCampInternUUS);
    EXPECT_EQ(Modul1.ConcId, 4);
    program.restart();
    EXPECT_EQ(Modul1.ConcId, 0);
    EXPECT_EQ(Modul1.BandCur, 0);
    EXPECT_TRUE(FrmInit.FrmConcurs.Visible);
    EXPECT_FALSE(FrmInit.FraConcurs.Visible);
}

}  // namespace
