// Values of an EDI header, in the order in which they are taken over from the two pages.
#pragma once

#include <string>

namespace screen {

struct EdiHeader {
    std::string TName;
    std::string TDate1;  ///< first and last day, "dd.mm.yy"
    std::string TDate2;
    std::string PCall;
    std::string PWWLo;  ///< own locator
    std::string PExch;
    std::string PSect;
    std::string PBand;
    std::string PAdr1;
    std::string PAdr2;
    std::string RClub;  ///< taken over, never written
    std::string RName;
    std::string RCall;
    std::string RAdr1;
    std::string RAdr2;
    std::string RPoCo;
    std::string RCity;
    std::string RCoun;
    std::string RPhon;
    std::string RHBBS;
    std::string MOpe1;
    std::string MOpe2;
    std::string STXEq;
    std::string SPowe;
    std::string SRXEq;
    std::string SAnte;
    std::string SAntH1;
    std::string SAntH2;
    std::string CQSOs1;  ///< QSOs claimed, and the band multiplier
    std::string CQSOs2;
    std::string CQSOP;
    std::string CWWLs1;
    std::string CWWLs2;
    std::string CWWLs3;
    std::string CWWLB;
    std::string CExcs1;
    std::string CExcs2;
    std::string CExcs3;
    std::string CExcB;
    std::string CDXCs1;  ///< no box feeds it
    std::string CDXCs2;
    std::string CDXCs3;
    std::string CDXCB;
    std::string CToSc;
    std::string CODXC1;  ///< the best QSO: call, locator, points
    std::string CODXC2;
    std::string CODXC3;
    std::string FRem1;
    std::string FRem2;
    std::string FRem3;
};

}  // namespace screen
