// The review form when it is loaded, and what each contest leaves of it.
#include "review/page.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "screen/frm_anzeigen.h"
#include "screen/mnemonic.h"
#include "support/contest_pages.h"

namespace {

class ReviewPage : public test::ContestChoice {
 protected:
    /// A fresh run, the contest chosen, and the review form on the screen.
    void open(int id)
    {
        choose(id);
        program.click(FrmInit.OpbTest);
        program.click(FrmInit.mnuLOG);
        ASSERT_EQ(screen::activeForm(), &FrmAnzeigen);
    }
};

/// The buttons of a frame as they are read from top to bottom, those that are taken away as "-".
std::string buttonsOf(const screen::Frame& frame)
{
    std::string text;
    for (const screen::Control* control : FrmAnzeigen.controls()) {
        if (control->container != &frame || control->kind != screen::Kind::optionButton) continue;
        if (!text.empty()) text += " | ";
        text += control->Visible ? screen::captionOf(*control) : "-";
    }
    return text;
}

constexpr int allContests[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 100, 101};

struct FrameRow {
    int id;
    const char* buttons;
    double height;  ///< twips of the design screen
    double width = 2880;
};

void expectFrame(const screen::Frame& frame, const FrameRow& row)
{
    EXPECT_EQ(buttonsOf(frame), row.buttons);
    EXPECT_EQ(frame.Height, row.height);
    EXPECT_EQ(frame.Width, row.width);
}

TEST_F(ReviewPage, OffersTheLogsOfTheContestToView)
{
    const char* const threeBands = "Log 144a | - | Log 432a | - | Log 1296a | - |  &QRA Loc";
    const FrameRow rows[] = {
        {0, "Log 144a | Log 144b | Log 432a | Log 432b | Log 1296a | Log 1296b |  &QRA Loc", 2940},
        {1, "Log 144a | Log 144b | - | - | - | - |  &QRA Loc", 1455},
        {2, threeBands, 2940},
        {3, threeBands, 2940},
        {4, "Log 144a | - | - | - | - | - |  &QRA Loc", 1455},
        {5, threeBands, 2940},
        {6, "Log 144a | Log 144b | - | - | - | - |  &QRA Loc", 1455},
        {7, "Log 144 | - | Log 432 | - | Log 1296 | - |  &QRA Loc", 2940, 2680},
        {8, threeBands, 2940},
        {100, "Log 144a | Log 432a | Log 1296a | Log GHz | - | - |  &QRA Loc", 2940},
        {101, "Log 50 | - | - | - | - | - |  &QRA Loc", 1455},
    };
    for (const FrameRow& row : rows) {
        SCOPED_TRACE(row.id);
        open(row.id);
        review::showViewButtons();
        expectFrame(FrmAnzeigen.Frame1, row);
        EXPECT_EQ(FrmAnzeigen.OpBQRALoc.Top, row.height == 1455 ? 1080 : 2520);
    }
}

TEST_F(ReviewPage, OffersTheLogsOfTheContestToEmpty)
{
    const char* const all = "Log 144a | Log 144b | Log 432a | Log 432b | Log 1296a | Log 1296b | -";
    const FrameRow rows[] = {
        {0, all, 2580},   {1, all, 2580},
        {2, all, 2580},   {3, all, 2580},
        {4, all, 2580},   {5, all, 2580},
        {6, all, 2580},   {7, "LogYO2 | - | - | - | - | - | -", 2580, 2680},
        {8, all, 2580},   {100, "Log 144a | Log 432a | Log 1296a | Log GHz | Log 1296a | - | Log GHz", 3000},
        {101, all, 2580},
    };
    for (const FrameRow& row : rows) {
        SCOPED_TRACE(row.id);
        open(row.id);
        review::showEmptyingButtons();
        expectFrame(FrmAnzeigen.Frame2, row);
    }
}

// The logs first, the summaries in the column behind them.
TEST_F(ReviewPage, OffersTheLogsAndSummariesOfTheContestToPrint)
{
    const char* const stages = "Log 144a | Log 144b | - | - | - | - | Summary 144 | - | -";
    const char* const threeBands = "Log 144a | - | Log 432a | - | Log 1296a | - | - | Summary | -";
    const FrameRow rows[] = {
        {0,
         "Log 144a | Log 144b | Log 432a | Log 432b | Log 1296a | Log 1296b | Summary 144 | Summary 432 | Summary 1296",
         2880},
        {1, stages, 1215},
        {2, threeBands, 2880},
        {3, threeBands, 2880},
        {4, stages, 1215},
        {5, threeBands, 2880},
        {6, stages, 1215},
        {7, "Log | - | - | - | - | - | Summary | - | -", 1215, 2680},
        {8, threeBands, 2880},
        {100, "Log 144a | Log 432 | Log 1296 | Log GHz | Summary | - | - | - | -", 2550, 1475},
        {101, "Log 50 | - | - | - | - | - | Summary 50 | - | -", 1215},
    };
    for (const FrameRow& row : rows) {
        SCOPED_TRACE(row.id);
        open(row.id);
        review::showPrintButtons();
        expectFrame(FrmAnzeigen.Frame3, row);
        EXPECT_EQ(FrmAnzeigen.OpbL144b.Visible, row.id != 4 && row.id != 101);
    }
}

TEST_F(ReviewPage, KeepsFromEmptyingWhatPrintingTookAway)
{
    open(4);
    review::showPrintButtons();
    review::showEmptyingButtons();
    EXPECT_FALSE(FrmAnzeigen.OpbL144b.Visible);
}

TEST_F(ReviewPage, OffersTheBandsOfTheContestForEdi)
{
    const char* const only144 = "1&44 MHz | - | - | -";
    const char* const threeBands = "1&44 MHz | 4&32 MHz | 1&296 MHz | -";
    const char* const all = "1&44 MHz | 4&32 MHz | 1&296 MHz | GHz";
    const FrameRow rows[] = {
        {0, threeBands, 1860},
        {1, only144, 1860},
        {2, threeBands, 1860},
        {3, threeBands, 1860},
        {4, only144, 1860},
        {5, threeBands, 1860},
        {6, only144, 1860},
        {7, all, 1860},
        {8, threeBands, 1860},
        {100, all, 1860},
        {101, "50 MHz | - | - | -", 1860},
    };
    for (const FrameRow& row : rows) {
        SCOPED_TRACE(row.id);
        open(row.id);
        review::showEdiBands();
        expectFrame(FrmAnzeigen.FraBandEdi, row);
    }
}

TEST_F(ReviewPage, OffersTheBandsOfTheContestForTheDiskette)
{
    for (const int id : allContests) {
        SCOPED_TRACE(id);
        open(id);
        review::showDisketteBands();
        const bool noChoice = id == 1 || id == 4 || id == 6;
        expectFrame(FrmAnzeigen.Frame8, {id, noChoice ? "- | - | -" : "144 MHz | 432 MHz | 1296 MHz",
                                         noChoice ? 735.0 : 1500.0, id == 7 ? 2680.0 : 2880.0});
    }
}

TEST_F(ReviewPage, RenamesNothingBeforeAJobBegins)
{
    for (const int id : allContests) {
        SCOPED_TRACE(id);
        open(id);
        EXPECT_EQ(buttonsOf(FrmAnzeigen.Frame1),
                  "Log 144a | Log 144b | Log 432a | Log 432b | Log 1296a | Log 1296b |  &QRA Loc");
        EXPECT_EQ(FrmAnzeigen.mnuFormEDI.Enabled, id != 7);
    }
}

TEST_F(ReviewPage, OfTheMaratonHasAWideLogAndTheFramesBesideIt)
{
    for (const int id : allContests) {
        SCOPED_TRACE(id);
        open(id);
        const bool maraton = id == 7;
        EXPECT_EQ(FrmAnzeigen.DBGrid9.Width, maraton ? 8960 : 6720);
        for (const screen::Frame* frame :
             {&FrmAnzeigen.Frame1, &FrmAnzeigen.Frame2, &FrmAnzeigen.Frame3, &FrmAnzeigen.Frame8, &FrmAnzeigen.FraArh})
            EXPECT_EQ(frame->Left, maraton ? 9200 : 6960) << frame->name;
        for (const screen::Frame* frame : {&FrmAnzeigen.Frame4, &FrmAnzeigen.Frame5})
            EXPECT_EQ(frame->Left, maraton ? 9200 : 9960) << frame->name;
    }
}

TEST_F(ReviewPage, HasNoEdiInTheMaratonAtALaterLoadEither)
{
    open(7);
    program.click(FrmAnzeigen.mnuAnfang);
    program.click(FrmInit.mnuLOG);
    EXPECT_FALSE(FrmAnzeigen.mnuFormEDI.Enabled);
    EXPECT_EQ(FrmAnzeigen.Frame1.Left, 9200);
}

TEST_F(ReviewPage, IsFreshAtEveryLoad)
{
    open(100);
    review::showViewButtons();
    FrmAnzeigen.Frame1.Visible = true;
    FrmAnzeigen.OutMode = 100;
    FrmAnzeigen.TxtTName.Text = "X";
    Modul1.PrintSel = 25;
    program.click(FrmAnzeigen.mnuAnfang);
    program.click(FrmInit.mnuLOG);
    EXPECT_FALSE(FrmAnzeigen.Frame1.Visible);
    EXPECT_EQ(FrmAnzeigen.Opb144b.Caption, "Log 144b");
    EXPECT_EQ(FrmAnzeigen.OutMode, 0);
    EXPECT_EQ(FrmAnzeigen.TxtTName.Text, "");
    EXPECT_EQ(Modul1.PrintSel, 0);
}

TEST_F(ReviewPage, ReadsTheDatabasesOfTheFolder)
{
    open(0);
    EXPECT_EQ(FrmAnzeigen.QRA.DatabaseName, Modul1.AppDir + "\\dbsKelvo.mdb");
    for (const screen::DataControl* log :
         {&FrmAnzeigen.Uus144a, &FrmAnzeigen.Uus144b, &FrmAnzeigen.Uus432a, &FrmAnzeigen.Uus432b, &FrmAnzeigen.Uus1296a,
          &FrmAnzeigen.Uus1296b, &FrmAnzeigen.UusGHz, &FrmAnzeigen.UusLGYO2})
        EXPECT_EQ(log->DatabaseName, Modul1.AppDir + "\\LogKelvo.mdb") << log->name;
}

TEST_F(ReviewPage, GivesBandAndStageBackToTheFirstPage)
{
    choose(0);
    program.click(FrmInit.OpbTest);
    Modul1.BandCur = 432;
    Modul1.Etapa = "B";
    program.click(FrmInit.mnuLOG);
    Modul1.BandCur = 22;
    Modul1.Etapa = "A";
    program.click(FrmAnzeigen.mnuAnfang);
    EXPECT_EQ(screen::activeForm(), &FrmInit);
    EXPECT_EQ(Modul1.ConcReturn, 100);
    EXPECT_EQ(Modul1.BandCur, 432);
    EXPECT_EQ(Modul1.Etapa, "B");
}

TEST_F(ReviewPage, OpensHelpByMenuAndByItsOwnContext)
{
    struct HelpRow {
        screen::MenuEntry& entry;
        const char* context;
    };
    open(0);
    EXPECT_EQ(FrmAnzeigen.HelpContextID, 900);
    const HelpRow rows[] = {
        {FrmAnzeigen.mnuVizLog, "900"},    {FrmAnzeigen.mnuTipLog, "1000"},  {FrmAnzeigen.mnuMemLog, "1100"},
        {FrmAnzeigen.MnuStergLog, "1200"}, {FrmAnzeigen.mnuOutPrel, "1300"},
    };
    const auto& opened = program.machine().record.help;
    for (const HelpRow& row : rows) {
        const std::size_t before = opened.size();
        program.click(row.entry);
        ASSERT_EQ(opened.size(), before + 1) << row.entry.name;
        EXPECT_EQ(opened.back().what, row.context) << row.entry.name;
    }
}

/// Screens smaller and larger than the design screen, in pixels.
constexpr platform::ScreenSize screens[] = {{640, 480}, {800, 600}, {1024, 768}, {1920, 1080}};

TEST(ReviewPageOnScreens, FollowsBothFactors)
{
    for (const platform::ScreenSize size : screens) {
        SCOPED_TRACE(size.width);
        test::RunningProgram program(size);
        Modul1.ConcId = 4;
        program.click(FrmInit.mnuLOG);
        const double x = size.width * 15 / 12000.0;
        const double y = size.height * 15 / 9000.0;
        EXPECT_EQ(FrmAnzeigen.Width, size.width * 15);
        EXPECT_EQ(FrmAnzeigen.Height, size.height * 15);
        EXPECT_NEAR(FrmAnzeigen.Frame1.Left, 6960 * x, 1);
        EXPECT_NEAR(FrmAnzeigen.Frame1.Width, 2880 * x, 1);
        EXPECT_NEAR(FrmAnzeigen.CmdGata.Top, 8460 * y, 1);
        review::showViewButtons();
        EXPECT_NEAR(FrmAnzeigen.Frame1.Height, 1455 * y, 1);
        EXPECT_NEAR(FrmAnzeigen.OpBQRALoc.Top, 1080 * y, 1);
    }
}

TEST(ReviewPageOnScreens, PutsTheFramesOfTheMaratonByTheHorizontalFactor)
{
    for (const platform::ScreenSize size : screens) {
        test::RunningProgram program(size);
        Modul1.ConcId = 7;
        program.click(FrmInit.mnuLOG);
        for (const screen::Frame* frame : {&FrmAnzeigen.Frame1, &FrmAnzeigen.Frame2, &FrmAnzeigen.Frame4})
            EXPECT_NEAR(frame->Left, 9200 * (size.width * 15 / 12000.0), 1) << size.width << frame->name;
    }
}

}  // namespace
