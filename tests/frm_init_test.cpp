// The set-up page at the start: texts, choices, and what is in view.
#include "screen/frm_init.h"

#include <gtest/gtest.h>

#include "support/form_expectations.h"

namespace {

using test_support::expectCaptions;
using test_support::expectHidden;
using test_support::expectSeen;
using test_support::expectToolTips;

class FrmInitPage : public testing::Test {
 protected:
    void SetUp() override { screen::rebuild(FrmInit, screen::FormLife::neverLoaded); }
};

TEST_F(FrmInitPage, HasItsTextsAndToolTips)
{
    const auto& f = FrmInit;
    expectCaptions({
        {f.LblMyCall, "MY CALL  "},
        {f.LblQraLoc, "   MY QRALOC"},
        {f.LblTime, " (Time Local - UTC)"},
        {f.LblMyName, "MY NAME"},
        {f.LblRpNr, "Cod Nr"},
        {f.LblInscr, "(Nr Control for the next QSO)"},
        {f.LblSD, "START DATE"},
        {f.LblST, "START TIME"},
        {f.LblCP, "CommPort:"},
        {f.LblMC, "#1 = MyCall"},
        {f.LblYC, "#2 = YourCall"},
        {f.LblNo, "#3 = Report Nr"},
        {f.LblMQRA, "#4 = My QRA"},
        {f.LblVar, "Var. A1.07"},
        {f.LblJosIn, "F1 = HELP"},
        {f.LblSemn1, "Created by XX9ZZZ"},
        {f.FramTxtCw, "TEXT PROGRAM CW"},
        {f.FramCW, "CW cu PC"},
        {f.FramSSB, "SSB cu PC"},
        {f.FrmConcurs, "Concurs :"},
        {f.FraConcurs, "ATENTIUNE"},
        {f.OpbTest, "T&EST"},
        {f.OpbConcurs, "C&ONCURS"},
        {f.OpbCwJ, "CW Transmis cu calculatorul DA"},
        {f.OpbCwN, "CW Transmis cu calculatorul NU"},
        {f.OpbSSBJ, "CW Transmis cu calculatorul DA"},
        {f.OpbSSBN, "CW Transmis cu calculatorul NU"},
        {f.ChkCwRpt, "Cw &Rpt"},
        {f.ChkSSBRpt, "&SSB Rpt"},
        {f.mnuExit, "E&XIT"},
        {f.mnuQSOfahren, "START_&QSO "},
        {f.mnuLOG, "&LOG"},
        {f.mnuInputLog, "    &INPUT_LOG_OFF-LINE"},
        {f.mnuHelp1, "&HELP"},
    });
    expectToolTips({
        {f.TxtMyCall, "Introdu indicativul propriu"},
        {f.txtMyQRA, "Introdu QRA Locatorul propriu"},
        {f.TxtTime, "Introdu diferenta intre timpul calculator si timpul UTC"},
        {f.TxtMyName, ""},
        {f.TxtRpNr, "Introdu Codul de inceput (vezi regulamentul de concurs)"},
        {f.TxtSD, "Introdu data concursului"},
        {f.TxtST, "Introdu ora cind ai inceput concursul"},
        {f.TxtCP, "Introdu Nr. Port Serial"},
        {f.TxtF1, "Text telegrafic de transmis prin F1"},
        {f.TxtF2, "Text telegrafic de transmis prin F2"},
        {f.TxtF3, "Text telegrafic de transmis prin F3"},
        {f.TxtF4, "Text telegrafic de transmis prin F4"},
        {f.TxtF5, "Text telegrafic de transmis prin F5"},
        {f.TxtF6, "Text telegrafic de transmis prin F6"},
        {f.TxtF7, "Text de transmis prin F7"},
    });
}

TEST_F(FrmInitPage, ContestsHaveTheirCaptionsAndToolTips)
{
    const auto& f = FrmInit;
    expectCaptions({
        {f.OpBCampNatUUS, "Camp.Nationale UUS"},
        {f.OpbCarpati, "Trofeul Carpati"},
        {f.OpbCluj, "Concurs Cluj Napoca"},
        {f.OpBFloareademina, "Floarea de mina"},
        {f.OpbOltenia, "Oltenia 144 MHz"},
        {f.OpBConstrMas, "Constructor masini"},
        {f.OpBTelecom, "Ziua Telecom"},
        {f.OpBMaraton, "Maraton YO2"},
        {f.OpbZPV, "Zi plina de vara"},
        {f.OpBCampInternUUS, "Camp.Internat. UUS"},
        {f.OpbOltenia6m, "Oltenia 6m"},
    });
    expectToolTips({
        {f.OpBCampNatUUS, "Lucru in Camp. Nation. UUS"},
        {f.OpbCarpati, "Lucru in Trofeul carpati"},
        {f.OpbCluj, "Lucrul in Concurs Cluj Napoca"},
        {f.OpBFloareademina, "Lucrul in Concurs Floarea de Mina"},
        {f.OpbOltenia, "Lucrul in Concurs Oltenia 144 MHz"},
        {f.OpBConstrMas, "Lucrul in concursul Constructor masini"},
        {f.OpBTelecom, ""},
        {f.OpBMaraton, ""},
        {f.OpbZPV, "Lucru in Camp. Intern. UUS"},
        {f.OpBCampInternUUS, "Lucru in Camp. Intern. UUS"},
        {f.OpbOltenia6m, ""},
    });
}

TEST_F(FrmInitPage, StartsWithoutKeyingAndWithTheChoiceOfContest)
{
    const auto& f = FrmInit;
    EXPECT_TRUE(f.OpbCwN.Value);
    EXPECT_FALSE(f.OpbCwJ.Value);
    EXPECT_TRUE(f.OpbSSBN.Value);
    EXPECT_FALSE(f.OpbSSBJ.Value);
    EXPECT_EQ(f.ChkCwRpt.Value, 0);
    EXPECT_EQ(f.ChkSSBRpt.Value, 0);
    expectHidden({&f.FraConcurs, &f.ChkCwRpt, &f.ChkSSBRpt, &f.FramTxtCw, &f.TxtSD, &f.TxtST, &f.LblSD, &f.LblST,
                  &f.TxtMyName, &f.LblMyName});
    expectSeen({&f.OpBCampNatUUS, &f.OpbCwN, &f.OpbSSBN, &f.TxtMyCall, &f.txtMyQRA, &f.TxtTime, &f.TxtRpNr, &f.LblRpNr,
                &f.TxtCP});
    for (const screen::TextBox* box : {&f.TxtMyCall, &f.txtMyQRA, &f.TxtTime, &f.TxtMyName, &f.TxtRpNr, &f.TxtCP})
        EXPECT_EQ(box->Text, "") << box->name;
}

}  // namespace
