#include "screen/frm_qso.h"

#include "screen/access_keys.h"
#include "screen/placing.h"

screen::FrmQSOForm FrmQSO;

namespace screen {

// The page has three columns: from 120 and from 3660 to 7080 the QSO, from 7200 to 11880 what it is worked with and
// what came of it; below 4800 the log, beside it what is looked up. A gap is 60, or 120 between the columns. Free is
// what the compass rose needs: 3060 to 5340 from the left, 2250 to 4740 from the top. On low screens the received
// exchange steps down to 2400 on the microwave bands.

namespace {

constexpr double captionPoints = 10;
constexpr double exchangePoints = 18;
constexpr double namePoints = 12;

}  // namespace

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
    giveAccessKeys(*this);
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
    put(LblCall, "   CALL", {120, 60, 3420, 240});
    put({{txtIndic, "", "Introdu indicativul statiei corespondente si ENTER", {120, 300, 3420, 630}}});
    put(LblNeu, "NEU", {120, 945, 1440, 240});
    put(CmdEnterCall, "&Enter Call", {5820, 1260, 1260, 390});
    put(CmdAbbruchX, " &Abort ", {5820, 1740, 1260, 390});
    put(LblOffLine, "OFF LINE", {5400, 945, 1680, 240});

    LblCall.heads = {&txtIndic};
    LblOffLine.ForeColor = warning;
    setFont({&txtIndic}, 24, true);
    setFont({&LblCall, &LblOffLine, &LblNeu}, captionPoints, true);
    setFont({&CmdEnterCall, &CmdAbbruchX}, 9, true);
    setBackColor({&txtIndic}, yellow);
    plainCharactersOnly({&txtIndic});
    disable({&txtIndic, &CmdEnterCall});
    hide({&LblNeu, &LblOffLine});
}

void FrmQSOForm::placeSent()
{
    put(LblRSTe, "RSTS CODS QTHLOCS", {3660, 60, 3420, 240});
    put({
        {TxtRSTE1, "  ", "Computerul introduce 599/59", {3660, 300, 840, 630}},
        {txtRSTE2, " ", "Computerul introduce codul de transmis", {4560, 300, 1020, 630}},
        {txtRSTe3, " ", "Computerul introduce QTHLoc. propriu", {5640, 300, 1440, 630}},
        {TxtMyName, "", "", {5640, 990, 1440, 240}},
    });
    LblRSTe.heads = {&TxtRSTE1, &txtRSTE2, &txtRSTe3, &TxtMyName};
    setFont({&LblRSTe}, captionPoints, true);
    setFont({&TxtRSTE1, &txtRSTE2, &txtRSTe3}, exchangePoints, true);
    setFont({&TxtMyName}, namePoints, true);
    setBackColor({&TxtRSTE1, &txtRSTE2, &txtRSTe3, &TxtMyName}, yellow);
    plainCharactersOnly({&TxtRSTE1, &txtRSTE2, &txtRSTe3});
    disable({&TxtRSTE1, &txtRSTE2, &txtRSTe3});
    hide({&TxtMyName});
}

void FrmQSOForm::placeReceived()
{
    put(LblRSTR, "      RSTR CODR QTHLOCR", {120, 1260, 3420, 240});
    put({
        {TxtRSTR1, " ", "Computerul introduce 599/59", {120, 1500, 840, 630}},
        {TxtRSTR2, " ", "Introdu codul receptionat", {1020, 1500, 1020, 630}},
        {TxtRSTr3, " ", "Introdu QTHLoc. receptionat", {2100, 1500, 1440, 630}},
        {TxtYourName, "", "", {2100, 990, 1440, 240}},
    });
    LblRSTR.heads = {&TxtRSTR1, &TxtRSTR2, &TxtRSTr3, &TxtYourName};
    setFont({&LblRSTR}, captionPoints, true);
    setFont({&TxtRSTR1, &TxtRSTR2, &TxtRSTr3}, exchangePoints, true);
    setFont({&TxtYourName}, namePoints, true);
    setBackColor({&TxtRSTR1, &TxtRSTR2, &TxtRSTr3, &TxtYourName}, yellow);
    plainCharactersOnly({&TxtRSTR1, &TxtRSTR2, &TxtRSTr3});
    disable({&TxtRSTR1, &TxtRSTR2, &TxtRSTr3});
    hide({&TxtYourName});
}

void FrmQSOForm::placeTime()
{
    put(LblUTC, "   UTC", {3660, 1260, 840, 240});
    put(LblDate, "   Date", {4560, 1260, 1200, 240});
    put({
        {TxtUTC, " ", "", {3660, 1500, 840, 630}},
        {TxtDate, "", "", {4560, 1500, 1200, 630}},
    });
    LblUTC.heads = {&TxtUTC};
    LblDate.heads = {&TxtDate};
    setFont({&LblUTC, &LblDate}, captionPoints, true);
    setFont({&TxtUTC, &TxtDate}, 11, false);
    setBackColor({&TxtUTC, &TxtDate}, grey);
    plainCharactersOnly({&TxtUTC, &TxtDate});
}

void FrmQSOForm::placeLastCode()
{
    constexpr Rectangle codePlace{4560, 945, 780, 240};

    put(LblLastCode, "LAST", {3660, 945, 840, 240});
    put({
        {LblCod, "000", codePlace},
        {LblCod432, "000", codePlace},
        {LblCod1296, "000", codePlace},
        {LblCodGhz, "000", codePlace},
    });
    setFont({&LblCod, &LblCod432, &LblCod1296, &LblCodGhz}, captionPoints, true);
    hide({&LblCod432, &LblCod1296, &LblCodGhz});
}

void FrmQSOForm::placeHeading()
{
    put({
        {LblBeam1, "", {120, 2220, 1380, 600}},
        {LblQRB1, "", {1560, 2220, 1440, 600}},
        {LblConc, "", {7200, 60, 4680, 240}},
        {LblAnunt, "Select  BAND and MODE", {5280, 2190, 6600, 300}},
    });
    LblConc.ForeColor = lampOn;
    LblAnunt.ForeColor = warning;
    setFont({&LblBeam1}, 22, true);
    setFont({&LblQRB1}, 15, true);
    setFont({&LblConc}, captionPoints, true);
    setFont({&LblAnunt}, 12, true);
    hide({&LblAnunt, &Line4});
}

void FrmQSOForm::takeLowScreenPlaces()
{
    put({
        {LblBeam1, {120, 2145, 1380, 240}},
        {LblQRB1, {1560, 2145, 1440, 240}},
    });
}

void FrmQSOForm::placeBands()
{
    put(LblBands, "BAND", {7200, 510, 640, 225});
    put({
        {Lbl144, "", {7900, 300, 540, 120}},
        {Lbl432, "", {8500, 300, 540, 120}},
        {Lbl1296, "", {9100, 300, 540, 120}},
        {LblGHz, "", {9700, 300, 540, 120}},
    });
    put(Cmd144, "144", {7900, 420, 540, 405});
    put(Cmd432, "432", {8500, 420, 540, 405});
    put(Cmd1296, "1296", {9100, 420, 540, 405});
    put(CmdGHz, "GHz", {9700, 420, 540, 405});
    setFont({&LblBands}, 8, true);
    setBackColor({&Lbl144, &Lbl432, &Lbl1296, &LblGHz}, lampOff);
    hide({&CmdGHz});
}

void FrmQSOForm::placeModes()
{
    put(LblMode, "MODE", {7200, 1095, 640, 225});
    put({
        {LblSSB, "", {7900, 885, 540, 120}},
        {LblCW, "", {8500, 885, 540, 120}},
        {LblFm, "", {9100, 885, 540, 120}},
        {LblMixt, "", {9700, 885, 540, 120}},
    });
    put(CmdSSB, "SSB", {7900, 1005, 540, 405});
    put(CmdCW, "CW", {8500, 1005, 540, 405});
    put(CmdFm, "Fm", {9100, 1005, 540, 405});
    put(CmdMixt, "Mixt", {9700, 1005, 540, 405});
    setFont({&LblMode}, 8, true);
    setBackColor({&LblSSB, &LblCW, &LblFm, &LblMixt}, lampOff);
    hide({&CmdMixt});
}

void FrmQSOForm::placeStages()
{
    put(LblA, "", {10380, 300, 1500, 120});
    put(CmdA, "Etapa A", {10380, 420, 1500, 405});
    put(LblB, "", {10380, 885, 1500, 120});
    put(CmdB, "Etapa B", {10380, 1005, 1500, 405});
    setBackColor({&LblA, &LblB}, lampOff);
    hide({&LblA, &LblB, &CmdA, &CmdB});
}

void FrmQSOForm::placePauses()
{
    put(LblPause, "PAUSE", {7200, 1560, 640, 225});
    put({
        {TxtPauseSSB, " 5", "", {7900, 1500, 540, 330}},
        {txtPauseCW, " 5", "", {8500, 1500, 540, 330}},
        {TxtPauseFm, " 5", "", {9100, 1500, 540, 330}},
    });
    put(LblStopCW, "ESC/END=STOP CW", {7900, 1890, 2340, 240});
    setFont({&LblPause, &LblStopCW}, 8, true);
    setFont({&TxtPauseSSB, &txtPauseCW, &TxtPauseFm}, 10, true);
    setBackColor({&TxtPauseSSB, &txtPauseCW, &TxtPauseFm}, yellow);
    hide({&LblPause, &TxtPauseSSB, &txtPauseCW, &TxtPauseFm, &LblStopCW});
}

void FrmQSOForm::placeDuplicate()
{
    put(Frame4, "ATENTIUNE QSO DUBLU", {120, 3060, 2820, 1680});
    put(LblDublu, "Punctaj la QSO - ul :", {120, 330, 2580, 300});
    put(OBtAnterior, "Ant&erior", {120, 690, 2580, 420});
    put(OBtActual, "Ac&tual", {120, 1140, 2580, 420});
    Frame4.ForeColor = warning;
    setFont({&Frame4}, 9, true);
    setFont({&LblDublu}, 10, false);
    setFont({&OBtAnterior, &OBtActual}, 12, true);
    hide({&Frame4});
}

void FrmQSOForm::placeMyData()
{
    put(FramMyData, "MY DATA", {9900, 4800, 1980, 1140});
    put(LblMyCall, "", {120, 300, 1740, 360});
    put(LblMyQRA, "", {120, 690, 1740, 360});
    setFont({&FramMyData}, frameTitlePoints, true);
    setFont({&LblMyCall, &LblMyQRA}, 12, true);
}

void FrmQSOForm::placeLegend()
{
    put(Frame6, "", {7200, 4800, 2640, 1140});
    put({
        {LblKeyNext, "TAB/SP=NEXTFIELD", {120, 75, 2400, 240}},
        {LblKeyReceived, " F8=CODR F9=QRAR    ", {120, 330, 2400, 240}},
        {LblKeySent, "F11=CODS ESC=CLR", {120, 585, 2400, 240}},
        {LblKeyLog, "ENTER/F12=LOG ", {120, 840, 2400, 240}},
    });
}

void FrmQSOForm::placeMicrowaveBands()
{
    put(Frame3, "GHz", {5400, 2520, 1680, 2220});
    TxtFGHz.place(720, 60, 900, 375);
    List1.place(60, 495, 1560, 1665);
    setFont({&Frame3}, frameTitlePoints, true);
    setFont({&TxtFGHz}, 11, true);
    setFont({&List1}, 8, false);
    hide({&Frame3});
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
        grid->place(120, 4800, 6960, 4140);
        grid->fontPoints = 9;
        grid->gesture = RowGesture::doubleClick;
        grid->Visible = false;
    }
}

}  // namespace screen
