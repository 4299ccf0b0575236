// The set-up page: station data, choice of contest and operating mode, keying, message texts.
#pragma once

#include "screen/form.h"

namespace screen {

/// Controls in the order of the page, which is the order of Tab.
struct FrmInitForm : Form {
    FrmInitForm();

    MenuEntry mnuExit{this, "mnuExit"};
    MenuEntry mnuQSOfahren{this, "mnuQSOfahren"};
    MenuEntry mnuLOG{this, "mnuLOG"};
    MenuEntry mnuInputLog{this, "mnuInputLog"};
    MenuEntry mnuHelp1{this, "mnuHelp1"};
    MenuEntry mnuInit{this, "mnuInit", &mnuHelp1};
    MenuEntry mnuInDat{this, "mnuInDat", &mnuHelp1};
    MenuEntry mnuOutInit{this, "mnuOutInit", &mnuHelp1};

    Label LblContest{this, "LblContest"};
    Label LblTypTest{this, "LblTypTest"};  ///< name of the contest chosen

    Label LblMyCall{this, "LblMyCall"};
    TextBox TxtMyCall{this, "TxtMyCall"};
    Label LblQraLoc{this, "LblQraLoc"};
    TextBox txtMyQRA{this, "txtMyQRA"};
    Label LblTime{this, "LblTime"};
    TextBox TxtTime{this, "TxtTime"};
    Label LblMyName{this, "LblMyName"};
    TextBox TxtMyName{this, "TxtMyName"};  ///< in view in the Maraton contest only
    Label LblRpNr{this, "LblRpNr"};
    TextBox TxtRpNr{this, "TxtRpNr"};
    Label LblInscr{this, "LblInscr"};
    Label LblSD{this, "LblSD"};
    TextBox TxtSD{this, "TxtSD"};  ///< in view for paper-log input only, as TxtST
    Label LblST{this, "LblST"};
    TextBox TxtST{this, "TxtST"};

    Frame FrmConcurs{this, "FrmConcurs"};
    OptionButton OpBCampNatUUS{this, "OpBCampNatUUS", &FrmConcurs};
    OptionButton OpbCarpati{this, "OpbCarpati", &FrmConcurs};
    OptionButton OpbCluj{this, "OpbCluj", &FrmConcurs};
    OptionButton OpBFloareademina{this, "OpBFloareademina", &FrmConcurs};
    OptionButton OpbOltenia{this, "OpbOltenia", &FrmConcurs};
    OptionButton OpBConstrMas{this, "OpBConstrMas", &FrmConcurs};
    OptionButton OpBTelecom{this, "OpBTelecom", &FrmConcurs};
    OptionButton OpBMaraton{this, "OpBMaraton", &FrmConcurs};
    OptionButton OpbZPV{this, "OpbZPV", &FrmConcurs};
    OptionButton OpBCampInternUUS{this, "OpBCampInternUUS", &FrmConcurs};
    OptionButton OpbOltenia6m{this, "OpbOltenia6m", &FrmConcurs};

    Frame FraConcurs{this, "FraConcurs"};  ///< takes the place of FrmConcurs once a contest is picked
    Label LblAnunt{this, "LblAnunt", &FraConcurs};
    OptionButton OpbConcurs{this, "OpbConcurs", &FraConcurs};
    OptionButton OpbTest{this, "OpbTest", &FraConcurs};

    Frame FramCW{this, "FramCW"};
    OptionButton OpbCwJ{this, "OpbCwJ", &FramCW};
    OptionButton OpbCwN{this, "OpbCwN", &FramCW};
    CheckBox ChkCwRpt{this, "ChkCwRpt", &FramCW};
    Frame FramSSB{this, "FramSSB"};
    OptionButton OpbSSBJ{this, "OpbSSBJ", &FramSSB};
    OptionButton OpbSSBN{this, "OpbSSBN", &FramSSB};
    CheckBox ChkSSBRpt{this, "ChkSSBRpt", &FramSSB};
    Label LblCP{this, "LblCP"};
    TextBox TxtCP{this, "TxtCP"};  ///< outside the frames: voice needs the port too

    Frame FramTxtCw{this, "FramTxtCw"};
    Label LblF1{this, "LblF1", &FramTxtCw};
    TextBox TxtF1{this, "TxtF1", &FramTxtCw};
    Label LblF2{this, "LblF2", &FramTxtCw};
    TextBox TxtF2{this, "TxtF2", &FramTxtCw};
    Label LblF3{this, "LblF3", &FramTxtCw};
    TextBox TxtF3{this, "TxtF3", &FramTxtCw};
    Label LblF4{this, "LblF4", &FramTxtCw};
    TextBox TxtF4{this, "TxtF4", &FramTxtCw};
    Label LblF5{this, "LblF5", &FramTxtCw};
    TextBox TxtF5{this, "TxtF5", &FramTxtCw};
    Label LblF6{this, "LblF6", &FramTxtCw};
    TextBox TxtF6{this, "TxtF6", &FramTxtCw};
    Label LblF7{this, "LblF7", &FramTxtCw};
    TextBox TxtF7{this, "TxtF7", &FramTxtCw};
    Label LblMC{this, "LblMC", &FramTxtCw};
    Label LblYC{this, "LblYC", &FramTxtCw};
    Label LblNo{this, "LblNo", &FramTxtCw};
    Label LblMQRA{this, "LblMQRA", &FramTxtCw};

    Label LblVar{this, "LblVar"};
    Label LblJosIn{this, "LblJosIn"};
    Label LblSemn1{this, "LblSemn1"};

 private:
    void writeMenu();
    void placeHeading();
    void placeStation();
    void placeContests();
    void placeOperatingMode();
    void placeKeying();
    void placeMessages();
    void placeFoot();
};

}  // namespace screen

extern screen::FrmInitForm FrmInit;
