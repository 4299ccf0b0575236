// Keying on the entry form: what is being keyed, the stored messages, the speed.
#include "screen/frm_qso.h"
#include "screen/placing.h"

namespace screen {

void FrmQSOForm::placeMessages()
{
    put({{TxtCwCurent, "", "", {7200, 6000, 4680, 360}}});
    put(FramTxtCw, "TEXT PROGRAM CW", {7200, 6420, 4680, 2520});
    put({
        {LblF1, "F1", {}},
        {LblF2, "F2", {}},
        {LblF3, "F3", {}},
        {LblF4, "F4", {}},
        {LblF5, "F5", {}},
        {LblF6, "F6", {}},
        {LblF7, "F7", {}},
    });
    placeMessageRows(240, 285, 4080);
    put(LblRezCW, "#1=MYCALL  #2=YOURCALL #3=CODS      #4=MYQRA", {120, 2250, 4440, 225});
    setBackColor({&TxtF1}, yellow);  // green once automatic calling is on
    setFont({&FramTxtCw}, frameTitlePoints, true);
    setFont({&TxtF1, &TxtF2, &TxtF3, &TxtF4, &TxtF5, &TxtF6, &TxtF7}, 9, false);
    setFont({&TxtCwCurent}, 11, true);
    hide({&TxtCwCurent, &FramTxtCw});
}

/// The stored messages in rows `step` twips apart, their texts of this width.
void FrmQSOForm::placeMessageRows(double top, double step, double width)
{
    struct MessageRow {
        Label& label;
        TextBox& text;
    };
    const MessageRow rows[] = {
        {LblF1, TxtF1}, {LblF2, TxtF2}, {LblF3, TxtF3}, {LblF4, TxtF4}, {LblF5, TxtF5}, {LblF6, TxtF6}, {LblF7, TxtF7},
    };
    constexpr double gap = 15;
    constexpr double labelHeight = 240;

    const double height = step - gap;
    for (const MessageRow& row : rows) {
        put({
            {row.label, {120, top + (height - labelHeight) / 2, 300, labelHeight}},
            {row.text, {480, top, width, height}},
        });
        top += step;
    }
}

void FrmQSOForm::placeKeyingSpeed()
{
    put(FrmCwProgr, "CW", {10380, 1470, 1500, 660});
    put(lblWPM, "30", {60, 225, 480, 390});
    put(LblSpeedUnit, "WPM", {600, 195, 870, 210});
    put(LblSpeedKeys, "PgUp PgDn", {600, 405, 870, 210});
    lblWPM.rightAligned = true;
    setFont({&FrmCwProgr}, 8, true);
    setFont({&lblWPM}, 14, true);
    hide({&FrmCwProgr});
}

}  // namespace screen
