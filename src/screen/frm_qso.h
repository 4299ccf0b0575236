// The entry form: the fields of the QSO, band, mode and stage, score, compass rose, stored messages, logs.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "screen/form.h"
#include "screen/serial_control.h"

namespace screen {

struct FrmQSOForm : Form {
    FrmQSOForm();

    /// Gives the page the places of the Maraton contest: names beside both exchanges, one wide log, and room for the
    /// rose at the top. Small screens draw no `rose` in this contest. The controls go to their new places on the design
    /// screen; scaling is left to the caller.
    void takeMaratonPlaces(bool rose = true);

    /// Makes room on a screen lower than the design screen, where the received exchange steps down on the microwave
    /// bands. Scaling is left to the caller.
    void takeLowScreenPlaces();

    MenuEntry mnuBeenden{this, "mnuBeenden"};
    MenuEntry mnuAnfang{this, "mnuAnfang"};
    MenuEntry mnuRecup{this, "mnuRecup"};
    MenuEntry mnuHelp2{this, "mnuHelp2"};
    MenuEntry mnuDescr{this, "mnuDescr", &mnuHelp2};
    MenuEntry mnuSchimb{this, "mnuSchimb", &mnuHelp2};
    MenuEntry mnuInDat{this, "mnuInDat", &mnuHelp2};
    MenuEntry mnuModif{this, "mnuModif", &mnuHelp2};
    MenuEntry mnuOutPag{this, "mnuOutPag", &mnuHelp2};

    // The QSO under entry.
    Label LblCall{this, "LblCall"};
    TextBox txtIndic{this, "txtIndic"};  ///< its colour is the verdict on the call
    Label LblNeu{this, "LblNeu"};
    Label LblRSTe{this, "LblRSTe"};
    TextBox TxtRSTE1{this, "TxtRSTE1"};
    TextBox txtRSTE2{this, "txtRSTE2"};
    TextBox txtRSTe3{this, "txtRSTe3"};
    TextBox TxtMyName{this, "TxtMyName"};  ///< in view in the Maraton contest only, as TxtYourName
    Label LblRSTR{this, "LblRSTR"};
    TextBox TxtRSTR1{this, "TxtRSTR1"};
    TextBox TxtRSTR2{this, "TxtRSTR2"};
    TextBox TxtRSTr3{this, "TxtRSTr3"};
    TextBox TxtYourName{this, "TxtYourName"};
    Label LblUTC{this, "LblUTC"};
    TextBox TxtUTC{this, "TxtUTC"};
    Label LblDate{this, "LblDate"};
    TextBox TxtDate{this, "TxtDate"};
    CommandButton CmdEnterCall{this, "CmdEnterCall"};
    CommandButton CmdAbbruchX{this, "CmdAbbruchX"};
    Label LblOffLine{this, "LblOffLine"};
    TextBox TxtRez{this, "TxtRez"};

    // Last code sent, by band. One of them is in view.
    Label LblLastCode{this, "LblLastCode"};
    Label LblCod{this, "LblCod"};
    Label LblCod432{this, "LblCod432"};
    Label LblCod1296{this, "LblCod1296"};
    Label LblCodGhz{this, "LblCodGhz"};

    // Where the other station is; the rose itself is drawn by the form.
    Label LblQRB1{this, "LblQRB1"};
    Label LblBeam1{this, "LblBeam1"};
    Line Line4{this, "Line4"};

    // Contest, band, mode and stage. A lamp stands above the button that lights it.
    Label LblConc{this, "LblConc"};
    Label LblBands{this, "LblBands"};
    Label Lbl144{this, "Lbl144"};
    Label Lbl432{this, "Lbl432"};
    Label Lbl1296{this, "Lbl1296"};
    Label LblGHz{this, "LblGHz"};
    CommandButton Cmd144{this, "Cmd144"};
    CommandButton Cmd432{this, "Cmd432"};
    CommandButton Cmd1296{this, "Cmd1296"};
    CommandButton CmdGHz{this, "CmdGHz"};
    Label LblMode{this, "LblMode"};
    Label LblSSB{this, "LblSSB"};
    Label LblCW{this, "LblCW"};
    Label LblFm{this, "LblFm"};
    Label LblMixt{this, "LblMixt"};
    CommandButton CmdSSB{this, "CmdSSB"};
    CommandButton CmdCW{this, "CmdCW"};
    CommandButton CmdFm{this, "CmdFm"};
    CommandButton CmdMixt{this, "CmdMixt"};
    Label LblA{this, "LblA"};
    Label LblB{this, "LblB"};
    CommandButton CmdA{this, "CmdA"};
    CommandButton CmdB{this, "CmdB"};
    Label LblAnunt{this, "LblAnunt"};  ///< while this prompt is in view, the entry is closed

    // Automatic calling: seconds between two calls, below the mode that they belong to.
    Label LblPause{this, "LblPause"};
    TextBox TxtPauseSSB{this, "TxtPauseSSB"};
    TextBox txtPauseCW{this, "txtPauseCW"};
    TextBox TxtPauseFm{this, "TxtPauseFm"};
    Label LblStopCW{this, "LblStopCW"};

    // A duplicate: which of the two QSOs keeps its points.
    Frame Frame4{this, "Frame4"};
    Label LblDublu{this, "LblDublu", &Frame4};
    OptionButton OBtAnterior{this, "OBtAnterior", &Frame4};
    OptionButton OBtActual{this, "OBtActual", &Frame4};

    // Score by band or stage. Row 0 is the one worked on.
    Frame Frame2{this, "Frame2"};
    Label LblBandCol{this, "LblBandCol", &Frame2};
    Label LblPktCol{this, "LblPktCol", &Frame2};
    Label LblQSOCol{this, "LblQSOCol", &Frame2};
    Label LblBand{this, "LblBand", &Frame2};
    Label LblPkt{this, "LblPkt", &Frame2};
    Label LblQSO{this, "LblQSO", &Frame2};
    Label LblBand1{this, "LblBand1", &Frame2};
    Label LblPkt1{this, "LblPkt1", &Frame2};
    Label LblQSO1{this, "LblQSO1", &Frame2};
    Label LblBand2{this, "LblBand2", &Frame2};
    Label LblPkt2{this, "LblPkt2", &Frame2};
    Label LblQSO2{this, "LblQSO2", &Frame2};
    Label LblBand3{this, "LblBand3", &Frame2};
    Label LblPkt3{this, "LblPkt3", &Frame2};
    Label LblQSO3{this, "LblQSO3", &Frame2};

    Frame FramMyData{this, "FramMyData"};
    Label LblMyCall{this, "LblMyCall", &FramMyData};
    Label LblMyQRA{this, "LblMyQRA", &FramMyData};

    // Choice of a microwave band.
    Frame Frame3{this, "Frame3"};
    TextBox TxtFGHz{this, "TxtFGHz", &Frame3};
    ListBox List1{this, "List1", &Frame3};

    // CW by the computer.
    TextBox TxtCwCurent{this, "TxtCwCurent"};  ///< what has been keyed of the running message
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
    Label LblRezCW{this, "LblRezCW", &FramTxtCw};
    Frame FrmCwProgr{this, "FrmCwProgr"};
    Label lblWPM{this, "lblWPM", &FrmCwProgr};
    Label LblSpeedUnit{this, "LblSpeedUnit", &FrmCwProgr};
    Label LblSpeedKeys{this, "LblSpeedKeys", &FrmCwProgr};

    // Legend of the keys.
    Frame Frame6{this, "Frame6"};
    Label LblKeyNext{this, "LblKeyNext", &Frame6};
    Label LblKeyReceived{this, "LblKeyReceived", &Frame6};
    Label LblKeySent{this, "LblKeySent", &Frame6};
    Label LblKeyLog{this, "LblKeyLog", &Frame6};

    // The tables, and the grids that show them, all at one place.
    DataControl QRA{this, "QRA"};
    DataControl Uus144a{this, "Uus144a"};
    DataControl Uus144b{this, "Uus144b"};
    DataControl Uus432a{this, "Uus432a"};
    DataControl Uus432b{this, "Uus432b"};
    DataControl Uus1296a{this, "Uus1296a"};
    DataControl Uus1296b{this, "Uus1296b"};
    DataControl UusGHz{this, "UusGHz"};
    DataControl UusLGYO2{this, "UusLGYO2"};
    Grid DBGrid1{this, "DBGrid1", &Uus144a};
    Grid DBGrid2{this, "DBGrid2", &Uus144b};
    Grid DBGrid3{this, "DBGrid3", &Uus432a};
    Grid DBGrid4{this, "DBGrid4", &Uus432b};
    Grid DBGrid5{this, "DBGrid5", &QRA};
    Grid DBGrid6{this, "DBGrid6", &Uus1296a};
    Grid DBGrid7{this, "DBGrid7", &Uus1296b};
    Grid DBGrid8{this, "DBGrid8", &UusGHz};
    Grid DBGrid9{this, "DBGrid9", &UusLGYO2};

    Timer tmrTimer{this, "tmrTimer"};
    SerialControl MSComm1{this, "MSComm1"};  ///< its lines hold the transmitter on and key it

    // Run state of the form.
    std::int16_t NextField = 0;  ///< 100: Tab or Space went down, or the field is full, and nobody has acted on it yet
    std::int16_t DupLock = 0;    ///< 10: the call is a duplicate or the own one, CmdEnterCall stays off
    std::int16_t KeyerBusy = 0;  ///< 100: a CW message began, Esc does not abort
    std::int16_t AbortFlag = 0;  ///< 100 from an abort to the next logged QSO
    std::int16_t TimeDone = 0;   ///< 100: in paper-log input, the time of this QSO is finished
    std::int16_t DubActual = 0;  ///< 10: of two QSOs, the current one keeps its points
    std::int16_t QraRefuz = 0;   ///< 100: the locator was refused
    std::string PrefixYO;        ///< "YO" once a Romanian call was worked in this run
    std::string QraMem;          ///< locator as the locator memory has it
    std::string NextCod;         ///< next code to send, three digits or more
    std::string CallTyped;       ///< the call as it was taken; nothing reads it
    std::string BaseCaption;     ///< caption of the form without the clock
    std::string KeyCode;         ///< key code as decimal text
    std::string KeyChar;         ///< the character of that key
    std::int16_t Beam = 0;       ///< beam heading, degrees
    std::int16_t CodMax = 0;     ///< highest code found in the log
    std::array<std::string, 20> UndoRec;  ///< the screen as it was before an abort

    // Keying. Times are those of the message or the character being sent.
    float Wpm = 30;                            ///< speed, words a minute
    std::string TxtCw;                         ///< the message, with its placeholders filled
    std::int16_t MorseCnt = 0;                 ///< rows of the table of Morse codes
    std::int16_t TickBase = 0;                 ///< units of a second of which one is a dot at one word a minute
    float CharUnit = 0;                        ///< unit of the spaces, in ticks of 1/18.2 second
    float ElemUnit = 0;                        ///< unit of dots and dashes, in the same
    float KeyOnMs = 0;                         ///< of the current element
    float KeyOffMs = 0;                        ///< of the gap behind it
    float ElemLen = 0;                         ///< 1 for a dot, 3 for a dash
    float TabIdx = 0;                          ///< running row of the table, from 1
    std::string SymCur;                        ///< the character being sent
    std::int16_t CharIdx = 0;                  ///< its place in the message, from 1
    float SecNow = 0;                          ///< seconds of the day
    float SecStart = 0;                        ///< the same, when the message began
    platform::MonotonicTime keyingDeadline{};  ///< when the line is due to change next
    std::string WavPath;                       ///< the sound file to play
    std::int16_t CwRepStop = 0;                ///< 100 would end automatic calling
    std::int16_t CwRepBreak = 0;               ///< 100: a key asks automatic calling to end
    std::int16_t CwF1Armed = 0;                ///< 100: F1 came in CW
    std::int16_t SsbRepStop = 0;               ///< the same three for voice
    std::int16_t SsbRepBreak = 0;
    std::int16_t SsbF1Armed = 0;

 private:
    void writeMenu();
    void placeCall();
    void placeSent();
    void placeReceived();
    void placeTime();
    void placeLastCode();
    void placeHeading();
    void placeBands();
    void placeModes();
    void placeStages();
    void placePauses();
    void placeDuplicate();
    void placeScore();
    void placeScoreColumns(double band, double points, double count);
    void placeMyData();
    void placeMicrowaveBands();
    void placeMessages();
    void placeMessageRows(double top, double step, double width);
    void placeKeyingSpeed();
    void placeLegend();
    void bindTables();
    void placeGrids();
    void raiseReceivedExchange();
};

}  // namespace screen

extern screen::FrmQSOForm FrmQSO;
