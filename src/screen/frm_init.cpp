#include "screen/frm_init.h"

#include "screen/placing.h"

screen::FrmInitForm FrmInit;

namespace screen {

namespace {

// The contests and, once one is picked, the question about the operating mode share this place.
constexpr Rectangle contestPlace{6240, 780, 5520, 3300};

constexpr double labelPoints = 10;
constexpr double fieldPoints = 12;

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
    put(LblContest, "", {240, 150, 7200, 480});
    put(LblTypTest, "", {7560, 150, 4200, 480});
    LblTypTest.ForeColor = lampOn;
    LblTypTest.rightAligned = true;
    setFont({&LblContest, &LblTypTest}, 14, true);
}

// Seven questions on six rows: either the name or the number is asked for.
void FrmInitForm::placeStation()
{
    put({
        {LblMyCall, "MY CALL  ", {240, 945, 2340, 270}},
        {LblQraLoc, "   MY QRALOC", {240, 1485, 2340, 270}},
        {LblTime, " (Time Local - UTC)", {240, 2025, 2340, 270}},
        {LblMyName, "MY NAME", {240, 2565, 2340, 270}},
        {LblRpNr, "Cod Nr", {240, 2565, 2340, 270}},
        {LblInscr, "(Nr Control for the next QSO)", {3660, 2565, 2550, 270}},
        {LblSD, "START DATE", {240, 3105, 2340, 270}},
        {LblST, "START TIME", {240, 3645, 2340, 270}},
    });
    put({
        {TxtMyCall, "", "Introdu indicativul propriu", {2640, 870, 2640, 420}},
        {txtMyQRA, "", "Introdu QRA Locatorul propriu", {2640, 1410, 2640, 420}},
        {TxtTime, "", "Introdu diferenta intre timpul calculator si timpul UTC", {2640, 1950, 960, 420}},
        {TxtMyName, "", "", {2640, 2490, 2640, 420}},
        {TxtRpNr, "", "Introdu Codul de inceput (vezi regulamentul de concurs)", {2640, 2490, 960, 420}},
        {TxtSD, "", "Introdu data concursului", {2640, 3030, 1800, 420}},
        {TxtST, "", "Introdu ora cind ai inceput concursul", {2640, 3570, 1800, 420}},
    });
    setFont({&LblMyCall, &LblQraLoc, &LblTime, &LblMyName, &LblRpNr, &LblSD, &LblST}, labelPoints, false);
    setFont({&TxtMyCall, &txtMyQRA}, fieldPoints, true);
    setFont({&TxtTime, &TxtMyName, &TxtRpNr, &TxtSD, &TxtST}, fieldPoints, false);
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
    setFont({&FrmConcurs}, frameTitlePoints, true);
    int number = 0;
    for (const ContestRow& row : rows) {
        const double left = number / rowsAColumn == 0 ? 120 : 2790;
        put(row.option, row.caption, {left, 330.0 + 480 * (number % rowsAColumn), 2580, 420});
        row.option.ToolTipText = row.toolTip;
        setFont({&row.option}, 10, false);
        ++number;
    }
}

void FrmInitForm::placeOperatingMode()
{
    put(FraConcurs, "ATENTIUNE", contestPlace);
    setFont({&FraConcurs}, frameTitlePoints, true);
    put(LblAnunt, "", {120, 330, 5280, 2340});
    put(OpbConcurs, "C&ONCURS", {120, 2760, 2580, 420});
    put(OpbTest, "T&EST", {2790, 2760, 2580, 420});
    setFont({&LblAnunt}, 10, false);
    setFont({&OpbConcurs, &OpbTest}, 12, true);
    hide({&FraConcurs});
}

void FrmInitForm::placeKeying()
{
    // The caption of the voice options speaks of CW, as that of the CW options does.
    constexpr const char* withComputer = "CW Transmis cu calculatorul DA";
    constexpr const char* withoutComputer = "CW Transmis cu calculatorul NU";

    put(FramCW, "CW cu PC", {240, 4200, 4320, 1500});
    put(OpbCwJ, withComputer, {120, 300, 4080, 345});
    put(OpbCwN, withoutComputer, {120, 675, 4080, 345});
    put(ChkCwRpt, "Cw &Rpt", {120, 1050, 4080, 345});

    put(FramSSB, "SSB cu PC", {4680, 4200, 4320, 1500});
    put(OpbSSBJ, withComputer, {120, 300, 4080, 345});
    put(OpbSSBN, withoutComputer, {120, 675, 4080, 345});
    put(ChkSSBRpt, "&SSB Rpt", {120, 1050, 4080, 345});

    put(LblCP, "CommPort:", {9240, 4545, 1500, 270});
    put({{TxtCP, "", "Introdu Nr. Port Serial", {10800, 4470, 960, 420}}});
    setFont({&FramCW, &FramSSB}, frameTitlePoints, true);
    setFont({&OpbCwJ, &OpbCwN, &ChkCwRpt, &OpbSSBJ, &OpbSSBN, &ChkSSBRpt}, 9, false);
    setFont({&LblCP}, labelPoints, false);
    setFont({&TxtCP}, fieldPoints, false);

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

    put(FramTxtCw, "TEXT PROGRAM CW", {240, 5820, 11520, 2760});
    double top = 270;
    for (const MessageRow& row : rows) {
        put(row.label, row.caption, {120, top + 30, 420, 255});
        put({{row.text, "", row.toolTip, {600, top, 8160, 315}}});
        setFont({&row.label}, 9, true);
        setFont({&row.text}, 10, false);
        top += 345;
    }
    put({
        {LblMC, "#1 = MyCall", {9000, 300, 2340, 255}},
        {LblYC, "#2 = YourCall", {9000, 645, 2340, 255}},
        {LblNo, "#3 = Report Nr", {9000, 990, 2340, 255}},
        {LblMQRA, "#4 = My QRA", {9000, 1335, 2340, 255}},
    });
    setFont({&FramTxtCw}, frameTitlePoints, true);
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
