#include "screen/frm_qso.h"

#include "screen/placing.h"

screen::FrmQSOForm FrmQSO;

namespace screen {

// Free on this page is what the compass rose needs: 3000 to 5350 from the left, 2400 to 4650 from the top. On the
// smallest screens the received exchange steps down to 2400 on the microwave bands; nothing else stands there.

FrmQSOForm::FrmQSOForm() : Form("FrmQSO")
{
    Caption = "Kelvo";
    writeMenu();
    placeCall();
    placeSent();
    placeReceived();
    placeTime();
    placeLastCode();
    placeHeading();
    placeBands();
    placeModes();
    placeStages();
    placePauses();
    placeDuplicate();
    placeScore();
    placeMyData();
    placeMicrowaveBands();
    placeMessages();
    placeKeyingSpeed();
    placeLegend();
    bindTables();
    placeGrids();
    makeParkingPlace(TxtRez);
    tmrTimer.Interval = 1000;
}

void FrmQSOForm::writeMenu()
{
    put({
        {mnuBeenden, "E&XIT"},
        {mnuAnfang, "1_ST_PA&GE"},
        {mnuRecup, "RECUP.D&UPA ANULARE"},
        {mnuHelp2, "HELP"},
        {mnuDescr, "Descriere ecran"},
        {mnuSchimb, "Schimbare banda si mod "},
        {mnuInDat, "Introducere date"},
        {mnuModif, "Modificare date"},
        {mnuOutPag, "Iesire din pagina"},
    });
}

void FrmQSOForm::placeCall()
{
    put(LblCall, "   CALL", {440, 30, 2980, 290});
    put({{txtIndic, "", "Introdu indicativul statiei corespondente si ENTER", {440, 330, 2980, 540}}});
    put(LblNeu, "NEU", {2720, 900, 700, 260});
    put(CmdEnterCall, "&Enter Call", {5940, 1400, 1160, 330});
    put(CmdAbbruchX, " &Abort ", {5940, 1770, 1160, 280});
    put(LblOffLine, "OFF LINE", {5400, 900, 1600, 290});

    LblOffLine.ForeColor = red;
    setFont({&txtIndic}, 18, true);
    setFont({&LblCall, &LblOffLine}, 12, true);
    setFont({&LblNeu, &CmdEnterCall}, 9, true);
    setBackColor({&txtIndic}, yellow);
    plainCharactersOnly({&txtIndic});
    disable({&txtIndic, &CmdEnterCall});
    hide({&LblNeu, &LblOffLine});
}

void FrmQSOForm::placeSent()
{
    put(LblRSTe, "RSTS CODS QTHLOCS", {3720, 30, 2980, 290});
    put({
        {TxtRSTE1, "  ", "Computerul introduce 599/59", {3720, 330, 720, 480}},
        {txtRSTE2, " ", "Computerul introduce codul de transmis", {4480, 330, 840, 480}},
        {txtRSTe3, " ", "Computerul introduce QTHLoc. propriu", {5360, 330, 1340, 480}},
        {TxtMyName, "", "", {5360, 850, 1340, 480}},
    });
    setFont({&LblRSTe, &TxtRSTE1, &txtRSTE2, &txtRSTe3}, 12, true);
    setFont({&TxtMyName}, 11, true);
    setBackColor({&TxtRSTE1, &txtRSTE2, &txtRSTe3, &TxtMyName}, yellow);
    plainCharactersOnly({&TxtRSTE1, &txtRSTE2, &txtRSTe3});
    disable({&TxtRSTE1, &txtRSTE2, &txtRSTe3});
    hide({&TxtMyName});
}

void FrmQSOForm::placeReceived()
{
    put(LblRSTR, "      RSTR CODR QTHLOCR", {0, 1200, 3600, 290});
    put({
        {TxtRSTR1, " ", "Computerul introduce 599/59", {440, 1500, 720, 480}},
        {TxtRSTR2, " ", "Introdu codul receptionat", {1200, 1500, 840, 480}},
        {TxtRSTr3, " ", "Introdu QTHLoc. receptionat", {2080, 1500, 1340, 480}},
        {TxtYourName, "", "", {2080, 2020, 1340, 480}},
    });
    setFont({&LblRSTR, &TxtRSTR1, &TxtRSTR2, &TxtRSTr3}, 12, true);
    setFont({&TxtYourName}, 11, true);
    setBackColor({&TxtRSTR1, &TxtRSTR2, &TxtRSTr3, &TxtYourName}, yellow);
    plainCharactersOnly({&TxtRSTR1, &TxtRSTR2, &TxtRSTr3});
    disable({&TxtRSTR1, &TxtRSTR2, &TxtRSTr3});
    hide({&TxtYourName});
}

void FrmQSOForm::placeTime()
{
    put(LblUTC, "   UTC", {3720, 1240, 860, 250});
    put(LblDate, "   Date", {4620, 1240, 1240, 250});
    put({
        {TxtUTC, " ", "", {3720, 1500, 860, 480}},
        {TxtDate, "", "", {4620, 1500, 1240, 480}},
    });
    setFont({&LblUTC, &LblDate}, 10, true);
    setFont({&TxtUTC, &TxtDate}, 12, false);
    setBackColor({&TxtUTC, &TxtDate}, grey);
    plainCharactersOnly({&TxtUTC, &TxtDate});
}

void FrmQSOForm::placeLastCode()
{
    constexpr Rectangle codePlace{4480, 850, 840, 270};

    put(LblLastCode, "LAST", {3720, 870, 720, 250});
    put({
        {LblCod, "000", codePlace},
        {LblCod432, "000", codePlace},
        {LblCod1296, "000", codePlace},
        {LblCodGhz, "000", codePlace},
    });
    setFont({&LblCod, &LblCod432, &LblCod1296, &LblCodGhz}, 11, true);
    hide({&LblCod432, &LblCod1296, &LblCodGhz});
}

void FrmQSOForm::placeHeading()
{
    put({
        {LblQRB1, "", {3240, 2080, 1150, 290}},
        {LblBeam1, "", {4420, 2080, 690, 290}},
        {LblConc, "", {7200, 30, 3100, 290}},
        {LblAnunt, "Select  BAND and MODE", {5280, 2120, 4800, 300}},
    });
    LblAnunt.ForeColor = red;
    setFont({&LblQRB1, &LblBeam1}, 11, true);
    setFont({&LblConc, &LblAnunt}, 12, true);
    hide({&LblAnunt, &Line4});
}

void FrmQSOForm::placeBands()
{
    put(LblBands, "BAND", {7200, 500, 660, 250});
    put({
        {Lbl144, "", {7900, 350, 560, 110}},
        {Lbl432, "", {8500, 350, 560, 110}},
        {Lbl1296, "", {9100, 350, 560, 110}},
        {LblGHz, "", {9700, 350, 560, 110}},
    });
    put(Cmd144, "144", {7900, 470, 560, 340});
    put(Cmd432, "432", {8500, 470, 560, 340});
    put(Cmd1296, "1296", {9100, 470, 560, 340});
    put(CmdGHz, "GHz", {9700, 470, 560, 340});
    setFont({&LblBands}, 8, true);
    setBackColor({&Lbl144, &Lbl432, &Lbl1296, &LblGHz}, lampOff);
    hide({&CmdGHz});
}

void FrmQSOForm::placeModes()
{
    put(LblMode, "MODE", {7200, 1010, 660, 250});
    put({
        {LblSSB, "", {7900, 860, 560, 110}},
        {LblCW, "", {8500, 860, 560, 110}},
        {LblFm, "", {9100, 860, 560, 110}},
        {LblMixt, "", {9700, 860, 560, 110}},
    });
    put(CmdSSB, "SSB", {7900, 980, 560, 340});
    put(CmdCW, "CW", {8500, 980, 560, 340});
    put(CmdFm, "Fm", {9100, 980, 560, 340});
    put(CmdMixt, "Mixt", {9700, 980, 560, 340});
    setFont({&LblMode}, 8, true);
    setBackColor({&LblSSB, &LblCW, &LblFm, &LblMixt}, lampOff);
    hide({&CmdMixt});
}

void FrmQSOForm::placeStages()
{
    put(LblA, "", {10560, 350, 1200, 110});
    put(CmdA, "Etapa A", {10560, 470, 1200, 340});
    put(LblB, "", {10560, 860, 1200, 110});
    put(CmdB, "Etapa B", {10560, 980, 1200, 340});
    setBackColor({&LblA, &LblB}, lampOff);
    hide({&LblA, &LblB, &CmdA, &CmdB});
}

void FrmQSOForm::placePauses()
{
    put(LblPause, "PAUSE", {7200, 1390, 660, 250});
    put({
        {TxtPauseSSB, " 5", "", {7900, 1360, 560, 280}},
        {txtPauseCW, " 5", "", {8500, 1360, 560, 280}},
        {TxtPauseFm, " 5", "", {9100, 1360, 560, 280}},
    });
    put(LblStopCW, "ESC/END=STOP CW", {9760, 1390, 2120, 250});
    setFont({&LblPause, &LblStopCW}, 8, true);
    setBackColor({&TxtPauseSSB, &txtPauseCW, &TxtPauseFm}, yellow);
    hide({&LblPause, &TxtPauseSSB, &txtPauseCW, &TxtPauseFm, &LblStopCW});
}

void FrmQSOForm::placeDuplicate()
{
    put(Frame4, "ATENTIUNE QSO DUBLU", {120, 3000, 2700, 1480});
    put(LblDublu, "Punctaj la QSO - ul :", {160, 320, 2380, 280});
    put(OBtAnterior, "Ant&erior", {240, 660, 2240, 320});
    put(OBtActual, "Ac&tual", {240, 1050, 2240, 320});
    Frame4.ForeColor = red;
    setFont({&Frame4}, 9, true);
    setFont({&LblDublu}, 9, false);
    setFont({&OBtAnterior, &OBtActual}, 11, true);
    hide({&Frame4});
}

void FrmQSOForm::placeScore()
{
    struct ScoreRow {
        Label& band;
        const char* caption;
        Label& points;
        Label& count;
    };
    const ScoreRow rows[] = {
        {LblBand, "144", LblPkt, LblQSO},
        {LblBand1, "432", LblPkt1, LblQSO1},
        {LblBand2, "1296", LblPkt2, LblQSO2},
        {LblBand3, "GHz", LblPkt3, LblQSO3},
    };

    // 1455 holds two rows; contests with more bands make the frame 1815 or 2215 high.
    put(Frame2, "SCORE", {5450, 2450, 2560, 1455});
    put({
        {LblBandCol, "Bnd", {100, 240, 740, 240}},
        {LblPktCol, "Pkt", {860, 240, 920, 240}},
        {LblQSOCol, "QSO", {1840, 240, 640, 240}},
    });
    double top = 510;
    for (const ScoreRow& row : rows) {
        put(row.band, row.caption, {100, top, 740, 340});
        put(row.points, "0", {860, top, 920, 340});
        put(row.count, "0", {1840, top, 640, 340});
        row.points.rightAligned = true;
        row.count.rightAligned = true;
        setFont({&row.band, &row.points, &row.count}, 10, true);
        top += 400;
    }
    LblPktCol.rightAligned = true;
    LblQSOCol.rightAligned = true;
    hide({&LblBand2, &LblPkt2, &LblQSO2, &LblBand3, &LblPkt3, &LblQSO3});
}

void FrmQSOForm::placeMyData()
{
    put(FramMyData, "MY DATA", {8130, 2450, 2100, 1000});
    put(LblMyCall, "", {100, 260, 1900, 320});
    put(LblMyQRA, "", {100, 610, 1900, 320});
    setFont({&LblMyCall, &LblMyQRA}, 12, true);
}

void FrmQSOForm::placeMicrowaveBands()
{
    put(Frame3, "GHz", {10350, 2450, 1530, 2200});
    TxtFGHz.place(120, 260, 1290, 340);
    List1.place(120, 660, 1290, 1440);
    setFont({&TxtFGHz}, 11, true);
    hide({&Frame3});
}

void FrmQSOForm::placeMessages()
{
    struct MessageRow {
        Label& label;
        const char* caption;
        TextBox& text;
    };
    const MessageRow rows[] = {
        {LblF1, "F1", TxtF1}, {LblF2, "F2", TxtF2}, {LblF3, "F3", TxtF3}, {LblF4, "F4", TxtF4},
        {LblF5, "F5", TxtF5}, {LblF6, "F6", TxtF6}, {LblF7, "F7", TxtF7},
    };

    put({{TxtCwCurent, "", "", {6780, 4720, 5100, 330}}});
    put(FramTxtCw, "TEXT PROGRAM CW", {6780, 5110, 3480, 2890});
    double top = 240;
    for (const MessageRow& row : rows) {
        put(row.label, row.caption, {100, top + 30, 280, 240});
        put({{row.text, "", "", {400, top, 2980, 300}}});
        top += 310;
    }
    put(LblRezCW, "#1=MYCALL  #2=YOURCALL #3=CODS      #4=MYQRA", {100, 2430, 3300, 420});
    setBackColor({&TxtF1}, yellow);  // green once automatic calling is on
    setFont({&TxtCwCurent}, 10, false);
    hide({&TxtCwCurent, &FramTxtCw});
}

void FrmQSOForm::placeKeyingSpeed()
{
    put(FrmCwProgr, "CW", {10350, 5110, 1530, 1140});
    put(lblWPM, "30", {100, 300, 640, 400});
    put(LblSpeedUnit, "WPM", {800, 380, 640, 260});
    put(LblSpeedKeys, "PgUp PgDn", {100, 780, 1340, 250});
    lblWPM.rightAligned = true;
    setFont({&lblWPM}, 14, true);
    hide({&FrmCwProgr});
}

void FrmQSOForm::placeLegend()
{
    put(Frame6, "", {6780, 8060, 5100, 840});
    put({
        {LblKeyNext, "TAB/SP=NEXTFIELD", {160, 230, 2300, 250}},
        {LblKeyReceived, " F8=CODR F9=QRAR    ", {2640, 230, 2300, 250}},
        {LblKeySent, "F11=CODS ESC=CLR", {160, 520, 2300, 250}},
        {LblKeyLog, "ENTER/F12=LOG ", {2640, 520, 2300, 250}},
    });
}

void FrmQSOForm::bindTables()
{
    put({
        {QRA, "QRA"},
        {Uus144a, "open"},
        {Uus144b, ""},
        {Uus432a, "Uus432a"},
        {Uus432b, "Uus432b"},
        {Uus1296a, "Uus1296a"},
        {Uus1296b, "Uus1296b"},
        {UusGHz, "UusGHZ"},
        {UusLGYO2, "UusLGYO2"},
    });
}

void FrmQSOForm::placeGrids()
{
    for (Grid* grid : {&DBGrid1, &DBGrid2, &DBGrid3, &DBGrid4, &DBGrid5, &DBGrid6, &DBGrid7, &DBGrid8, &DBGrid9}) {
        grid->place(120, 4720, 6600, 4180);
        grid->gesture = RowGesture::doubleClick;
        grid->Visible = false;
    }
}

}  // namespace screen
