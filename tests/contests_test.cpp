// The catalogue of contests: every name of a contest, and what choosing it does to both forms.
#include "runstate/contests.h"

#include <gtest/gtest.h>

#include <string>

#include "entry/commit.h"
#include "runstate/modul1.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"
#include "support/running_program.h"

namespace {

using screen::FrmInitForm;

struct NamesRow {
    int id;
    screen::OptionButton FrmInitForm::*button;
    const char* title;          ///< LblTypTest
    const char* restoredTitle;  ///< LblTypTest on the way back
    const char* shownName;      ///< LblConc
    const char* shortName;      ///< ConcShort
    const char* reportName;
};

constexpr NamesRow names[] = {
    {0, &FrmInitForm::OpBCampNatUUS, "Camp. Nat. UUS", "Camp.Nat.UUS", "YOVHF/UHF", "YOVHFUHF",
     "CAMPIONATELE NATIONALE UUS"},
    {1, &FrmInitForm::OpbCarpati, "Trofeul Carpati", "Trofeul Carpati", "Carpati", "Carpati", "TROFEUL CARPATI "},
    {2, &FrmInitForm::OpbCluj, "Conc.Cluj Napoca", "Conc.Cluj Napoca", "ConcCluj", "ConcCluj", "Concurs Cluj Napoca"},
    {3, &FrmInitForm::OpBFloareademina, "Floarea de mina", "Floarea de mina", "Floare", "Floare", "Floarea de mina"},
    {4, &FrmInitForm::OpbOltenia, "Oltenia 144 MHz", "Oltenia 144 MHz", "Olt144", "Oltenia", "Oltenia 144 MHz"},
    {5, &FrmInitForm::OpBConstrMas, "Constructor masini", "Constructor masini", "Masini", "Masini",
     "Constructor masini "},
    {6, &FrmInitForm::OpBTelecom, "Ziua Telecom", "Ziua Telecom", "TlcUUS", "TlcUUS", "Ziua Telecom"},
    {7, &FrmInitForm::OpBMaraton, "Lugoj Maraton", "Lugoj Maraton", "MaratonYO2", "MaratonYO2", "Lugoj Maraton"},
    {8, &FrmInitForm::OpbZPV, "Zi de vara", "Zi de vara", "ZiVara", "ZiVara", "Zi de vara"},
    {100, &FrmInitForm::OpBCampInternUUS, "Camp.Internat.UUS", "Camp.Internat.UUS", "YODxUUS", "YODxUUS",
     "Camp. Internat. UUS"},
    {101, &FrmInitForm::OpbOltenia6m, "Oltenia 6 m.", "Oltenia 6 m", "Olt6m", "Oltenia6m", "Oltenia 6 m"},
};

screen::OptionButton& buttonOf(int id)
{
    return FrmInit.*runstate::contestById(id)->button;
}

/// The entry form as a contest leaves it.
struct PageRow {
    int id;
    const char* bands;   ///< those in view; one in brackets cannot be clicked
    const char* stages;  ///< in view
    const char* modes;   ///< in view
    int band;            ///< BandCur
    const char* stage;   ///< Etapa
    const char* prompt;
    double scoreHeight;  ///< of Frame2, twips of the design screen
    int scoreRows;
};

std::string bandsInView()
{
    std::string text;
    for (const screen::CommandButton* button : {&FrmQSO.Cmd144, &FrmQSO.Cmd432, &FrmQSO.Cmd1296, &FrmQSO.CmdGHz}) {
        if (!button->Visible) continue;
        if (!text.empty()) text += ' ';
        text += button->Enabled ? button->Caption : "(" + button->Caption + ")";
    }
    return text;
}

std::string stagesInView()
{
    return std::string(FrmQSO.CmdA.Visible ? "A" : "") + (FrmQSO.CmdB.Visible ? "B" : "");
}

std::string modesInView()
{
    std::string text;
    for (const screen::CommandButton* button : {&FrmQSO.CmdSSB, &FrmQSO.CmdCW, &FrmQSO.CmdFm, &FrmQSO.CmdMixt})
        if (button->Visible) text += (text.empty() ? "" : " ") + button->Caption;
    return text;
}

struct ScoreRow {
    const screen::Label& band;
    const screen::Label& points;
    const screen::Label& qsos;
};

void expectScoreRows(int count)
{
    const ScoreRow rows[] = {
        {FrmQSO.LblBand, FrmQSO.LblPkt, FrmQSO.LblQSO},
        {FrmQSO.LblBand1, FrmQSO.LblPkt1, FrmQSO.LblQSO1},
        {FrmQSO.LblBand2, FrmQSO.LblPkt2, FrmQSO.LblQSO2},
        {FrmQSO.LblBand3, FrmQSO.LblPkt3, FrmQSO.LblQSO3},
    };
    int row = 0;
    for (const ScoreRow& labels : rows) {
        EXPECT_EQ(labels.band.Visible, row < count) << row;
        EXPECT_EQ(labels.points.Visible, row < count) << row;
        EXPECT_EQ(labels.qsos.Visible, row < count) << row;
        ++row;
    }
}

void expectPage(const PageRow& page)
{
    EXPECT_EQ(bandsInView(), page.bands);
    EXPECT_EQ(stagesInView(), page.stages);
    EXPECT_EQ(modesInView(), page.modes);
    EXPECT_EQ(Modul1.BandCur, page.band);
    EXPECT_EQ(Modul1.Etapa, page.stage);
    EXPECT_EQ(FrmQSO.LblAnunt.Caption, page.prompt);
    EXPECT_DOUBLE_EQ(FrmQSO.Frame2.design.Height, page.scoreHeight);
    EXPECT_TRUE(FrmQSO.Lbl144.Visible);
    expectScoreRows(page.scoreRows);
}

/// The names in the exchange, and room for them.
void expectNames(bool exchanged)
{
    EXPECT_EQ(FrmQSO.TxtMyName.Visible, exchanged);
    EXPECT_EQ(FrmQSO.TxtYourName.Visible, exchanged);
    EXPECT_EQ(FrmQSO.LblRSTe.Caption, exchanged ? "RSTS CODS QTHLocS  NameS" : "RSTS CODS QTHLOCS");
    EXPECT_EQ(FrmQSO.LblRSTR.Caption, exchanged ? "   RSTR CODR QTHLocR  NameR" : "      RSTR CODR QTHLOCR");
    EXPECT_EQ(FrmQSO.TxtYourName.Top == FrmQSO.TxtRSTr3.Top, exchanged) << "in one row with the report";
}

class Contests : public testing::Test {
 protected:
    /// A fresh run, and a click on the contest.
    void choose(int id)
    {
        program.restart();
        program.click(buttonOf(id));
    }

    /// A fresh run up to the entry form.
    void enter(int id)
    {
        choose(id);
        program.click(FrmInit.OpbTest);
        FrmInit.TxtMyName.Text = "ION";
        FrmInit.txtMyQRA.Text = "KN05OS";
        program.click(FrmInit.mnuQSOfahren);
    }

    void writeStation(const std::string& serial)
    {
        test::writeFile(
            program.folder() / "KelvoInit.dat",
            "YO2XYZ\r\nKN05OS\r\n2\r\n " + serial + " \r\n\r\n\r\n 0 \r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\nION\r\n");
    }

    test::RunningProgram program;
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

constexpr const char* threeModes = "SSB CW Fm";
constexpr const char* fourModes = "SSB CW Fm Mixt";
constexpr const char* pickBand = "SELECT MOD SI BANDA";
constexpr const char* pickStage = "SELECT MOD SI ETAPA";

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

TEST_F(Contests, SetUpAnEntryFormThatIsLoadedAgain)
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

const char* restoredTitle(int id)
{
    for (const NamesRow& row : names)
        if (row.id == id) return row.restoredTitle;
    return "";
}

TEST_F(Contests, AreRestoredOnTheWayBack)
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

TEST_F(Contests, OfOneBandComeBackToIt)
{
    for (const NamesRow& row : names) {
        SCOPED_TRACE(row.id);
        enter(row.id);
        Modul1.BandCur = 0;
        program.click(FrmQSO.mnuAnfang);
        EXPECT_EQ(Modul1.BandCur, row.id == 1 || row.id == 4 || row.id == 6 ? 144 : 0);
    }
}

TEST_F(Contests, WithoutMixtKeepItHiddenOnTheWayBack)
{
    enter(6);
    FrmQSO.CmdMixt.Visible = true;
    program.click(FrmQSO.mnuAnfang);
    EXPECT_FALSE(FrmQSO.CmdMixt.Visible);
    enter(8);
    program.click(FrmQSO.mnuAnfang);
    EXPECT_TRUE(FrmQSO.CmdMixt.Visible);
}

TEST_F(Contests, AreLeftByTheEndOfTheRunOnly)
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
