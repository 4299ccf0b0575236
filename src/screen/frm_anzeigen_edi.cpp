// The review form: the two pages of the EDI header.
#include "screen/frm_anzeigen.h"
#include "screen/frm_anzeigen_places.h"
#include "screen/placing.h"

namespace screen {

namespace {

struct EdiField {
    Label& label;
    const char* caption;
    TextBox& box;
    const char* text;
    int columns;  ///< of the four that a page has
};

using EdiRow = std::initializer_list<EdiField>;

constexpr double firstRow = 360;
constexpr double rowPitch = 420;
constexpr double columnPitch = 2910;
constexpr double labelWidth = 960;
constexpr double gap = 60;  ///< between a label and its box
constexpr double fieldHeight = 300;

void putField(const EdiField& field, double left, double top)
{
    const double boxLeft = left + labelWidth + gap;
    const double end = left + columnPitch * field.columns - review_places::margin;
    put(field.label, field.caption, {left, top, labelWidth, fieldHeight});
    put({{field.box, field.text, "", {boxLeft, top, end - boxLeft, fieldHeight}}});
    field.label.rightAligned = true;
    setFont({&field.box}, 9, false);
}

void putRows(std::initializer_list<EdiRow> rows)
{
    double top = firstRow;
    for (const EdiRow& row : rows) {
        double left = review_places::margin;
        for (const EdiField& field : row) {
            putField(field, left, top);
            left += columnPitch * field.columns;
        }
        top += rowPitch;
    }
}

}  // namespace

void FrmAnzeigenForm::placeEdiStation()
{
    put(FraLogEDI1, "ENTER DATA EDI FORMAT (1/2)", review_places::ediPage);
    putRows({
        {{LblTName, " TName=", TxtTName, "", 2},
         {LblTDate1, "TDate1t=", TxtTDate1, " ", 1},
         {LblTDate2, " TDate2=", TxtTDate2, " ", 1}},
        {{LblPCall, " PCall=", TxtPCall, " ", 1},
         {LblPWWLo, "PWWLo=", TxtPWWLo, " ", 1},
         {LblPExch, "P Exch=", TxtPExch, "", 1},
         {LblPSect, "PSect=", TxtPSect, " ", 1}},
        {{LblPBand, " PBand=", TxtPBand, " ", 1}},
        {{LblPAdr1, "PAdr1=", TxtPAdr1, " ", 2}, {LblPAdr2, " PAdr2=", TxtPAdr2, " ", 2}},
        {{LblRClub, " PClub=", TxtRClub, " ", 2}},
        {{LblRName, "RName=", TxtRName, " ", 2}, {LblRCall, "RCall=", TxtRCall, " ", 1}},
        {{LblRAdr1, " RAdr1=", TxtRAdr1, " ", 2}, {LblRAdr2, " RAdr2=", TxtRAdr2, " ", 2}},
        {{LblRPoCo, " RPoCo=", TxtRPoCo, " ", 1},
         {LblRCity, "RCity=", TxtRCity, " ", 1},
         {LblRCoun, " RCountry=", TxtRCoun, " ", 2}},
        {{LblRPhon, " RPhon=", TxtRPhon, " ", 2}, {LblRHBBS, " RHBBS=", TxtRHBBS, "", 2}},
        {{LblMOpe1, " MOpe1=", TxtMOpe1, " ", 2}, {LblMOpe2, " MOpe2=", TxtMOpe2, " ", 2}},
        {{LblSTXEq, " STXEq=", TxtSTxEq, " ", 2}, {LblSPowe, "SPower=", TxtSPowe, " ", 1}},
        {{LblSRXEq, "S RXEq=", TxtSRXEq, " ", 2}, {LblSAnte, "SAnte=", TxtSAnte, " ", 2}},
        {{LblSAntH1, "SAntH1=", TxtSAntH1, " ", 1}, {LblSAntH2, " SAntH2=", TxtSAntH2, " ", 1}},
    });
    put(CmdNextPage, "Next page", {9360, 5580, 2280, 360});
    plainCharactersOnly({&TxtTDate1, &TxtTDate2, &TxtPCall, &TxtPWWLo, &TxtRCall});
    hide({&FraLogEDI1});
}

void FrmAnzeigenForm::placeEdiClaims()
{
    constexpr int wholeRow = 4;

    put(FraLogEDI2, "ENTER DATA EDI FORMAT (2/2)", review_places::ediPage);
    putRows({
        {{LblCQSOs1, "CQSOs1=", TxtCQSOs1, "", 1},
         {LblCQSOs2, "CQSOs2=", TxtCQSOs2, "1", 1},
         {LblCQSOP, "CQSOP=", TxtCQSOP, "", 1}},
        {{LblCWWLs1, "CWWLs1=", TxtCWWLs1, " ", 1},
         {LblCWWLs2, "CWWLs2=", TxtCWWLs2, " 0", 1},
         {LblCWWLs3, "CWWLs3=", TxtCWWLs3, " 1", 1},
         {LblCWWLB, "CWWLB=", TxtCWWLB, "0", 1}},
        {{LblCExcs1, "CExcs1=", TxtCExcs1, "0 ", 1},
         {LblCExcs2, "CExcs2=", TxtCExcs2, "0 ", 1},
         {LblCExcs3, "CExcs3=", TxtCExcs3, "1 ", 1},
         {LblCExcB, "CExcsB=", TxtCExcB, "0", 1}},
        {{LblCDXCs1, "CDXCs1=", TxtCDXCs1, "", 1},
         {LblCDXCs2, "CDXCs2=", TxtCDXCs2, "0 ", 1},
         {LblCDXCs3, "CDXCs3=", TxtCDXCs3, "1 ", 1},
         {LblCDXCB, "CDXCB=", TxtCDXCB, "0", 1}},
        {{LblCToSc, "CTolSc=", TxtCToSc, " ", 1}},
        {{LblCODXC1, "CODXC1=", TxtCODXC1, " ", 1},
         {LblCODXC2, "CDDXC2=", TxtCODXC2, " ", 1},
         {LblCODXC3, "CODXC3=", TxtCODXC3, " ", 1}},
        {{LblFRem1, "Remarks=", TxtFRem1, " ", wholeRow}},
        {{LblFRem2, "Remarks=", TxtFRem2, "", wholeRow}},
        {{LblFRem3, "Remarks=", TxtFRem3, "", wholeRow}},
    });
    put(CmdRetur, "Retur pag.1/2", {120, 5580, 2280, 360});
    plainCharactersOnly({&TxtCODXC1, &TxtCODXC2});
    hide({&FraLogEDI2});
}

}  // namespace screen
