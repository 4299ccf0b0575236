// The catalogue of contests: every name of a contest, and what choosing it does to both forms.
#include "runstate/contests.h"

#include <gtest/gtest.h>

#include <string>

#include "entry/commit.h"
#include "runstate/modul1.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"
#include "support/contest_pages.h"

namespace {

using Contests = test::ContestChoice;
using screen::FrmInitForm;
using test::bandsInView;
using test::buttonOf;
using test::expectNames;
using test::expectPage;
using test::expectScoreRows;
using test::fourModes;
using test::PageRow;
using test::pickBand;
using test::pickStage;
using test::threeModes;

struct NamesRow {
    int id;
    screen::OptionButton FrmInitForm::*button;
    const char* title;      ///< LblTypTest
    const char* shownName;  ///< LblConc
    const char* shortName;  ///< ConcShort
    const char* reportName;
};

constexpr NamesRow names[] = {
    {0, &FrmInitForm::OpBCampNatUUS, "Camp. Nat. UUS", "YOVHF/UHF", "YOVHFUHF", "CAMPIONATELE NATIONALE UUS"},
    {1, &FrmInitForm::OpbCarpati, "Trofeul Carpati", "Carpati", "Carpati", "TROFEUL CARPATI "},
    {2, &FrmInitForm::OpbCluj, "Conc.Cluj Napoca", "ConcCluj", "ConcCluj", "Concurs Cluj Napoca"},
    {3, &FrmInitForm::OpBFloareademina, "Floarea de mina", "Floare", "Floare", "Floarea de mina"},
    {4, &FrmInitForm::OpbOltenia, "Oltenia 144 MHz", "Olt144", "Oltenia", "Oltenia 144 MHz"},
    {5, &FrmInitForm::OpBConstrMas, "Constructor masini", "Masini", "Masini", "Constructor masini "},
    {6, &FrmInitForm::OpBTelecom, "Ziua Telecom", "TlcUUS", "TlcUUS", "Ziua Telecom"},
    {7, &FrmInitForm::OpBMaraton, "Lugoj Maraton", "MaratonYO2", "MaratonYO2", "Lugoj Maraton"},
    {8, &FrmInitForm::OpbZPV, "Zi de vara", "ZiVara", "ZiVara", "Zi de vara"},
    {100, &FrmInitForm::OpBCampInternUUS, "Camp.Internat.UUS", "YODxUUS", "YODxUUS", "Camp. Internat. UUS"},
    {101, &FrmInitForm::OpbOltenia6m, "Oltenia 6 m.", "Olt6m", "Oltenia6m", "Oltenia 6 m"},
};

TEST_F(Contests, AreEleven)
{
    EXPECT_EQ(runstate::contests().size(), std::size(names));
    for (const int id : {-1, 9, 10, 99, 102, 1000})
        EXPECT_EQ(runstate::contestById(id), nullptr) << id;
}

TEST_F(Contests, WriteTheirNames)
{
    for (const NamesRow& row : names) {
        SCOPED_TRACE(row.id);
        choose(row.id);
        EXPECT_EQ(&(FrmInit.*row.button), &buttonOf(row.id));
        EXPECT_EQ(Modul1.ConcId, row.id);
        EXPECT_EQ(FrmInit.LblTypTest.Caption, row.title);
        EXPECT_EQ(FrmQSO.LblConc.Caption, row.shownName);
        EXPECT_EQ(Modul1.ConcShort, row.shortName);
    }
}

TEST_F(Contests, HaveANameInReports)
{
    for (const NamesRow& row : names)
        EXPECT_EQ(runstate::NameConcurs(row.id), row.reportName) << row.id;
    for (const int id : {9, 99, 102})
        EXPECT_EQ(runstate::NameConcurs(id), "") << id;
}

TEST_F(Contests, ClickedAskForTheOperatingMode)
{
    for (const NamesRow& row : names) {
        SCOPED_TRACE(row.id);
        choose(row.id);
        EXPECT_FALSE(FrmInit.FrmConcurs.Visible);
        EXPECT_TRUE(FrmInit.FraConcurs.Visible);
        EXPECT_EQ(Modul1.ConcReturn, 0);
        EXPECT_FALSE(program.box());
    }
}

constexpr PageRow pages[] = {
    //   bands               stages modes       band stage prompt                   score
    {0, "144 432 1296", "AB", threeModes, 0, "", pickBand, 1455, 2},
    {1, "(144)", "AB", fourModes, 144, "", pickStage, 1455, 2},
    {2, "144 432 1296", "", threeModes, 0, "", pickBand, 1815, 3},
    {3, "144 432 1296", "", threeModes, 0, "", pickBand, 1815, 3},
    {4, "(144)", "", threeModes, 144, "A", "SELECT MOD ", 1455, 1},
    {5, "144 432 1296", "", threeModes, 0, "", pickBand, 1815, 3},
    {6, "(144)", "AB", threeModes, 144, "", pickStage, 1455, 2},
    {7, "144 432 1296", "", threeModes, 0, "", "Select  BAND and MODE", 1815, 3},
    {8, "144 432 1296", "", fourModes, 0, "", pickBand, 1815, 3},
    {100, "144 432 1296 GHz", "", fourModes, 0, "", pickBand, 2215, 4},
    {101, "(6m)", "", fourModes, 144, "A", "SELECT MOD ", 1455, 1},
};

TEST_F(Contests, SetUpTheEntryForm)
{
    for (const PageRow& page : pages) {
        SCOPED_TRACE(page.id);
        choose(page.id);
        expectPage(page);
        EXPECT_TRUE(FrmQSO.LblAnunt.Visible) << "the entry is closed until all is chosen";
        EXPECT_FALSE(FrmQSO.txtIndic.Enabled);
    }
}

TEST_F(Contests, OfOneBandHaveOneRowOfTheScore)
{
    const struct {
        int id;
        const char* band;
    } rows[] = {{4, "144"}, {101, "6"}};
    for (const auto& row : rows) {
        choose(row.id);
        EXPECT_EQ(FrmQSO.LblBandCol.Caption, "Bnd") << row.id;
        EXPECT_EQ(FrmQSO.LblBand.Caption, row.band) << row.id;
        enter(row.id);
        program.click(FrmQSO.CmdSSB);
        EXPECT_EQ(FrmQSO.LblBand.Caption, row.band) << row.id << " at work";
        expectScoreRows(1);
    }
}

TEST_F(Contests, ScaleTheScoreWithTheScreen)
{
    const struct {
        platform::ScreenSize screen;
        double height;
    } rows[] = {{{640, 480}, 1815 * 0.8F}, {{800, 600}, 1815}, {{1600, 1200}, 1815 * 2}};
    for (const auto& row : rows) {
        test::RunningProgram onScreen(row.screen);
        onScreen.click(FrmInit.OpBFloareademina);
        EXPECT_NEAR(FrmQSO.Frame2.Height, row.height, 0.01) << row.screen.width;
    }
}

TEST_F(Contests, PresetTheSerial)
{
    writeStation("12");
    for (const NamesRow& row : names) {
        SCOPED_TRACE(row.id);
        choose(row.id);
        EXPECT_EQ(FrmInit.TxtRpNr.Text, row.id == 1 || row.id == 7 ? "12" : "000");
        EXPECT_FALSE(FrmInit.TxtRpNr.Visible);
        EXPECT_FALSE(FrmInit.LblRpNr.Visible);
    }
}

TEST_F(Contests, CarryTheSerialToTheEntryForm)
{
    const struct {
        int id;
        const char* on144;
        const char* on432;
        const char* on1296;
    } rows[] = {
        {1, "012", "000", "000"}, {2, "034", "034", "034"}, {3, "034", "000", "000"},
        {5, "034", "034", "034"}, {8, "034", "034", "034"}, {100, "034", "034", "034"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.id);
        writeStation("12");
        choose(row.id);
        EXPECT_EQ(FrmInit.TxtRpNr.Text, row.id == 1 ? "12" : "000");
        if (row.id != 1) FrmInit.TxtRpNr.Text = "34";
        program.click(FrmInit.mnuQSOfahren);
        EXPECT_EQ(FrmQSO.LblCod.Caption, row.on144);
        EXPECT_EQ(FrmQSO.LblCod432.Caption, row.on432);
        EXPECT_EQ(FrmQSO.LblCod1296.Caption, row.on1296);
    }
}

TEST_F(Contests, OfNamesShowThem)
{
    for (const NamesRow& row : names) {
        SCOPED_TRACE(row.id);
        choose(row.id);
        EXPECT_EQ(FrmInit.TxtMyName.Visible, row.id == 7);
        EXPECT_EQ(FrmInit.LblMyName.Visible, row.id == 7);
        expectNames(row.id == 7);
    }
}

TEST_F(Contests, OfNamesGiveThatFieldTheFocus)
{
    choose(7);
    EXPECT_EQ(FrmInit.ActiveControl, &FrmInit.TxtMyName);
}

TEST_F(Contests, OfNamesPutTheReportsReceivedIntoOneRow)
{
    choose(7);
    const screen::TextBox* row[] = {&FrmQSO.TxtRSTR1, &FrmQSO.TxtRSTR2, &FrmQSO.TxtRSTr3, &FrmQSO.TxtYourName};
    for (std::size_t i = 1; i < std::size(row); ++i) {
        EXPECT_EQ(row[i]->Top, row[0]->Top) << row[i]->name;
        EXPECT_GE(row[i]->Left, row[i - 1]->Left + row[i - 1]->Width) << row[i]->name;
    }
}

TEST_F(Contests, ClickedOneOverTheOtherUndoNothing)
{
    program.restart();
    runstate::OpbOltenia6m_Click();
    runstate::OpBCampNatUUS_Click();
    EXPECT_EQ(Modul1.ConcId, 0);
    EXPECT_EQ(FrmInit.LblTypTest.Caption, "Camp. Nat. UUS");
    expectPage({0, "(6m)", "AB", fourModes, 144, "A", pickBand, 1455, 1});
    runstate::OpBCampInternUUS_Click();
    EXPECT_EQ(bandsInView(), "6m 432 1296 GHz");
    runstate::OpbZPV_Click();
    EXPECT_EQ(bandsInView(), "6m 432 1296") << "this one takes the microwaves away itself";
}

TEST_F(Contests, AreChosenOnceARun)
{
    choose(4);
    program.click(FrmInit.OpBCampInternUUS);
    EXPECT_EQ(Modul1.ConcId, 4) << "the frame with the buttons is gone";
}

// ---- The operating mode

TEST_F(Contests, InEarnestTeachTheLocatorMemory)
{
    choose(3);
    program.click(FrmInit.OpbConcurs);
    EXPECT_FALSE(FrmInit.FraConcurs.Visible);
    EXPECT_EQ(Modul1.QraMemOn, 100);
    const auto box = program.box();
    ASSERT_TRUE(box);
    EXPECT_EQ(box->request.text,
              "Inainte de incepere verificati daca tabelele LOG necesare concursului dorit sint goale !");
    EXPECT_EQ(box->request.style, 48);
    EXPECT_EQ(box->request.title, "");
    EXPECT_FALSE(program.box());
}

TEST_F(Contests, ForTrainingLeaveTheLocatorMemory)
{
    choose(3);
    Modul1.QraMemOn = 100;
    program.click(FrmInit.OpbTest);
    EXPECT_FALSE(FrmInit.FraConcurs.Visible);
    EXPECT_EQ(Modul1.QraMemOn, 0);
    EXPECT_FALSE(program.box());
}

// ---- To the first QSO

TEST_F(Contests, NoneChosenRunsByTheRulesOfTheChampionship)
{
    program.click(FrmInit.mnuQSOfahren);
    EXPECT_TRUE(FrmQSO.Visible);
    EXPECT_EQ(Modul1.ConcId, 0);
    EXPECT_EQ(Modul1.ConcShort, "");
    EXPECT_EQ(FrmQSO.LblConc.Caption, "");
    expectPage({0, "144 432 1296", "", threeModes, 0, "", "Select  BAND and MODE", 1455, 2});
    EXPECT_TRUE(FrmQSO.LblAnunt.Visible);
}

/// What is still to be clicked before the first call can be typed.
struct ChoicesRow {
    int id;
    std::initializer_list<screen::Control*> missing;
};

TEST_F(Contests, OpenTheEntryBehindTheLastChoice)
{
    const ChoicesRow rows[] = {
        {0, {&FrmQSO.Cmd144, &FrmQSO.CmdA, &FrmQSO.CmdCW}},
        {0, {&FrmQSO.Cmd1296, &FrmQSO.CmdB, &FrmQSO.CmdSSB}},
        {1, {&FrmQSO.CmdB, &FrmQSO.CmdMixt}},
        {1, {&FrmQSO.CmdCW, &FrmQSO.CmdA}},
        {2, {&FrmQSO.Cmd432, &FrmQSO.CmdCW}},
        {3, {&FrmQSO.CmdFm, &FrmQSO.Cmd1296}},
        {4, {&FrmQSO.CmdSSB}},
        {5, {&FrmQSO.Cmd144, &FrmQSO.CmdCW}},
        {6, {&FrmQSO.CmdA, &FrmQSO.CmdFm}},
        {7, {&FrmQSO.Cmd144, &FrmQSO.CmdSSB}},
        {8, {&FrmQSO.Cmd432, &FrmQSO.CmdMixt}},
        {100, {&FrmQSO.Cmd144, &FrmQSO.CmdMixt}},
        {101, {&FrmQSO.CmdMixt}},
    };
    for (const ChoicesRow& row : rows) {
        SCOPED_TRACE(std::to_string(row.id) + " " + (*row.missing.begin())->name);
        enter(row.id);
        for (screen::Control* choice : row.missing) {
            EXPECT_FALSE(FrmQSO.txtIndic.Enabled) << "before " << choice->name;
            program.click(*choice);
        }
        EXPECT_TRUE(FrmQSO.txtIndic.Enabled);
        EXPECT_FALSE(FrmQSO.LblAnunt.Visible);
    }
}

TEST_F(Contests, OfRomaniaBeginEachCall)
{
    for (const NamesRow& row : names) {
        SCOPED_TRACE(row.id);
        enter(row.id);
        const bool romanian = row.id == 0 || row.id == 1 || row.id == 6 || row.id == 7;
        FrmQSO.txtIndic.Enabled = true;
        FrmQSO.txtIndic.Text = "LZ1";
        FrmQSO.TxtRez.SetFocus();
        entry::YoIn();
        EXPECT_EQ(FrmQSO.txtIndic.Text, romanian ? "YO" : "LZ1");
        EXPECT_EQ(FrmQSO.txtIndic.SelStart, romanian ? 2U : 0U);
        EXPECT_EQ(FrmQSO.ActiveControl, &FrmQSO.txtIndic);
    }
}

TEST_F(Contests, OfTheWorldLeaveAClosedFieldAlone)
{
    enter(3);
    FrmQSO.TxtRez.SetFocus();
    entry::YoIn();
    EXPECT_EQ(FrmQSO.ActiveControl, &FrmQSO.TxtRez);
}

}  // namespace
