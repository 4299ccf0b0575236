// The entry form of the Maraton contest.
#include "screen/frm_qso.h"
#include "screen/placing.h"

namespace screen {

// The rose stands at the top here, 3250 to 4750 from the left, 50 to 1550 from the top; on larger screens 2700 to 4000
// from the left, 2400 to 4650 from the top.
void FrmQSOForm::takeMaratonPlaces(bool rose)
{
    constexpr Rectangle lastCode{5820, 2430, 840, 270};
    constexpr double exchangeTop = 1950;
    constexpr double exchangeHeight = 450;

    put({
        {LblCall, {190, 30, 2980, 290}},
        {txtIndic, {190, 330, 2980, 540}},
        {LblBeam1, {440, 930, 590, 290}},
        {LblQRB1, {1900, 930, 1180, 290}},
        {LblNeu, {440, 1280, 700, 260}},
        {CmdEnterCall, {5640, 60, 1440, 330}},
        {CmdAbbruchX, {5640, 430, 1440, 300}},
        {LblOffLine, {5400, 735, 1600, 290}},
        {LblUTC, {4950, 1030, 860, 235}},
        {TxtUTC, {4950, 1270, 860, 360}},
        {LblDate, {5850, 1030, 1240, 235}},
        {TxtDate, {5850, 1270, 1240, 360}},

        {LblRSTR, {0, 1650, 4900, 290}},
        {TxtRSTR1, {190, exchangeTop, 720, exchangeHeight}},
        {TxtRSTR2, {950, exchangeTop, 840, exchangeHeight}},
        {TxtRSTr3, {1830, exchangeTop, 1340, exchangeHeight}},
        {TxtYourName, {3210, exchangeTop, 1690, exchangeHeight}},
        {LblRSTe, {5060, 1650, 4700, 290}},
        {TxtRSTE1, {5060, exchangeTop, 720, exchangeHeight}},
        {txtRSTE2, {5820, exchangeTop, 840, exchangeHeight}},
        {txtRSTe3, {6700, exchangeTop, 1340, exchangeHeight}},
        {TxtMyName, {8080, exchangeTop, 1690, exchangeHeight}},
        {LblLastCode, {5060, 2440, 720, 240}},
        {LblCod, lastCode},
        {LblCod432, lastCode},
        {LblCod1296, lastCode},
        {LblCodGhz, lastCode},

        {LblAnunt, {5280, 2720, 4400, 290}},
        {Frame2, {120, 2780, 2560, Frame2.design.Height}},
        {FramMyData, {9820, 1680, 2050, 1000}},
        {Frame6, {4200, 3060, 5100, 840}},
        {FrmCwProgr, {10350, 3060, 1530, 1140}},
        {TxtCwCurent, {8420, 4720, 3480, 330}},
        {FramTxtCw, {8420, 5110, 3480, 2890}},
        {DBGrid9, {120, 4720, 8240, 4180}},
    });
    if (!rose) raiseReceivedExchange();
}

// Without the rose the received exchange has the row that it has on the page of the other contests.
void FrmQSOForm::raiseReceivedExchange()
{
    constexpr double top = 1500;
    constexpr double height = 450;

    put({
        {LblBeam1, {440, 890, 590, 290}},
        {LblQRB1, {1900, 890, 1180, 290}},
        {LblNeu, {3250, 890, 700, 260}},
        {LblRSTR, {0, 1200, 4900, 290}},
        {TxtRSTR1, {190, top, 720, height}},
        {TxtRSTR2, {950, top, 840, height}},
        {TxtRSTr3, {1830, top, 1340, height}},
        {TxtYourName, {3210, top, 1690, height}},
    });
}

}  // namespace screen
