#include "screen/frm_init.h"

#include "screen/placing.h"

screen::FrmInitForm FrmInit;

namespace screen {

namespace {

// The contests and, once one is picked, the question about the operating mode share this place.
constexpr Rectangle contestPlace{6240, 760, 5520, 3200};

}  // namespace

FrmInitForm::FrmInitForm() : Form("FrmInit")
{
    Caption = "Kelvo";
    writeMenu();
    placeHeading();
    placeStation();
    placeContests();
    placeOperatingMode();
    placeKeying();
    placeMessages();
    placeFoot();
    stopTabEverywhere(*this);
}

void FrmInitForm::writeMenu()
{
    put({
        {mnuExit, "E&XIT"},
        {mnuQSOfahren, "START_&QSO "},
        {mnuLOG, "&LOG"},
        {mnuInputLog, "    &INPUT_LOG_OFF-LINE"},
        {mnuHelp1, "&HELP"},
        {mnuInit, "Initializare"},
        {mnuInDat, "Introducere date"},
        {mnuOutInit, "Iesire din pagina"},
    });
}

void FrmInitForm::placeHeading()
{
    put(LblContest, "", {240, 180, 7200, 420});
    put(LblTypTest, "", {8160, 180, 3600, 420});
    LblTypTest.ForeColor = lampOn;
    setFont({&LblContest, &LblTypTest}, 14, true);
}

void FrmInitForm::placeStation()
{
    put({
        {LblMyCall, "MY CALL  ", {240, 890, 2300, 250}},
        {LblQraLoc, "   MY QRALOC", {240, 1330, 2300, 250}},
        {LblTime, " (Time Local - UTC)", {240, 1770, 2300, 250}},
        {LblMyName, "MY NAME", {240, 2210, 2300, 250}},
        {LblRpNr, "Cod Nr", {240, 2650, 2300, 250}},
        {LblInscr, "(Nr Control for the next QSO)", {3640, 2660, 2580, 250}},
        {LblSD, "START DATE", {240, 3090, 2300, 250}},
        {LblST, "START TIME", {240, 3530, 2300, 250}},
    });
    put({
        {TxtMyCall, "", "Introdu indicativul propriu", {2640, 840, 2400, 340}},
        {txtMyQRA, "", "Introdu QRA Locatorul propriu", {2640, 1280, 2400, 340}},
        {TxtTime, "", "Introdu diferenta intre timpul calculator si timpul UTC", {2640, 1720, 940, 340}},
        {TxtMyName, "", "", {2640, 2160, 2400, 340}},
        {TxtRpNr, "", "Introdu Codul de inceput (vezi regulamentul de concurs)", {2640, 2600, 940, 340}},
        {TxtSD, "", "Introdu data concursului", {2640, 3040, 1500, 340}},
        {TxtST, "", "Introdu ora cind ai inceput concursul", {2640, 3480, 1500, 340}},
    });
    setFont({&LblMyCall, &LblQraLoc, &LblTime, &LblMyName, &LblRpNr, &LblSD, &LblST}, 9, false);
    setFont({&TxtMyCall, &txtMyQRA}, 11, true);
    setFont({&TxtTime, &TxtMyName, &TxtRpNr, &TxtSD, &TxtST}, 11, false);
    plainCharactersOnly({&TxtMyCall, &txtMyQRA, &TxtTime, &TxtRpNr, &TxtSD, &TxtST});
    hide({&LblMyName, &TxtMyName, &LblSD, &TxtSD, &LblST, &TxtST});
}

void FrmInitForm::placeContests()
{
    struct ContestRow {
        OptionButton& option;
        const char* caption;
        const char* toolTip;
    };
    const ContestRow rows[] = {
        {OpBCampNatUUS, "Camp.Nationale UUS", "Lucru in Camp. Nation. UUS"},
        {OpbCarpati, "Trofeul Carpati", "Lucru in Trofeul carpati"},
        {OpbCluj, "Concurs Cluj Napoca", "Lucrul in Concurs Cluj Napoca"},
        {OpBFloareademina, "Floarea de mina", "Lucrul in Concurs Floarea de Mina"},
        {OpbOltenia, "Oltenia 144 MHz", "Lucrul in Concurs Oltenia 144 MHz"},
        {OpBConstrMas, "Constructor masini", "Lucrul in concursul Constructor masini"},
        {OpBTelecom, "Ziua Telecom", ""},
        {OpBMaraton, "Maraton YO2", ""},
        {OpbZPV, "Zi plina de vara", "Lucru in Camp. Intern. UUS"},
        {OpBCampInternUUS, "Camp.Internat. UUS", "Lucru in Camp. Intern. UUS"},
        {OpbOltenia6m, "Oltenia 6m", ""},
    };
    constexpr int rowsAColumn = 6;

    put(FrmConcurs, "Concurs :", contestPlace);
    int number = 0;
    for (const ContestRow& row : rows) {
        const double left = number / rowsAColumn == 0 ? 240 : 2880;
        put(row.option, row.caption, {left, 360.0 + 460 * (number % rowsAColumn), 2480, 320});
        row.option.ToolTipText = row.toolTip;
        setFont({&row.option}, 9, false);
        ++number;
    }
}

void FrmInitForm::placeOperatingMode()
{
    put(FraConcurs, "ATENTIUNE", contestPlace);
    put(LblAnunt, "", {160, 280, 5200, 2340});
    put(OpbConcurs, "C&ONCURS", {720, 2720, 1800, 340});
    put(OpbTest, "T&EST", {3240, 2720, 1800, 340});
    setFont({&LblAnunt}, 9, false);
    setFont({&OpbConcurs, &OpbTest}, 10, true);
    hide({&FraConcurs});
}

void FrmInitForm::placeKeying()
{
    // The caption of the voice options speaks of CW, as that of the CW options does.
    constexpr const char* withComputer = "CW Transmis cu calculatorul DA";
    constexpr const char* withoutComputer = "CW Transmis cu calculatorul NU";

    put(FramCW, "CW cu PC", {240, 4120, 4200, 1440});
    put(OpbCwJ, withComputer, {180, 280, 3840, 300});
    put(OpbCwN, withoutComputer, {180, 640, 3840, 300});
    put(ChkCwRpt, "Cw &Rpt", {180, 1000, 1800, 300});

    put(FramSSB, "SSB cu PC", {4560, 4120, 4200, 1440});
    put(OpbSSBJ, withComputer, {180, 280, 3840, 300});
    put(OpbSSBN, withoutComputer, {180, 640, 3840, 300});
    put(ChkSSBRpt, "&SSB Rpt", {180, 1000, 1800, 300});

    put(LblCP, "CommPort:", {9120, 4410, 1320, 250});
    put({{TxtCP, "", "Introdu Nr. Port Serial", {10500, 4360, 900, 340}}});
    setFont({&LblCP}, 9, false);
    setFont({&TxtCP}, 11, false);

    OpbCwN.Value = true;
    OpbSSBN.Value = true;
    hide({&ChkCwRpt, &ChkSSBRpt});
}

void FrmInitForm::placeMessages()
{
    struct MessageRow {
        Label& label;
        const char* caption;
        TextBox& text;
        const char* toolTip;
    };
    const MessageRow rows[] = {
        {LblF1, "F1", TxtF1, "Text telegrafic de transmis prin F1"},
        {LblF2, "F2", TxtF2, "Text telegrafic de transmis prin F2"},
        {LblF3, "F3", TxtF3, "Text telegrafic de transmis prin F3"},
        {LblF4, "F4", TxtF4, "Text telegrafic de transmis prin F4"},
        {LblF5, "F5", TxtF5, "Text telegrafic de transmis prin F5"},
        {LblF6, "F6", TxtF6, "Text telegrafic de transmis prin F6"},
        {LblF7, "F7", TxtF7, "Text de transmis prin F7"},
    };

    put(FramTxtCw, "TEXT PROGRAM CW", {240, 5720, 11520, 2840});
    double top = 260;
    for (const MessageRow& row : rows) {
        put(row.label, row.caption, {180, top + 40, 360, 240});
        put({{row.text, "", row.toolTip, {600, top, 7800, 320}}});
        setFont({&row.text}, 9, false);
        top += 360;
    }
    put({
        {LblMC, "#1 = MyCall", {8760, 300, 2520, 250}},
        {LblYC, "#2 = YourCall", {8760, 660, 2520, 250}},
        {LblNo, "#3 = Report Nr", {8760, 1020, 2520, 250}},
        {LblMQRA, "#4 = My QRA", {8760, 1380, 2520, 250}},
    });
    setFont({&LblMC, &LblYC, &LblNo, &LblMQRA}, 9, false);
    hide({&FramTxtCw});
}

void FrmInitForm::placeFoot()
{
    put({
        {LblVar, "Var. A1.07", {240, 8670, 2400, 240}},
        {LblJosIn, "F1 = HELP", {5280, 8670, 1440, 240}},
        {LblSemn1, "Created by XX9ZZZ", {9480, 8670, 2280, 240}},
    });
    LblSemn1.rightAligned = true;
}

}  // namespace screen
