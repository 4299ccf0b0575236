#include "review/edi_header.h"

#include "base/text.h"
#include "review/log_lines.h"
#include "screen/frm_anzeigen.h"

namespace review {

namespace {

using Form = screen::FrmAnzeigenForm;
using Header = screen::EdiHeader;

enum class Taken { raw, trimmed };

/// One value of the header and the box that it comes from.
struct HeaderBox {
    std::string Header::*value;
    screen::TextBox Form::*box;
    Taken taken;
};

constexpr HeaderBox boxes[] = {
    {&Header::TName, &Form::TxtTName, Taken::raw},       {&Header::TDate1, &Form::TxtTDate1, Taken::raw},
    {&Header::TDate2, &Form::TxtTDate2, Taken::raw},     {&Header::PCall, &Form::TxtPCall, Taken::raw},
    {&Header::PWWLo, &Form::TxtPWWLo, Taken::raw},       {&Header::PExch, &Form::TxtPExch, Taken::raw},
    {&Header::PSect, &Form::TxtPSect, Taken::raw},       {&Header::PBand, &Form::TxtPBand, Taken::raw},
    {&Header::PAdr1, &Form::TxtPAdr1, Taken::raw},       {&Header::PAdr2, &Form::TxtPAdr2, Taken::raw},
    {&Header::RClub, &Form::TxtRClub, Taken::raw},       {&Header::RName, &Form::TxtRName, Taken::raw},
    {&Header::RCall, &Form::TxtRCall, Taken::raw},       {&Header::RAdr1, &Form::TxtRAdr1, Taken::raw},
    {&Header::RAdr2, &Form::TxtRAdr2, Taken::raw},       {&Header::RPoCo, &Form::TxtRPoCo, Taken::raw},
    {&Header::RCity, &Form::TxtRCity, Taken::raw},       {&Header::RCoun, &Form::TxtRCoun, Taken::raw},
    {&Header::RPhon, &Form::TxtRPhon, Taken::raw},       {&Header::RHBBS, &Form::TxtRHBBS, Taken::raw},
    {&Header::MOpe1, &Form::TxtMOpe1, Taken::trimmed},   {&Header::MOpe2, &Form::TxtMOpe2, Taken::trimmed},
    {&Header::STXEq, &Form::TxtSTxEq, Taken::trimmed},   {&Header::SPowe, &Form::TxtSPowe, Taken::trimmed},
    {&Header::SRXEq, &Form::TxtSRXEq, Taken::trimmed},   {&Header::SAnte, &Form::TxtSAnte, Taken::trimmed},
    {&Header::SAntH1, &Form::TxtSAntH1, Taken::trimmed}, {&Header::SAntH2, &Form::TxtSAntH2, Taken::trimmed},
    {&Header::CQSOs1, &Form::TxtCQSOs1, Taken::trimmed}, {&Header::CQSOs2, &Form::TxtCQSOs2, Taken::trimmed},
    {&Header::CQSOP, &Form::TxtCQSOP, Taken::trimmed},   {&Header::CWWLs1, &Form::TxtCWWLs1, Taken::trimmed},
    {&Header::CWWLs2, &Form::TxtCWWLs2, Taken::trimmed}, {&Header::CWWLs3, &Form::TxtCWWLs3, Taken::trimmed},
    {&Header::CWWLB, &Form::TxtCWWLB, Taken::trimmed},   {&Header::CExcs1, &Form::TxtCExcs1, Taken::trimmed},
    {&Header::CExcs2, &Form::TxtCExcs2, Taken::trimmed}, {&Header::CExcs3, &Form::TxtCExcs3, Taken::trimmed},
    {&Header::CExcB, &Form::TxtCExcB, Taken::trimmed},   {&Header::CDXCs2, &Form::TxtCDXCs2, Taken::trimmed},
    {&Header::CDXCs3, &Form::TxtCDXCs3, Taken::trimmed}, {&Header::CDXCB, &Form::TxtCDXCB, Taken::trimmed},
    {&Header::CToSc, &Form::TxtCToSc, Taken::trimmed},   {&Header::CODXC1, &Form::TxtCODXC1, Taken::trimmed},
    {&Header::CODXC2, &Form::TxtCODXC2, Taken::trimmed}, {&Header::CODXC3, &Form::TxtCODXC3, Taken::trimmed},
    {&Header::FRem1, &Form::TxtFRem1, Taken::trimmed},   {&Header::FRem2, &Form::TxtFRem2, Taken::trimmed},
    {&Header::FRem3, &Form::TxtFRem3, Taken::trimmed},
};

}  // namespace

void SetDateEdi()
{
    Header& header = FrmAnzeigen.EdiHdr;
    for (const HeaderBox& each : boxes) {
        const std::string& text = (FrmAnzeigen.*each.box).Text;
        header.*each.value = each.taken == Taken::raw ? text : base::trim(text);
    }
    // No box feeds this one: TxtCDXCs1 is on the page, and nothing reads it.
    header.CDXCs1 = base::trim(header.CDXCs1);
}

std::vector<std::string> ediHeaderLines(const screen::EdiHeader& h)
{
    return {
        "[REGITEST;1]",
        "TName=" + h.TName,
        "TDate=" + base::trim(ediDay(h.TDate1)) + ";" + base::trim(ediDay(h.TDate2)),
        "PCall=" + h.PCall,
        "PWWLo=" + h.PWWLo,
        "PExch=" + h.PExch,
        "PAdr1=" + h.PAdr1,
        "PAdr2=" + h.PAdr2,
        "PSect=" + h.PSect,
        "PBand=" + h.PBand,
        "PClub=",
        "RName=" + h.RName,
        "RCall=" + h.RCall,
        "RName=" + h.RName,
        "RAdr1=" + h.RAdr1,
        "RAdr2=" + h.RAdr2,
        "RPoCo=" + h.RPoCo,
        "RCity=" + h.RCity,
        "RCoun=" + h.RCoun,
        "RPhon=" + h.RPhon,
        "RAdr1=" + h.RAdr1,
        "RHBBS=" + h.RHBBS,
        "MOpe1=" + h.MOpe1,
        "MOpe2=" + h.MOpe2,
        "STXEq=" + h.STXEq,
        "SPowe=" + h.SPowe,
        "SRXEq=" + h.SRXEq,
        "SAnte=" + h.SAnte,
        "SAntH=" + h.SAntH1 + ";" + h.SAntH2,
        "CQSOs=" + h.CQSOs1 + ";" + h.CQSOs2,
        "CQSOP=" + h.CQSOP,
        "CWWLs=" + h.CWWLs1 + ";" + h.CWWLs2 + ";" + h.CWWLs3,
        "CWWLB=" + h.CWWLB,
        "CExcs=" + h.CExcs1 + ";" + h.CExcs2 + ";" + h.CExcs3,
        "CExcB=" + h.CExcB,
        "CDXCs=" + h.CDXCs1 + ";" + h.CDXCs2 + ";" + h.CDXCs3,
        "CDXCB=" + h.CDXCB,
        "CToSc=" + h.CToSc,
        "CODXC=" + base::trim(h.CODXC1) + ";" + base::trim(h.CODXC2) + ";" + base::trim(h.CODXC3),
        "[Remarks]",
        h.FRem1,
        h.FRem2,
        h.FRem3,
        "[QSORecords;" + base::trim(h.CQSOs1) + "]",
    };
}

}  // namespace review
