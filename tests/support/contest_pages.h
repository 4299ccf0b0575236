// What a contest does to the entry form, and the way there, for tests of choosing a contest and of coming back to it.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "runstate/contests.h"
#include "runstate/modul1.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"
#include "support/running_program.h"

namespace test {

constexpr const char* threeModes = "SSB CW Fm";
constexpr const char* fourModes = "SSB CW Fm Mixt";
constexpr const char* pickBand = "SELECT MOD SI BANDA";
constexpr const char* pickStage = "SELECT MOD SI ETAPA";

inline screen::OptionButton& buttonOf(int id)
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

inline std::string bandsInView()
{
    std::string text;
    for (const screen::CommandButton* button : {&FrmQSO.Cmd144, &FrmQSO.Cmd432, &FrmQSO.Cmd1296, &FrmQSO.CmdGHz}) {
        if (!button->Visible) continue;
        if (!text.empty()) text += ' ';
        text += button->Enabled ? button->Caption : "(" + button->Caption + ")";
    }
    return text;
}

inline std::string stagesInView()
{
    return std::string(FrmQSO.CmdA.Visible ? "A" : "") + (FrmQSO.CmdB.Visible ? "B" : "");
}

inline std::string modesInView()
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

inline void expectScoreRows(int count)
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

inline void expectPage(const PageRow& page)
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
inline void expectNames(bool exchanged)
{
    EXPECT_EQ(FrmQSO.TxtMyName.Visible, exchanged);
    EXPECT_EQ(FrmQSO.TxtYourName.Visible, exchanged);
    EXPECT_EQ(FrmQSO.LblRSTe.Caption, exchanged ? "RSTS CODS QTHLocS  NameS" : "RSTS CODS QTHLOCS");
    EXPECT_EQ(FrmQSO.LblRSTR.Caption, exchanged ? "   RSTR CODR QTHLocR  NameR" : "      RSTR CODR QTHLOCR");
    EXPECT_EQ(FrmQSO.TxtYourName.Top == FrmQSO.TxtRSTr3.Top, exchanged) << "in one row with the report";
}

/// Clicks its way to a contest.
class ContestChoice : public testing::Test {
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
        writeFile(
            program.folder() / "KelvoInit.dat",
            "YO2XYZ\r\nKN05OS\r\n2\r\n " + serial + " \r\n\r\n\r\n 0 \r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\nION\r\n");
    }

    RunningProgram program;
};

}  // namespace test
