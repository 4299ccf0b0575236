// The score on the entry form.
#include "screen/frm_qso.h"
#include "screen/placing.h"

namespace screen {

void FrmQSOForm::placeScore()
{
    // 1455 holds two rows; contests with more bands make the frame 1815 or 2215 high.
    put(Frame2, "", {7200, 2520, 4680, 1455});
    put({
        {LblBandCol, "Bnd", {}},
        {LblPktCol, "Pkt", {}},
        {LblQSOCol, "QSO", {}},
        {LblBand, "144", {}},
        {LblBand1, "432", {}},
        {LblBand2, "1296", {}},
        {LblBand3, "GHz", {}},
    });
    placeScoreColumns(1140, 1800, 1380);
    for (Label* figure : {&LblPkt, &LblPkt1, &LblPkt2, &LblPkt3, &LblQSO, &LblQSO1, &LblQSO2, &LblQSO3})
        figure->Caption = "0";
    for (Label* figure :
         {&LblPktCol, &LblPkt, &LblPkt1, &LblPkt2, &LblPkt3, &LblQSOCol, &LblQSO, &LblQSO1, &LblQSO2, &LblQSO3})
        figure->rightAligned = true;
    setFont({&LblBand}, 18, true);
    setFont({&LblPkt, &LblQSO}, 22, true);  // to be read from across the shack
    setFont({&LblBand1, &LblPkt1, &LblQSO1, &LblBand2, &LblPkt2, &LblQSO2, &LblBand3, &LblPkt3, &LblQSO3}, 14, true);
    hide({&LblBand2, &LblPkt2, &LblQSO2, &LblBand3, &LblPkt3, &LblQSO3});
}

/// The score in columns of these widths. Only the row worked on is high.
void FrmQSOForm::placeScoreColumns(double band, double points, double count)
{
    struct ScoreRow {
        Label& band;
        Label& points;
        Label& count;
        double top;
        double height;
    };
    const ScoreRow rows[] = {
        {LblBandCol, LblPktCol, LblQSOCol, 60, 225}, {LblBand, LblPkt, LblQSO, 285, 585},
        {LblBand1, LblPkt1, LblQSO1, 915, 390},      {LblBand2, LblPkt2, LblQSO2, 1335, 390},
        {LblBand3, LblPkt3, LblQSO3, 1755, 390},
    };
    constexpr double left = 120;
    constexpr double gap = 60;

    for (const ScoreRow& row : rows)
        put({
            {row.band, {left, row.top, band, row.height}},
            {row.points, {left + band, row.top, points, row.height}},
            {row.count, {left + band + points + gap, row.top, count, row.height}},
        });
}

}  // namespace screen
