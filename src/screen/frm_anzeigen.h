// The review form: the logs and the locator memory, table by table, and one layer of frames for each job with them.
//
// A menu entry shows the frames of its job: view, delete, print, files on disk, EDI pages, archive. All of them start
// hidden. The grids come first, so that a frame lies above a log that was left on the page.
#pragma once

#include <cstdint>
#include <string>

#include "screen/edi_header.h"
#include "screen/form.h"
#include "screen/log_record.h"

namespace screen {

struct FrmAnzeigenForm : Form {
    FrmAnzeigenForm();

    /// Gives the page the places of the Maraton contest: its wide log, and the frames of the jobs beside it. The
    /// controls go to their new places on the design screen; scaling is left to the caller.
    void takeMaratonPlaces();

    MenuEntry mnuBeenden{this, "mnuBeenden"};
    MenuEntry mnuAnfang{this, "mnuAnfang"};
    MenuEntry mnuLogAnzeigen{this, "mnuLogAnzeigen"};
    MenuEntry mnuLOGDrucken{this, "mnuLOGDrucken"};
    MenuEntry mnuLOG{this, "mnuLOG"};
    MenuEntry MnuASCIIDATEI{this, "MnuASCIIDATEI", &mnuLOG};
    MenuEntry MnuHDDLOG{this, "MnuHDDLOG", &mnuLOG};
    MenuEntry mnuFormTXT{this, "mnuFormTXT", &MnuHDDLOG};
    MenuEntry mnuFormEDI{this, "mnuFormEDI", &MnuHDDLOG};
    MenuEntry MnuArhiva{this, "MnuArhiva", &mnuLOG};
    MenuEntry mnuLOGLöschen{this, "mnuLOGLöschen"};
    MenuEntry mnuHelp3{this, "mnuHelp3"};
    MenuEntry mnuVizLog{this, "mnuVizLog", &mnuHelp3};
    MenuEntry mnuTipLog{this, "mnuTipLog", &mnuHelp3};
    MenuEntry mnuMemLog{this, "mnuMemLog", &mnuHelp3};
    MenuEntry MnuStergLog{this, "MnuStergLog", &mnuHelp3};
    MenuEntry mnuOutPrel{this, "mnuOutPrel", &mnuHelp3};

    TextBox TxtFoc{this, "TxtFoc"};

    // The tables, and the grids that show them, all at one place.
    DataControl QRA{this, "QRA"};
    DataControl Uus144a{this, "Uus144a"};
    DataControl Uus144b{this, "Uus144b"};
    DataControl Uus432a{this, "Uus432a"};
    DataControl Uus432b{this, "Uus432b"};
    DataControl Uus1296a{this, "Uus1296a"};
    DataControl Uus1296b{this, "Uus1296b"};
    DataControl UusGHz{this, "UusGHz"};
    DataControl UusLGYO2{this, "UusLGYO2"};
    Grid DBGrid1{this, "DBGrid1", &Uus144a};
    Grid DBGrid2{this, "DBGrid2", &Uus144b};
    Grid DBGrid3{this, "DBGrid3", &Uus432a};
    Grid DBGrid4{this, "DBGrid4", &Uus432b};
    Grid DBGrid5{this, "DBGrid5", &QRA};
    Grid DBGrid6{this, "DBGrid6", &Uus1296a};
    Grid DBGrid7{this, "DBGrid7", &Uus1296b};
    Grid DBGrid8{this, "DBGrid8", &UusGHz};
    Grid DBGrid9{this, "DBGrid9", &UusLGYO2};

    // View a log. What a button shows depends on the contest.
    Frame Frame1{this, "Frame1"};
    OptionButton OpB144a{this, "OpB144a", &Frame1};
    OptionButton Opb144b{this, "Opb144b", &Frame1};
    OptionButton OpB432a{this, "OpB432a", &Frame1};
    OptionButton OpB432b{this, "OpB432b", &Frame1};
    OptionButton OpB1296a{this, "OpB1296a", &Frame1};
    OptionButton OpB1296b{this, "OpB1296b", &Frame1};
    OptionButton OpBQRALoc{this, "OpBQRALoc", &Frame1};

    // Empty a log.
    Frame Frame2{this, "Frame2"};
    OptionButton OpbL144a{this, "OpbL144a", &Frame2};
    OptionButton OpbL144b{this, "OpbL144b", &Frame2};
    OptionButton OpbL432a{this, "OpbL432a", &Frame2};
    OptionButton OpbL432b{this, "OpbL432b", &Frame2};
    OptionButton OpBL1296a{this, "OpBL1296a", &Frame2};
    OptionButton OpBL1296b{this, "OpBL1296b", &Frame2};
    OptionButton OpbLGHz{this, "OpbLGHz", &Frame2};

    // Print a log, or a summary.
    Frame Frame3{this, "Frame3"};
    OptionButton OpBD144a{this, "OpBD144a", &Frame3};
    OptionButton OpBD144b{this, "OpBD144b", &Frame3};
    OptionButton OpBD432a{this, "OpBD432a", &Frame3};
    OptionButton OpBD432b{this, "OpBD432b", &Frame3};
    OptionButton OpBD1296a{this, "OpBD1296a", &Frame3};
    OptionButton OpBD1296b{this, "OpBD1296b", &Frame3};
    OptionButton OpBDSumm144{this, "OpBDSumm144", &Frame3};
    OptionButton OpBDSumm432{this, "OpBDSumm432", &Frame3};
    OptionButton OpbDSumm1296{this, "OpbDSumm1296", &Frame3};

    // Count and points of the log in view.
    Frame Frame4{this, "Frame4"};
    Label LblQSO{this, "LblQSO", &Frame4};
    Label LblQSO1{this, "LblQSO1", &Frame4};
    Label LblPkt{this, "LblPkt", &Frame4};
    Label LblPkt1{this, "LblPkt1", &Frame4};

    // Delete the row that was touched.
    Frame Frame5{this, "Frame5"};
    OptionButton OpBDelete{this, "OpBDelete", &Frame5};

    // The band: for the diskette, for files where each band is a report of its own, for EDI.
    Frame Frame8{this, "Frame8"};
    OptionButton OpBDsk144{this, "OpBDsk144", &Frame8};
    OptionButton OpBDsk432{this, "OpBDsk432", &Frame8};
    OptionButton OpBDsk1296{this, "OpBDsk1296", &Frame8};
    Frame Frame10{this, "Frame10"};
    OptionButton OpB0144{this, "OpB0144", &Frame10};
    OptionButton Opb0432{this, "Opb0432", &Frame10};
    OptionButton OpB01296{this, "OpB01296", &Frame10};
    Frame FraBandEdi{this, "FraBandEdi"};
    OptionButton OpB144Edi{this, "OpB144Edi", &FraBandEdi};
    OptionButton OpB432Edi{this, "OpB432Edi", &FraBandEdi};
    OptionButton OpB1296Edi{this, "OpB1296Edi", &FraBandEdi};
    OptionButton OpBGHzEdi{this, "OpBGHzEdi", &FraBandEdi};

    // Archive.
    Frame FraArh{this, "FraArh"};
    Label LblNumeFis{this, "LblNumeFis", &FraArh};
    TextBox TxtNameDat{this, "TxtNameDat", &FraArh};
    CommandButton CmdMem{this, "CmdMem", &FraArh};
    CommandButton CmdArhivADI{this, "CmdArhivADI", &FraArh};
    ListBox DrvList{this, "DrvList", &FraArh};  ///< drives
    ListBox DirList{this, "DirList", &FraArh};  ///< folders
    ListBox FilList{this, "FilList", &FraArh};  ///< files
    CommandButton CmdSterg{this, "CmdSterg", &FraArh};

    // EDI header, first page: the contest, the station, who is responsible.
    Frame FraLogEDI1{this, "FraLogEDI1"};
    Label LblTName{this, "LblTName", &FraLogEDI1};
    TextBox TxtTName{this, "TxtTName", &FraLogEDI1};
    Label LblTDate1{this, "LblTDate1", &FraLogEDI1};
    TextBox TxtTDate1{this, "TxtTDate1", &FraLogEDI1};
    Label LblTDate2{this, "LblTDate2", &FraLogEDI1};
    TextBox TxtTDate2{this, "TxtTDate2", &FraLogEDI1};
    Label LblPCall{this, "LblPCall", &FraLogEDI1};
    TextBox TxtPCall{this, "TxtPCall", &FraLogEDI1};
    Label LblPWWLo{this, "LblPWWLo", &FraLogEDI1};
    TextBox TxtPWWLo{this, "TxtPWWLo", &FraLogEDI1};
    Label LblPExch{this, "LblPExch", &FraLogEDI1};
    TextBox TxtPExch{this, "TxtPExch", &FraLogEDI1};
    Label LblPSect{this, "LblPSect", &FraLogEDI1};
    TextBox TxtPSect{this, "TxtPSect", &FraLogEDI1};
    Label LblPBand{this, "LblPBand", &FraLogEDI1};
    TextBox TxtPBand{this, "TxtPBand", &FraLogEDI1};
    Label LblPAdr1{this, "LblPAdr1", &FraLogEDI1};
    TextBox TxtPAdr1{this, "TxtPAdr1", &FraLogEDI1};
    Label LblPAdr2{this, "LblPAdr2", &FraLogEDI1};
    TextBox TxtPAdr2{this, "TxtPAdr2", &FraLogEDI1};
    Label LblRClub{this, "LblRClub", &FraLogEDI1};
    TextBox TxtRClub{this, "TxtRClub", &FraLogEDI1};
    Label LblRName{this, "LblRName", &FraLogEDI1};
    TextBox TxtRName{this, "TxtRName", &FraLogEDI1};
    Label LblRCall{this, "LblRCall", &FraLogEDI1};
    TextBox TxtRCall{this, "TxtRCall", &FraLogEDI1};
    Label LblRAdr1{this, "LblRAdr1", &FraLogEDI1};
    TextBox TxtRAdr1{this, "TxtRAdr1", &FraLogEDI1};
    Label LblRAdr2{this, "LblRAdr2", &FraLogEDI1};
    TextBox TxtRAdr2{this, "TxtRAdr2", &FraLogEDI1};
    Label LblRPoCo{this, "LblRPoCo", &FraLogEDI1};
    TextBox TxtRPoCo{this, "TxtRPoCo", &FraLogEDI1};
    Label LblRCity{this, "LblRCity", &FraLogEDI1};
    TextBox TxtRCity{this, "TxtRCity", &FraLogEDI1};
    Label LblRCoun{this, "LblRCoun", &FraLogEDI1};
    TextBox TxtRCoun{this, "TxtRCoun", &FraLogEDI1};
    Label LblRPhon{this, "LblRPhon", &FraLogEDI1};
    TextBox TxtRPhon{this, "TxtRPhon", &FraLogEDI1};
    Label LblRHBBS{this, "LblRHBBS", &FraLogEDI1};
    TextBox TxtRHBBS{this, "TxtRHBBS", &FraLogEDI1};
    Label LblMOpe1{this, "LblMOpe1", &FraLogEDI1};
    TextBox TxtMOpe1{this, "TxtMOpe1", &FraLogEDI1};
    Label LblMOpe2{this, "LblMOpe2", &FraLogEDI1};
    TextBox TxtMOpe2{this, "TxtMOpe2", &FraLogEDI1};
    Label LblSTXEq{this, "LblSTXEq", &FraLogEDI1};
    TextBox TxtSTxEq{this, "TxtSTxEq", &FraLogEDI1};
    Label LblSPowe{this, "LblSPowe", &FraLogEDI1};
    TextBox TxtSPowe{this, "TxtSPowe", &FraLogEDI1};
    Label LblSRXEq{this, "LblSRXEq", &FraLogEDI1};
    TextBox TxtSRXEq{this, "TxtSRXEq", &FraLogEDI1};
    Label LblSAnte{this, "LblSAnte", &FraLogEDI1};
    TextBox TxtSAnte{this, "TxtSAnte", &FraLogEDI1};
    Label LblSAntH1{this, "LblSAntH1", &FraLogEDI1};
    TextBox TxtSAntH1{this, "TxtSAntH1", &FraLogEDI1};
    Label LblSAntH2{this, "LblSAntH2", &FraLogEDI1};
    TextBox TxtSAntH2{this, "TxtSAntH2", &FraLogEDI1};
    CommandButton CmdNextPage{this, "CmdNextPage", &FraLogEDI1};

    // EDI header, second page: what is claimed, and remarks.
    Frame FraLogEDI2{this, "FraLogEDI2"};
    Label LblCQSOs1{this, "LblCQSOs1", &FraLogEDI2};
    TextBox TxtCQSOs1{this, "TxtCQSOs1", &FraLogEDI2};
    Label LblCQSOs2{this, "LblCQSOs2", &FraLogEDI2};
    TextBox TxtCQSOs2{this, "TxtCQSOs2", &FraLogEDI2};
    Label LblCQSOP{this, "LblCQSOP", &FraLogEDI2};
    TextBox TxtCQSOP{this, "TxtCQSOP", &FraLogEDI2};
    Label LblCWWLs1{this, "LblCWWLs1", &FraLogEDI2};
    TextBox TxtCWWLs1{this, "TxtCWWLs1", &FraLogEDI2};
    Label LblCWWLs2{this, "LblCWWLs2", &FraLogEDI2};
    TextBox TxtCWWLs2{this, "TxtCWWLs2", &FraLogEDI2};
    Label LblCWWLs3{this, "LblCWWLs3", &FraLogEDI2};
    TextBox TxtCWWLs3{this, "TxtCWWLs3", &FraLogEDI2};
    Label LblCWWLB{this, "LblCWWLB", &FraLogEDI2};
    TextBox TxtCWWLB{this, "TxtCWWLB", &FraLogEDI2};
    Label LblCExcs1{this, "LblCExcs1", &FraLogEDI2};
    TextBox TxtCExcs1{this, "TxtCExcs1", &FraLogEDI2};
    Label LblCExcs2{this, "LblCExcs2", &FraLogEDI2};
    TextBox TxtCExcs2{this, "TxtCExcs2", &FraLogEDI2};
    Label LblCExcs3{this, "LblCExcs3", &FraLogEDI2};
    TextBox TxtCExcs3{this, "TxtCExcs3", &FraLogEDI2};
    Label LblCExcB{this, "LblCExcB", &FraLogEDI2};
    TextBox TxtCExcB{this, "TxtCExcB", &FraLogEDI2};
    Label LblCDXCs1{this, "LblCDXCs1", &FraLogEDI2};
    TextBox TxtCDXCs1{this, "TxtCDXCs1", &FraLogEDI2};  ///< nothing reads it
    Label LblCDXCs2{this, "LblCDXCs2", &FraLogEDI2};
    TextBox TxtCDXCs2{this, "TxtCDXCs2", &FraLogEDI2};
    Label LblCDXCs3{this, "LblCDXCs3", &FraLogEDI2};
    TextBox TxtCDXCs3{this, "TxtCDXCs3", &FraLogEDI2};
    Label LblCDXCB{this, "LblCDXCB", &FraLogEDI2};
    TextBox TxtCDXCB{this, "TxtCDXCB", &FraLogEDI2};
    Label LblCToSc{this, "LblCToSc", &FraLogEDI2};
    TextBox TxtCToSc{this, "TxtCToSc", &FraLogEDI2};
    Label LblCODXC1{this, "LblCODXC1", &FraLogEDI2};
    TextBox TxtCODXC1{this, "TxtCODXC1", &FraLogEDI2};
    Label LblCODXC2{this, "LblCODXC2", &FraLogEDI2};
    TextBox TxtCODXC2{this, "TxtCODXC2", &FraLogEDI2};
    Label LblCODXC3{this, "LblCODXC3", &FraLogEDI2};
    TextBox TxtCODXC3{this, "TxtCODXC3", &FraLogEDI2};
    Label LblFRem1{this, "LblFRem1", &FraLogEDI2};
    TextBox TxtFRem1{this, "TxtFRem1", &FraLogEDI2};
    Label LblFRem2{this, "LblFRem2", &FraLogEDI2};
    TextBox TxtFRem2{this, "TxtFRem2", &FraLogEDI2};
    Label LblFRem3{this, "LblFRem3", &FraLogEDI2};
    TextBox TxtFRem3{this, "TxtFRem3", &FraLogEDI2};
    CommandButton CmdRetur{this, "CmdRetur", &FraLogEDI2};

    // Station data for the summary. Enter walks from box to box.
    Frame Frame6{this, "Frame6"};
    Label LblSection{this, "LblSection", &Frame6};
    TextBox TxtSection{this, "TxtSection", &Frame6};
    Label LblOp{this, "LblOp", &Frame6};
    TextBox TxtOp{this, "TxtOp", &Frame6};
    Label LblNo{this, "LblNo", &Frame6};
    TextBox TxtNo{this, "TxtNo", &Frame6};
    Label LblQTH{this, "LblQTH", &Frame6};
    TextBox TxtQTH{this, "TxtQTH", &Frame6};
    Label LblAds{this, "LblAds", &Frame6};
    TextBox TxtAds{this, "TxtAds", &Frame6};
    Label LblTx{this, "LblTx", &Frame6};
    TextBox TxtTx{this, "TxtTx", &Frame6};
    Label LblRx{this, "LblRx", &Frame6};
    TextBox TxtRx{this, "TxtRx", &Frame6};
    Label LblAnt{this, "LblAnt", &Frame6};
    TextBox TxtAnt{this, "TxtAnt", &Frame6};
    Label LblAnt2{this, "LblAnt2", &Frame6};
    TextBox TxtAnt2{this, "TxtAnt2", &Frame6};
    Label LblAnt3{this, "LblAnt3", &Frame6};
    TextBox TxtAnt3{this, "TxtAnt3", &Frame6};
    Label LblAnt4{this, "LblAnt4", &Frame6};
    TextBox TxtAnt4{this, "TxtAnt4", &Frame6};
    Label LblClub{this, "LblClub", &Frame6};
    TextBox TxtClub{this, "TxtClub", &Frame6};

    CommandButton CmdGata{this, "CmdGata"};  ///< ends the input of the EDI pages and of the station data

    // Run state of the form.
    std::uint16_t OutMode = 0;    ///< 0 view, 10 file in the folder Log, 20 archive, 100 printer, 1000 file on drive A:
    std::uint16_t OutFormat = 0;  ///< 10 text, 100 EDI; 0 until a file entry was used
    std::uint16_t ArhFormat = 0;  ///< format of the archive: 50 text, 60 ADIF
    std::uint16_t ArhSelExt = 0;  ///< extension seen in TxtNameDat: 50 text, 60 ADIF
    std::uint16_t EnterFlag = 0;  ///< CmdGata leads to a file with 10, to the printed summary with 0
    std::uint16_t EnterAgain = 0;     ///< 100 after a No to the question whether the input is finished
    std::uint16_t StationFilled = 0;  ///< 100: the boxes of the station show its data
    std::uint16_t InsertAsked = 0;    ///< 10 after a No to the question of inserting; nothing asks it
    std::string BandText;             ///< band of the log in hand as text; "0" once it was emptied
    std::string OutFile;              ///< path of the file to write
    std::string LineBuf;              ///< the line being built
    std::string ArhName;              ///< name of the archive without extension, one key behind TxtNameDat
    std::string VerifPath;            ///< file of an earlier run to delete
    std::string DirListPath;          ///< folder whose folders DirList shows
    std::string FilListPath;          ///< folder whose files FilList shows
    std::int16_t RecCount = 0;        ///< rows of the table being read
    std::int16_t SumQso = 0;          ///< QSOs of the band in both stages
    std::int32_t SumPct = 0;          ///< points of the band in both stages
    LogRecord LogRec;                 ///< the row being written
    EdiHeader EdiHdr;                 ///< the EDI pages as they were taken over
    std::int32_t BandFound = 0;       ///< BandCur and Etapa as they stood at load: they go back to the first page
    std::string EtapaFound;

 private:
    void writeMenu();
    void bindTables();
    void placeGrids();
    void placeView();
    void placeEmptying();
    void placePrinting();
    void placeSums();
    void placeDeletion();
    void placeBandChoices();
    void placeArchive();
    void narrowArchive();
    void placeEdiStation();
    void placeEdiClaims();
    void placeStation();
};

}  // namespace screen

extern screen::FrmAnzeigenForm FrmAnzeigen;
