// The snapshot of a QSO that is given up, and its way back.
#include "entry/undo.h"

#include <gtest/gtest.h>

#include <string>

#include "entry/commit.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"
#include "support/running_program.h"

namespace {

class Undo : public testing::Test {
 protected:
    /// A screen of which every item that is remembered differs from an empty one.
    static void fillScreen()
    {
        FrmQSO.txtIndic.Text = "YO5ABC";
        FrmQSO.LblBeam1.Caption = "320 °";
        FrmQSO.LblQRB1.Caption = "255 Km";
        FrmQSO.TxtUTC.Text = "12:34";
        FrmQSO.TxtDate.Text = "15.11.26";
        FrmQSO.txtIndic.BackColor = screen::red;
        FrmQSO.TxtRSTR1.Text = "599";
        FrmQSO.TxtRSTR2.Text = "012";
        FrmQSO.TxtRSTr3.Text = "KN16AA";
        Modul1.Indic = "YO5ABC";
        FrmQSO.TimeDone = 100;
    }

    /// What the snapshot keeps as seen or not, switched on or not.
    static std::vector<bool*> flags()
    {
        return {&FrmQSO.List1.Visible,  &FrmQSO.LblNeu.Visible, &FrmQSO.CmdEnterCall.Enabled, &FrmQSO.Frame2.Visible,
                &FrmQSO.Frame3.Visible, &FrmQSO.Frame4.Visible, &FrmQSO.Line4.Visible};
    }

    test::RunningProgram program;
};

TEST_F(Undo, KeepsEachItemAtItsPlaceAsText)
{
    fillScreen();
    entry::MemUndo();
    const auto& undo = FrmQSO.UndoRec;
    EXPECT_EQ(undo[1], "YO5ABC");
    EXPECT_EQ(undo[2], "320 °");
    EXPECT_EQ(undo[3], "255 Km");
    EXPECT_EQ(undo[4], "12:34");
    EXPECT_EQ(undo[5], "15.11.26");
    EXPECT_EQ(undo[6], "255");
    EXPECT_EQ(undo[8], "599");
    EXPECT_EQ(undo[9], "012");
    EXPECT_EQ(undo[10], "KN16AA");
    EXPECT_EQ(undo[11], "YO5ABC");
    EXPECT_EQ(undo[13], "100");
    EXPECT_EQ(undo[15], "");
}

TEST_F(Undo, KeepsEachFlagAtItsPlace)
{
    constexpr std::size_t places[] = {7, 12, 14, 16, 17, 18, 19};
    for (std::size_t one = 0; one < flags().size(); ++one) {
        for (bool* flag : flags())
            *flag = false;
        entry::MemUndo();
        const auto without = FrmQSO.UndoRec;
        *flags()[one] = true;
        entry::MemUndo();
        for (std::size_t index = 0; index < without.size(); ++index)
            EXPECT_EQ(FrmQSO.UndoRec[index] != without[index], index == places[one]) << "place " << index;
    }
}

TEST_F(Undo, BringsTheWholeScreenBack)
{
    fillScreen();
    entry::MemUndo();
    entry::Anulat();
    EXPECT_EQ(FrmQSO.txtIndic.Text.get(), "");
    entry::mnuRecup_Click();
    EXPECT_EQ(FrmQSO.txtIndic.Text.get(), "YO5ABC");
    EXPECT_EQ(FrmQSO.txtIndic.SelStart, 6U);
    EXPECT_EQ(FrmQSO.LblBeam1.Caption, "320 °");
    EXPECT_EQ(FrmQSO.LblQRB1.Caption, "255 Km");
    EXPECT_EQ(FrmQSO.TxtUTC.Text.get(), "12:34");
    EXPECT_EQ(FrmQSO.TxtDate.Text.get(), "15.11.26");
    EXPECT_EQ(FrmQSO.txtIndic.BackColor, screen::red);
    EXPECT_EQ(FrmQSO.TxtRSTR1.Text.get(), "599");
    EXPECT_EQ(FrmQSO.TxtRSTR2.Text.get(), "012");
    EXPECT_EQ(FrmQSO.TxtRSTr3.Text.get(), "KN16AA");
    EXPECT_EQ(Modul1.Indic, "YO5ABC");
    EXPECT_EQ(FrmQSO.TimeDone, 100);
    EXPECT_FALSE(FrmQSO.mnuRecup.Enabled);
}

TEST_F(Undo, BringsEveryCombinationOfFlagsBack)
{
    const std::size_t combinations = std::size_t{1} << flags().size();
    for (std::size_t combination = 0; combination < combinations; ++combination) {
        const auto wanted = [&](std::size_t flag) { return ((combination >> flag) & 1U) != 0; };
        for (std::size_t flag = 0; flag < flags().size(); ++flag)
            *flags()[flag] = wanted(flag);
        entry::MemUndo();
        for (std::size_t flag = 0; flag < flags().size(); ++flag)
            *flags()[flag] = !wanted(flag);
        entry::mnuRecup_Click();
        for (std::size_t flag = 0; flag < flags().size(); ++flag)
            EXPECT_EQ(*flags()[flag], wanted(flag)) << "combination " << combination << ", flag " << flag;
    }
}

TEST_F(Undo, BringsEveryVerdictBack)
{
    for (const screen::Colour colour :
         {screen::yellow, screen::red, screen::green, screen::black, screen::white, screen::lampOn}) {
        FrmQSO.txtIndic.BackColor = colour;
        entry::MemUndo();
        FrmQSO.txtIndic.BackColor = screen::grey;
        entry::mnuRecup_Click();
        EXPECT_EQ(FrmQSO.txtIndic.BackColor, colour);
    }
}

TEST_F(Undo, LeavesAloneWhatAnAbortNeverTook)
{
    fillScreen();
    entry::MemUndo();
    FrmQSO.TxtRSTE1.Text = "579";
    FrmQSO.txtRSTE2.Text = "050";
    FrmQSO.txtRSTe3.Text = "KN05AA";
    FrmQSO.DupLock = 10;
    Modul1.QraUnknown = 100;
    Modul1.QraLoc = "KN27AA";
    Modul1.PctCur = "88";
    entry::mnuRecup_Click();
    EXPECT_EQ(FrmQSO.TxtRSTE1.Text.get(), "579");
    EXPECT_EQ(FrmQSO.txtRSTE2.Text.get(), "050");
    EXPECT_EQ(FrmQSO.txtRSTe3.Text.get(), "KN05AA");
    EXPECT_EQ(FrmQSO.DupLock, 10);
    EXPECT_EQ(Modul1.QraUnknown, 100);
    EXPECT_EQ(Modul1.QraLoc, "KN27AA");
    EXPECT_EQ(Modul1.PctCur, "88");
}

TEST_F(Undo, TakesASnapshotOnlyWhenTheOperatorAborts)
{
    fillScreen();
    FrmQSO.AbortFlag = 0;
    entry::AbbruchX();
    EXPECT_EQ(FrmQSO.UndoRec[1], "");
    fillScreen();
    FrmQSO.AbortFlag = 100;
    entry::AbbruchX();
    EXPECT_EQ(FrmQSO.UndoRec[1], "YO5ABC");
    EXPECT_EQ(FrmQSO.AbortFlag, 100);
}

}  // namespace
