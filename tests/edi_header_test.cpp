// The header of an EDI file, and how its values are taken from the pages.
#include "review/edi_header.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "screen/frm_anzeigen.h"
#include "screen/frm_init.h"
#include "support/running_program.h"

namespace {

using Form = screen::FrmAnzeigenForm;
using Header = screen::EdiHeader;

struct BoxRow {
    std::string Header::*value;
    screen::TextBox Form::*box;
    bool trimmed;
    const char* atFirst;
};

const BoxRow boxRows[] = {
    {&Header::TName, &Form::TxtTName, false, ""},    {&Header::TDate1, &Form::TxtTDate1, false, " "},
    {&Header::TDate2, &Form::TxtTDate2, false, " "}, {&Header::PCall, &Form::TxtPCall, false, " "},
    {&Header::PWWLo, &Form::TxtPWWLo, false, " "},   {&Header::PExch, &Form::TxtPExch, false, ""},
    {&Header::PSect, &Form::TxtPSect, false, " "},   {&Header::PBand, &Form::TxtPBand, false, " "},
    {&Header::PAdr1, &Form::TxtPAdr1, false, " "},   {&Header::PAdr2, &Form::TxtPAdr2, false, " "},
    {&Header::RClub, &Form::TxtRClub, false, " "},   {&Header::RName, &Form::TxtRName, false, " "},
    {&Header::RCall, &Form::TxtRCall, false, " "},   {&Header::RAdr1, &Form::TxtRAdr1, false, " "},
    {&Header::RAdr2, &Form::TxtRAdr2, false, " "},   {&Header::RPoCo, &Form::TxtRPoCo, false, " "},
    {&Header::RCity, &Form::TxtRCity, false, " "},   {&Header::RCoun, &Form::TxtRCoun, false, " "},
    {&Header::RPhon, &Form::TxtRPhon, false, " "},   {&Header::RHBBS, &Form::TxtRHBBS, false, ""},
    {&Header::MOpe1, &Form::TxtMOpe1, true, " "},    {&Header::MOpe2, &Form::TxtMOpe2, true, " "},
    {&Header::STXEq, &Form::TxtSTxEq, true, " "},    {&Header::SPowe, &Form::TxtSPowe, true, " "},
    {&Header::SRXEq, &Form::TxtSRXEq, true, " "},    {&Header::SAnte, &Form::TxtSAnte, true, " "},
    {&Header::SAntH1, &Form::TxtSAntH1, true, " "},  {&Header::SAntH2, &Form::TxtSAntH2, true, " "},
    {&Header::CQSOs1, &Form::TxtCQSOs1, true, ""},   {&Header::CQSOs2, &Form::TxtCQSOs2, true, "1"},
    {&Header::CQSOP, &Form::TxtCQSOP, true, ""},     {&Header::CWWLs1, &Form::TxtCWWLs1, true, " "},
    {&Header::CWWLs2, &Form::TxtCWWLs2, true, " 0"}, {&Header::CWWLs3, &Form::TxtCWWLs3, true, " 1"},
    {&Header::CWWLB, &Form::TxtCWWLB, true, "0"},    {&Header::CExcs1, &Form::TxtCExcs1, true, "0 "},
    {&Header::CExcs2, &Form::TxtCExcs2, true, "0 "}, {&Header::CExcs3, &Form::TxtCExcs3, true, "1 "},
    {&Header::CExcB, &Form::TxtCExcB, true, "0"},    {&Header::CDXCs2, &Form::TxtCDXCs2, true, "0 "},
    {&Header::CDXCs3, &Form::TxtCDXCs3, true, "1 "}, {&Header::CDXCB, &Form::TxtCDXCB, true, "0"},
    {&Header::CToSc, &Form::TxtCToSc, true, " "},    {&Header::CODXC1, &Form::TxtCODXC1, true, " "},
    {&Header::CODXC2, &Form::TxtCODXC2, true, " "},  {&Header::CODXC3, &Form::TxtCODXC3, true, " "},
    {&Header::FRem1, &Form::TxtFRem1, true, " "},    {&Header::FRem2, &Form::TxtFRem2, true, ""},
    {&Header::FRem3, &Form::TxtFRem3, true, ""},
};

class EdiPages : public testing::Test {
 protected:
    void SetUp() override { program.click(FrmInit.mnuLOG); }

    test::RunningProgram program;
};

TEST_F(EdiPages, BeginWithTheirTexts)
{
    for (const BoxRow& row : boxRows)
        EXPECT_EQ((FrmAnzeigen.*row.box).Text.get(), row.atFirst) << (FrmAnzeigen.*row.box).name;
}

TEST_F(EdiPages, AreTakenBoxByBox)
{
    std::size_t count = 0;
    for (const BoxRow& row : boxRows)
        (FrmAnzeigen.*row.box).Text = "  value " + std::to_string(count++) + "  ";
    review::SetDateEdi();
    count = 0;
    for (const BoxRow& row : boxRows) {
        const std::string typed = "value " + std::to_string(count++);
        EXPECT_EQ(FrmAnzeigen.EdiHdr.*row.value, row.trimmed ? typed : "  " + typed + "  ")
            << (FrmAnzeigen.*row.box).name;
    }
}

TEST_F(EdiPages, LoseWhatIsTypedInTheBoxOfNoValue)
{
    FrmAnzeigen.TxtCDXCs1.Text = "12";
    review::SetDateEdi();
    EXPECT_EQ(FrmAnzeigen.EdiHdr.CDXCs1, "");
    FrmAnzeigen.EdiHdr.CDXCs1 = "  3 ";
    review::SetDateEdi();
    EXPECT_EQ(FrmAnzeigen.EdiHdr.CDXCs1, "3") << "trimmed in place";
}

TEST_F(EdiPages, UntouchedMakeAHeaderOfBlanks)
{
    review::SetDateEdi();
    const std::vector<std::string> expected = {
        "[REGITEST;1]",
        "TName=",
        "TDate=20;20",
        "PCall= ",
        "PWWLo= ",
        "PExch=",
        "PAdr1= ",
        "PAdr2= ",
        "PSect= ",
        "PBand= ",
        "PClub=",
        "RName= ",
        "RCall= ",
        "RName= ",
        "RAdr1= ",
        "RAdr2= ",
        "RPoCo= ",
        "RCity= ",
        "RCoun= ",
        "RPhon= ",
        "RAdr1= ",
        "RHBBS=",
        "MOpe1=",
        "MOpe2=",
        "STXEq=",
        "SPowe=",
        "SRXEq=",
        "SAnte=",
        "SAntH=;",
        "CQSOs=;1",
        "CQSOP=",
        "CWWLs=;0;1",
        "CWWLB=0",
        "CExcs=0;0;1",
        "CExcB=0",
        "CDXCs=;0;1",
        "CDXCB=0",
        "CToSc=",
        "CODXC=;;",
        "[Remarks]",
        "",
        "",
        "",
        "[QSORecords;]",
    };
    EXPECT_EQ(review::ediHeaderLines(FrmAnzeigen.EdiHdr), expected);
}

Header filledHeader()
{
    Header header;
    header.TName = "Floarea de mina";
    header.TDate1 = "15.11.26 ";
    header.TDate2 = "16.12.27 ";
    header.PCall = "YO9XYZ/P";
    header.PWWLo = "KN25AA";
    header.PExch = "exch";
    header.PSect = "multi";
    header.PBand = "432";
    header.PAdr1 = "padr1";
    header.PAdr2 = "padr2";
    header.RClub = "never written";
    header.RName = "rname";
    header.RCall = "rcall";
    header.RAdr1 = "radr1";
    header.RAdr2 = "radr2";
    header.RPoCo = "rpoco";
    header.RCity = "rcity";
    header.RCoun = "rcoun";
    header.RPhon = "rphon";
    header.RHBBS = "rhbbs";
    header.MOpe1 = "mope1";
    header.MOpe2 = "mope2";
    header.STXEq = "stxeq";
    header.SPowe = "spowe";
    header.SRXEq = "srxeq";
    header.SAnte = "sante";
    header.SAntH1 = "h1";
    header.SAntH2 = "h2";
    header.CQSOs1 = "q1";
    header.CQSOs2 = "q2";
    header.CQSOP = "cqsop";
    header.CWWLs1 = "w1";
    header.CWWLs2 = "w2";
    header.CWWLs3 = "w3";
    header.CWWLB = "cwwlb";
    header.CExcs1 = "e1";
    header.CExcs2 = "e2";
    header.CExcs3 = "e3";
    header.CExcB = "cexcb";
    header.CDXCs1 = "d1";
    header.CDXCs2 = "d2";
    header.CDXCs3 = "d3";
    header.CDXCB = "cdxcb";
    header.CToSc = "ctosc";
    header.CODXC1 = " YO2ABC    ";
    header.CODXC2 = " KN16AA";
    header.CODXC3 = "380 ";
    header.FRem1 = "first remark";
    header.FRem2 = "second remark";
    header.FRem3 = "third remark";
    return header;
}

TEST(EdiHeaderLines, HoldEachValueInItsPlace)
{
    const std::vector<std::string> expected = {
        "[REGITEST;1]",
        "TName=Floarea de mina",
        "TDate=20261115;20271216",
        "PCall=YO9XYZ/P",
        "PWWLo=KN25AA",
        "PExch=exch",
        "PAdr1=padr1",
        "PAdr2=padr2",
        "PSect=multi",
        "PBand=432",
        "PClub=",
        "RName=rname",
        "RCall=rcall",
        "RName=rname",
        "RAdr1=radr1",
        "RAdr2=radr2",
        "RPoCo=rpoco",
        "RCity=rcity",
        "RCoun=rcoun",
        "RPhon=rphon",
        "RAdr1=radr1",
        "RHBBS=rhbbs",
        "MOpe1=mope1",
        "MOpe2=mope2",
        "STXEq=stxeq",
        "SPowe=spowe",
        "SRXEq=srxeq",
        "SAnte=sante",
        "SAntH=h1;h2",
        "CQSOs=q1;q2",
        "CQSOP=cqsop",
        "CWWLs=w1;w2;w3",
        "CWWLB=cwwlb",
        "CExcs=e1;e2;e3",
        "CExcB=cexcb",
        "CDXCs=d1;d2;d3",
        "CDXCB=cdxcb",
        "CToSc=ctosc",
        "CODXC=YO2ABC;KN16AA;380",
        "[Remarks]",
        "first remark",
        "second remark",
        "third remark",
        "[QSORecords;q1]",
    };
    ASSERT_EQ(expected.size(), 44U);
    EXPECT_EQ(review::ediHeaderLines(filledHeader()), expected);
}

TEST(EdiHeaderLines, TrimOnlyDatesTheBestQsoAndTheCount)
{
    Header header;
    header.PCall = " YO9XYZ ";
    header.CQSOs1 = " 12 ";
    header.FRem2 = " remark ";
    const std::vector<std::string> lines = review::ediHeaderLines(header);
    EXPECT_EQ(lines[3], "PCall= YO9XYZ ");
    EXPECT_EQ(lines[29], "CQSOs= 12 ;");
    EXPECT_EQ(lines[41], " remark ");
    EXPECT_EQ(lines[43], "[QSORecords;12]");
}

}  // namespace
