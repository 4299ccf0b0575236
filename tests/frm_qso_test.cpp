// The entry form at the start: texts, colours, what is in view and what is switched off, run state.
#include "screen/frm_qso.h"

#include <gtest/gtest.h>

#include "support/form_expectations.h"

namespace {

using screen::Control;
using test_support::expectCaptions;
using test_support::expectColour;
using test_support::expectHidden;
using test_support::expectSeen;

class FrmQSOPage : public testing::Test {
 protected:
    void SetUp() override { screen::rebuild(FrmQSO, screen::FormLife::neverLoaded); }
};

TEST_F(FrmQSOPage, FieldsHaveTheirTextsAndToolTips)
{
    struct FieldRow {
        const screen::TextBox& box;
        const char* text;
        const char* toolTip;
    };
    const auto& f = FrmQSO;
    const FieldRow rows[] = {
        {f.txtIndic, "", "Introdu indicativul statiei corespondente si ENTER"},
        {f.TxtRSTR1, " ", "Computerul introduce 599/59"},
        {f.TxtRSTR2, " ", "Introdu codul receptionat"},
        {f.TxtRSTr3, " ", "Introdu QTHLoc. receptionat"},
        {f.TxtRSTE1, "  ", "Computerul introduce 599/59"},
        {f.txtRSTE2, " ", "Computerul introduce codul de transmis"},
        {f.txtRSTe3, " ", "Computerul introduce QTHLoc. propriu"},
        {f.TxtUTC, " ", ""},
        {f.TxtDate, "", ""},
        {f.TxtYourName, "", ""},
        {f.TxtMyName, "", ""},
        {f.txtPauseCW, " 5", ""},
        {f.TxtPauseSSB, " 5", ""},
        {f.TxtPauseFm, " 5", ""},
    };
    for (const FieldRow& row : rows) {
        EXPECT_EQ(row.box.Text, row.text) << row.box.name;
        EXPECT_EQ(row.box.ToolTipText, row.toolTip) << row.box.name;
    }
}

TEST_F(FrmQSOPage, HasItsCaptions)
{
    const auto& f = FrmQSO;
    expectCaptions({
        {f.LblCall, "   CALL"},
        {f.LblRSTe, "RSTS CODS QTHLOCS"},
        {f.LblRSTR, "      RSTR CODR QTHLOCR"},
        {f.LblUTC, "   UTC"},
        {f.LblDate, "   Date"},
        {f.CmdEnterCall, "&Enter Call"},
        {f.CmdAbbruchX, " &Abort "},
        {f.LblKeyNext, "TAB/SP=NEXTFIELD"},
        {f.LblKeyReceived, " F8=CODR F9=QRAR    "},
        {f.LblKeySent, "F11=CODS ESC=CLR"},
        {f.LblKeyLog, "ENTER/F12=LOG "},
        {f.LblOffLine, "OFF LINE"},
        {f.LblAnunt, "Select  BAND and MODE"},
        {f.LblBandCol, "Bnd"},
        {f.LblPktCol, "Pkt"},
        {f.LblQSOCol, "QSO"},
        {f.Frame4, "ATENTIUNE QSO DUBLU"},
        {f.LblDublu, "Punctaj la QSO - ul :"},
        {f.OBtAnterior, "Ant&erior"},
        {f.OBtActual, "Ac&tual"},
        {f.LblRezCW, "#1=MYCALL  #2=YOURCALL #3=CODS      #4=MYQRA"},
        {f.lblWPM, "30"},
        {f.mnuBeenden, "E&XIT"},
        {f.mnuAnfang, "1_ST_PA&GE"},
        {f.mnuRecup, "RECUP.D&UPA ANULARE"},
        {f.mnuHelp2, "HELP"},
        {f.mnuDescr, "Descriere ecran"},
        {f.mnuSchimb, "Schimbare banda si mod "},
        {f.mnuInDat, "Introducere date"},
        {f.mnuModif, "Modificare date"},
        {f.mnuOutPag, "Iesire din pagina"},
    });
}

TEST_F(FrmQSOPage, HasItsColours)
{
    const auto& f = FrmQSO;
    expectColour({255, 255, 0}, {&f.txtIndic, &f.TxtRSTR1, &f.TxtRSTR2, &f.TxtRSTr3, &f.TxtRSTE1, &f.txtRSTE2,
                                 &f.txtRSTe3, &f.TxtYourName, &f.TxtMyName, &f.TxtPauseSSB, &f.TxtF1});
    expectColour({192, 192, 192}, {&f.TxtUTC, &f.TxtDate});
    expectColour({192, 192, 192}, {&f.Lbl144, &f.Lbl432, &f.Lbl1296, &f.LblGHz, &f.LblSSB, &f.LblCW, &f.LblFm,
                                   &f.LblMixt, &f.LblA, &f.LblB});
    expectColour(screen::buttonFace, {&f.CmdA, &f.CmdB});
}

TEST_F(FrmQSOPage, StartsClosed)
{
    const auto& f = FrmQSO;
    for (const Control* off :
         std::initializer_list<const Control*>{&f.txtIndic, &f.TxtRSTE1, &f.txtRSTE2, &f.txtRSTe3, &f.TxtRSTR1,
                                               &f.TxtRSTR2, &f.TxtRSTr3, &f.CmdEnterCall})
        EXPECT_FALSE(off->Enabled) << off->name;
    for (const Control* on :
         std::initializer_list<const Control*>{&f.TxtUTC, &f.TxtDate, &f.TxtYourName, &f.TxtMyName, &f.CmdAbbruchX,
                                               &f.Cmd144, &f.Cmd432, &f.Cmd1296, &f.CmdCW, &f.CmdSSB, &f.CmdFm})
        EXPECT_TRUE(on->Enabled) << on->name;
}

TEST_F(FrmQSOPage, ShowsWhatEveryContestNeeds)
{
    const auto& f = FrmQSO;
    expectHidden({&f.CmdGHz,     &f.CmdMixt,     &f.CmdA,       &f.CmdB,        &f.LblA,       &f.LblB,
                  &f.LblBand2,   &f.LblPkt2,     &f.LblQSO2,    &f.LblBand3,    &f.LblPkt3,    &f.LblQSO3,
                  &f.Frame3,     &f.Frame4,      &f.LblAnunt,   &f.LblNeu,      &f.Line4,      &f.TxtCwCurent,
                  &f.FrmCwProgr, &f.FramTxtCw,   &f.txtPauseCW, &f.TxtPauseSSB, &f.TxtPauseFm, &f.LblStopCW,
                  &f.LblOffLine, &f.TxtYourName, &f.TxtMyName,  &f.LblCod432,   &f.LblCod1296, &f.LblCodGhz});
    expectSeen({&f.Cmd144,   &f.Cmd432,   &f.Cmd1296,   &f.CmdCW,      &f.CmdSSB,    &f.CmdFm,
                &f.txtIndic, &f.LblCod,   &f.Lbl144,    &f.LblCW,      &f.LblBand,   &f.LblPkt,
                &f.LblQSO,   &f.LblBand1, &f.LblPkt1,   &f.LblQSO1,    &f.LblMyCall, &f.LblMyQRA,
                &f.LblQRB1,  &f.LblBeam1, &f.LblKeyLog, &f.CmdAbbruchX});
    EXPECT_EQ(f.Frame2.Height, 1455);
}

TEST_F(FrmQSOPage, StartsItsRunState)
{
    const auto& f = FrmQSO;
    for (const std::int16_t flag :
         {f.NextField, f.DupLock, f.KeyerBusy, f.AbortFlag, f.TimeDone, f.DubActual, f.QraRefuz, f.Beam, f.CodMax,
          f.CwRepStop, f.CwRepBreak, f.CwF1Armed, f.SsbRepStop, f.SsbRepBreak, f.SsbF1Armed})
        EXPECT_EQ(flag, 0);
    for (const std::string& text : {f.PrefixYO, f.QraMem, f.NextCod, f.CallTyped, f.BaseCaption, f.KeyCode, f.KeyChar})
        EXPECT_EQ(text, "");
    EXPECT_EQ(f.Wpm, 30.0F);
    EXPECT_EQ(f.UndoRec.size(), 20U);
    EXPECT_EQ(f.tmrTimer.Interval, 1000);
}

}  // namespace
