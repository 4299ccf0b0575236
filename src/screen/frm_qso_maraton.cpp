// The entry form of the Maraton contest.
#include "screen/frm_qso.h"
#include "screen/placing.h"

namespace screen {

// Both exchanges with their names fill the width of the page. The rose stands at the top here, 3250 to 4750 from the
// left, 50 to 1540 from the top; on larger screens 2550 to 4050 from the left, 2340 to 4740 from the top. No stages are
// worked, so the pauses of automatic calling take their place.
void FrmQSOForm::takeMaratonPlaces(bool rose)
{
    constexpr Rectangle lastCode{6960, 2355, 1080, 240};
    constexpr double captionTop = 1560;
    constexpr double exchangeTop = 1815;
    constexpr double exchangeHeight = 510;  // ends above the letters of the rose

    put({
        {LblCall, {120, 60, 3060, 240}},
        {txtIndic, {120, 300, 3060, 630}},
        {LblNeu, {120, 945, 1200, 240}},
        {LblQRB1, {1900, 945, 1280, 420}},
        {LblBeam1, {4800, 400, 960, 450}},
        {LblOffLine, {5400, 45, 1680, 240}},
        {CmdEnterCall, {5820, 300, 1260, 315}},
        {CmdAbbruchX, {5820, 645, 1260, 315}},
        {LblUTC, {4860, 975, 840, 240}},
        {TxtUTC, {4860, 1215, 840, 315}},
        {LblDate, {5760, 975, 1320, 240}},
        {TxtDate, {5760, 1215, 1320, 315}},

        {LblRSTR, {120, captionTop, 5820, 240}},
        {TxtRSTR1, {120, exchangeTop, 840, exchangeHeight}},
        {TxtRSTR2, {1020, exchangeTop, 1080, exchangeHeight}},
        {TxtRSTr3, {2160, exchangeTop, 1560, exchangeHeight}},
        {TxtYourName, {3780, exchangeTop, 2160, exchangeHeight}},
        {LblRSTe, {6060, captionTop, 5820, 240}},
        {TxtRSTE1, {6060, exchangeTop, 840, exchangeHeight}},
        {txtRSTE2, {6960, exchangeTop, 1080, exchangeHeight}},
        {txtRSTe3, {8100, exchangeTop, 1560, exchangeHeight}},
        {TxtMyName, {9720, exchangeTop, 2160, exchangeHeight}},
        {LblLastCode, {6060, 2355, 840, 240}},
        {LblCod, lastCode},
        {LblCod432, lastCode},
        {LblCod1296, lastCode},
        {LblCodGhz, lastCode},

        {LblPause, {10380, 300, 1500, 210}},
        {TxtPauseSSB, {10380, 510, 460, 315}},
        {txtPauseCW, {10900, 510, 460, 315}},
        {TxtPauseFm, {11420, 510, 460, 315}},
        {LblStopCW, {10380, 900, 1500, 450}},

        {LblAnunt, {5280, 2610, 6600, 300}},
        {Frame6, {120, 2925, 2400, 1815}},
        {LblKeyNext, {120, 180, 2160, 240}},
        {LblKeyReceived, {120, 570, 2160, 240}},
        {LblKeySent, {120, 960, 2160, 240}},
        {LblKeyLog, {120, 1350, 2160, 240}},
        {Frame2, {4140, 2925, 4200, Frame2.design.Height}},
        {FramMyData, {8460, 2925, 1860, 1320}},
        {LblMyCall, {120, 330, 1620, 390}},
        {LblMyQRA, {120, 780, 1620, 390}},
        {FrmCwProgr, {10380, 2925, 1500, 1320}},
        {lblWPM, {60, 330, 660, 540}},
        {LblSpeedUnit, {780, 480, 660, 240}},
        {LblSpeedKeys, {60, 960, 1380, 240}},
        {TxtCwCurent, {8460, 4350, 3420, 390}},
        {FramTxtCw, {8460, 4800, 3420, 4140}},
        {LblRezCW, {120, 3525, 3180, 435}},
        {DBGrid9, {120, 4800, 8280, 4140}},
    });
    placeScoreColumns(900, 1740, 1260);
    placeMessageRows(270, 465, 2820);
    if (!rose) raiseReceivedExchange();
}

// Without the rose the received exchange has the row that it has on the page of the other contests.
void FrmQSOForm::raiseReceivedExchange()
{
    constexpr double top = 1500;
    constexpr double height = 540;

    put({
        {LblUTC, {3300, 60, 840, 240}},
        {TxtUTC, {3300, 300, 840, 330}},
        {LblDate, {4260, 60, 1080, 240}},
        {TxtDate, {4260, 300, 1320, 330}},
        {LblBeam1, {3300, 690, 960, 450}},
        {LblQRB1, {1900, 945, 1280, 300}},
        {LblRSTR, {120, 1260, 5820, 240}},
        {TxtRSTR1, {120, top, 840, height}},
        {TxtRSTR2, {1020, top, 1080, height}},
        {TxtRSTr3, {2160, top, 1560, height}},
        {TxtYourName, {3780, top, 2160, height}},
    });
}

}  // namespace screen
