#include "band/score_rows.h"

#include "base/number.h"
#include "screen/frm_qso.h"

namespace band {

ScoreRow scoreRow(int number)
{
    switch (number) {
        case 0:
            return {FrmQSO.LblBand, FrmQSO.LblPkt, FrmQSO.LblQSO};
        case 1:
            return {FrmQSO.LblBand1, FrmQSO.LblPkt1, FrmQSO.LblQSO1};
        case 2:
            return {FrmQSO.LblBand2, FrmQSO.LblPkt2, FrmQSO.LblQSO2};
        default:
            return {FrmQSO.LblBand3, FrmQSO.LblPkt3, FrmQSO.LblQSO3};
    }
}

void showFigures(int number, std::int32_t points, std::int16_t qsos)
{
    const ScoreRow row = scoreRow(number);
    row.points.Caption = base::toText(points);
    row.qsos.Caption = base::toText(qsos);
}

void showScore(int number, const char* caption, std::int32_t points, std::int16_t qsos)
{
    scoreRow(number).band.Caption = caption;
    showFigures(number, points, qsos);
}

}  // namespace band
