// The review form before its load: every control with its text, what is in view, run state.
#include "screen/frm_anzeigen.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "support/form_expectations.h"

namespace {

using screen::Control;
using screen::Kind;
using test_support::expectHidden;

class FrmAnzeigenPage : public testing::Test {
 protected:
    void SetUp() override { screen::rebuild(FrmAnzeigen, screen::FormLife::neverLoaded); }
};

struct ControlRow {
    const char* name;
    Kind kind;
    const char* container;  ///< "" on the form itself
    const char* text;       ///< caption, of a box its text
    bool visible = true;    ///< by its own flag
};

constexpr Kind menu = Kind::menuEntry;
constexpr Kind frame = Kind::frame;
constexpr Kind option = Kind::optionButton;
constexpr Kind label = Kind::label;
constexpr Kind box = Kind::textBox;
constexpr Kind button = Kind::commandButton;
constexpr Kind list = Kind::listBox;
constexpr Kind grid = Kind::grid;
constexpr Kind data = Kind::data;
constexpr bool hidden = false;

constexpr ControlRow menuRows[] = {
    {"mnuBeenden", menu, "", "E&XIT"},
    {"mnuAnfang", menu, "", "1_ST_P&AGE"},
    {"mnuLogAnzeigen", menu, "", "VIEW_LO&G "},
    {"mnuLOGDrucken", menu, "", "P&RINT_LOG"},
    {"mnuLOG", menu, "", "&MEMORARE LOG"},
    {"MnuASCIIDATEI", menu, "mnuLOG", "Memorare pe Dis&k"},
    {"MnuHDDLOG", menu, "mnuLOG", "Memorare pe &HDD in folderul"},
    {"mnuFormTXT", menu, "MnuHDDLOG", "Memorare format TXT"},
    {"mnuFormEDI", menu, "MnuHDDLOG", "Memorare format EDI"},
    {"MnuArhiva", menu, "mnuLOG", "Arhivare log pe HDD in folderul Arhiva"},
    {"mnuLOGLöschen", menu, "", "&DELETE_LOG "},
    {"mnuHelp3", menu, "", "HELP"},
    {"mnuVizLog", menu, "mnuHelp3", "Vizualizare log"},
    {"mnuTipLog", menu, "mnuHelp3", "Tiparire log"},
    {"mnuMemLog", menu, "mnuHelp3", "Memorare log"},
    {"MnuStergLog", menu, "mnuHelp3", "Stergere log"},
    {"mnuOutPrel", menu, "mnuHelp3", "Iesire din pagina"},
};

constexpr ControlRow tableRows[] = {
    {"TxtFoc", box, "", ""},           {"QRA", data, "", ""},
    {"Uus144a", data, "", ""},         {"Uus144b", data, "", ""},
    {"Uus432a", data, "", ""},         {"Uus432b", data, "", ""},
    {"Uus1296a", data, "", ""},        {"Uus1296b", data, "", ""},
    {"UusGHz", data, "", ""},          {"UusLGYO2", data, "", ""},
    {"DBGrid1", grid, "", "", hidden}, {"DBGrid2", grid, "", "", hidden},
    {"DBGrid3", grid, "", "", hidden}, {"DBGrid4", grid, "", "", hidden},
    {"DBGrid5", grid, "", "", hidden}, {"DBGrid6", grid, "", "", hidden},
    {"DBGrid7", grid, "", "", hidden}, {"DBGrid8", grid, "", "", hidden},
    {"DBGrid9", grid, "", "", hidden},
};

constexpr ControlRow logRows[] = {
    {"Frame1", frame, "", "VIEW", hidden},
    {"OpB144a", option, "Frame1", "Log 144a"},
    {"Opb144b", option, "Frame1", "Log 144b"},
    {"OpB432a", option, "Frame1", "Log 432a"},
    {"OpB432b", option, "Frame1", "Log 432b"},
    {"OpB1296a", option, "Frame1", "Log 1296a"},
    {"OpB1296b", option, "Frame1", "Log 1296b"},
    {"OpBQRALoc", option, "Frame1", " &QRA Loc"},
    {"Frame2", frame, "", "DELETE LOG", hidden},
    {"OpbL144a", option, "Frame2", "Log 144a"},
    {"OpbL144b", option, "Frame2", "Log 144b"},
    {"OpbL432a", option, "Frame2", "Log 432a"},
    {"OpbL432b", option, "Frame2", "Log 432b"},
    {"OpBL1296a", option, "Frame2", "Log 1296a"},
    {"OpBL1296b", option, "Frame2", "Log 1296b"},
    {"OpbLGHz", option, "Frame2", "Log GHz", hidden},
    {"Frame3", frame, "", "PRINT", hidden},
    {"OpBD144a", option, "Frame3", "Log 144a"},
    {"OpBD144b", option, "Frame3", "Log 144b"},
    {"OpBD432a", option, "Frame3", "Log 432a"},
    {"OpBD432b", option, "Frame3", "Log 432b"},
    {"OpBD1296a", option, "Frame3", "Log 1296a"},
    {"OpBD1296b", option, "Frame3", "Log 1296b"},
    {"OpBDSumm144", option, "Frame3", "Summary 144"},
    {"OpBDSumm432", option, "Frame3", "Summary 432"},
    {"OpbDSumm1296", option, "Frame3", "Summary 1296"},
    {"Frame4", frame, "", "Summe/Band", hidden},
    {"LblQSO", label, "Frame4", "QSO"},
    {"LblQSO1", label, "Frame4", "0"},
    {"LblPkt", label, "Frame4", "Pkt"},
    {"LblPkt1", label, "Frame4", "0"},
    {"Frame5", frame, "", "&DELETE", hidden},
    {"OpBDelete", option, "Frame5", "Delete"},
};

constexpr ControlRow fileRows[] = {
    {"Frame8", frame, "", "DISKETA", hidden},
    {"OpBDsk144", option, "Frame8", "144 MHz"},
    {"OpBDsk432", option, "Frame8", "432 MHz"},
    {"OpBDsk1296", option, "Frame8", "1296 MHz"},
    {"Frame10", frame, "", "BANDA", hidden},
    {"OpB0144", option, "Frame10", "144 MHz"},
    {"Opb0432", option, "Frame10", "432 MHz"},
    {"OpB01296", option, "Frame10", "1296 MHz"},
    {"FraBandEdi", frame, "", "BAND EDI", hidden},
    {"OpB144Edi", option, "FraBandEdi", "1&44 MHz"},
    {"OpB432Edi", option, "FraBandEdi", "4&32 MHz"},
    {"OpB1296Edi", option, "FraBandEdi", "1&296 MHz"},
    {"OpBGHzEdi", option, "FraBandEdi", "GHz"},
    {"FraArh", frame, "", "Arhivare LOG", hidden},
    {"LblNumeFis", label, "FraArh", "Nume fisier"},
    {"TxtNameDat", box, "FraArh", ""},
    {"CmdMem", button, "FraArh", "Arhivare fisier TEXT"},
    {"CmdArhivADI", button, "FraArh", "Arhivare fisier ADIF"},
    {"DrvList", list, "FraArh", ""},
    {"DirList", list, "FraArh", ""},
    {"FilList", list, "FraArh", ""},
    {"CmdSterg", button, "FraArh", "Stergere"},
    {"Frame6", frame, "", "ENTER DATA", hidden},
    {"CmdGata", button, "", "INTRODUCEREDE DATE TERMINATA", hidden},
    {"FraLogEDI1", frame, "", "ENTER DATA EDI FORMAT (1/2)", hidden},
    {"CmdNextPage", button, "FraLogEDI1", "Next page"},
    {"FraLogEDI2", frame, "", "ENTER DATA EDI FORMAT (2/2)", hidden},
    {"CmdRetur", button, "FraLogEDI2", "Retur pag.1/2"},
};

/// A box with the label in front of it.
struct BoxRow {
    const char* box;
    const char* text;
    const char* label;
    const char* caption;
};

constexpr BoxRow ediStation[] = {
    {"TxtTName", "", "LblTName", " TName="},     {"TxtTDate1", " ", "LblTDate1", "TDate1t="},
    {"TxtTDate2", " ", "LblTDate2", " TDate2="}, {"TxtPCall", " ", "LblPCall", " PCall="},
    {"TxtPWWLo", " ", "LblPWWLo", "PWWLo="},     {"TxtPExch", "", "LblPExch", "P Exch="},
    {"TxtPSect", " ", "LblPSect", "PSect="},     {"TxtPBand", " ", "LblPBand", " PBand="},
    {"TxtPAdr1", " ", "LblPAdr1", "PAdr1="},     {"TxtPAdr2", " ", "LblPAdr2", " PAdr2="},
    {"TxtRClub", " ", "LblRClub", " PClub="},    {"TxtRName", " ", "LblRName", "RName="},
    {"TxtRCall", " ", "LblRCall", "RCall="},     {"TxtRAdr1", " ", "LblRAdr1", " RAdr1="},
    {"TxtRAdr2", " ", "LblRAdr2", " RAdr2="},    {"TxtRPoCo", " ", "LblRPoCo", " RPoCo="},
    {"TxtRCity", " ", "LblRCity", "RCity="},     {"TxtRCoun", " ", "LblRCoun", " RCountry="},
    {"TxtRPhon", " ", "LblRPhon", " RPhon="},    {"TxtRHBBS", "", "LblRHBBS", " RHBBS="},
    {"TxtMOpe1", " ", "LblMOpe1", " MOpe1="},    {"TxtMOpe2", " ", "LblMOpe2", " MOpe2="},
    {"TxtSTxEq", " ", "LblSTXEq", " STXEq="},    {"TxtSPowe", " ", "LblSPowe", "SPower="},
    {"TxtSRXEq", " ", "LblSRXEq", "S RXEq="},    {"TxtSAnte", " ", "LblSAnte", "SAnte="},
    {"TxtSAntH1", " ", "LblSAntH1", "SAntH1="},  {"TxtSAntH2", " ", "LblSAntH2", " SAntH2="},
};

constexpr BoxRow ediClaims[] = {
    {"TxtCQSOs1", "", "LblCQSOs1", "CQSOs1="},   {"TxtCQSOs2", "1", "LblCQSOs2", "CQSOs2="},
    {"TxtCQSOP", "", "LblCQSOP", "CQSOP="},      {"TxtCWWLs1", " ", "LblCWWLs1", "CWWLs1="},
    {"TxtCWWLs2", " 0", "LblCWWLs2", "CWWLs2="}, {"TxtCWWLs3", " 1", "LblCWWLs3", "CWWLs3="},
    {"TxtCWWLB", "0", "LblCWWLB", "CWWLB="},     {"TxtCExcs1", "0 ", "LblCExcs1", "CExcs1="},
    {"TxtCExcs2", "0 ", "LblCExcs2", "CExcs2="}, {"TxtCExcs3", "1 ", "LblCExcs3", "CExcs3="},
    {"TxtCExcB", "0", "LblCExcB", "CExcsB="},    {"TxtCDXCs1", "", "LblCDXCs1", "CDXCs1="},
    {"TxtCDXCs2", "0 ", "LblCDXCs2", "CDXCs2="}, {"TxtCDXCs3", "1 ", "LblCDXCs3", "CDXCs3="},
    {"TxtCDXCB", "0", "LblCDXCB", "CDXCB="},     {"TxtCToSc", " ", "LblCToSc", "CTolSc="},
    {"TxtCODXC1", " ", "LblCODXC1", "CODXC1="},  {"TxtCODXC2", " ", "LblCODXC2", "CDDXC2="},
    {"TxtCODXC3", " ", "LblCODXC3", "CODXC3="},  {"TxtFRem1", " ", "LblFRem1", "Remarks="},
    {"TxtFRem2", "", "LblFRem2", "Remarks="},    {"TxtFRem3", "", "LblFRem3", "Remarks="},
};

constexpr BoxRow stationData[] = {
    {"TxtSection", "", "LblSection", "Section"},
    {"TxtOp", "", "LblOp", "Op's Name"},
    {"TxtNo", "", "LblNo", "No Operat"},
    {"TxtQTH", "", "LblQTH", "QTH"},
    {"TxtAds", "", "LblAds", "Adress"},
    {"TxtTx", "", "LblTx", "Tx"},
    {"TxtRx", "", "LblRx", "Rx"},
    {"TxtAnt", "", "LblAnt", "Ant1"},
    {"TxtAnt2", "", "LblAnt2", "Ant2"},
    {"TxtAnt3", "", "LblAnt3", "Ant3"},
    {"TxtAnt4", "", "LblAnt4", "Ant4"},
    {"TxtClub", "", "LblClub", "Club"},
};

std::string textOf(const Control& control)
{
    if (control.kind == Kind::textBox) return static_cast<const screen::TextBox&>(control).Text.get();
    return screen::captionOf(control);
}

class ControlTable {
 public:
    void expect(const ControlRow& row)
    {
        const Control* control = FrmAnzeigen.find(row.name);
        ASSERT_NE(control, nullptr) << row.name;
        told_.insert(control);
        EXPECT_EQ(control->kind, row.kind) << row.name;
        EXPECT_EQ(control->container == nullptr ? "" : control->container->name, row.container) << row.name;
        EXPECT_EQ(textOf(*control), row.text) << row.name;
        EXPECT_EQ(control->Visible, row.visible) << row.name;
        EXPECT_TRUE(control->Enabled) << row.name;
        EXPECT_EQ(control->ToolTipText, "") << row.name;
        EXPECT_EQ(control->BackColor, standsOnWhite(row.kind) ? screen::white : screen::buttonFace) << row.name;
    }

    template <std::size_t count>
    void expect(const ControlRow (&rows)[count])
    {
        for (const ControlRow& row : rows)
            expect(row);
    }

    template <std::size_t count>
    void expect(const BoxRow (&rows)[count], const char* container)
    {
        for (const BoxRow& row : rows) {
            expect({row.box, box, container, row.text});
            expect({row.label, label, container, row.caption});
        }
    }

    std::size_t told() const { return told_.size(); }

 private:
    static bool standsOnWhite(Kind kind) { return kind == box || kind == list || kind == grid; }

    std::set<const Control*> told_;
};

TEST_F(FrmAnzeigenPage, HasItsControlsAndNoOthers)
{
    ControlTable table;
    table.expect(menuRows);
    table.expect(tableRows);
    table.expect(logRows);
    table.expect(fileRows);
    table.expect(ediStation, "FraLogEDI1");
    table.expect(ediClaims, "FraLogEDI2");
    table.expect(stationData, "Frame6");
    EXPECT_EQ(table.told(), FrmAnzeigen.controls().size());
}

TEST_F(FrmAnzeigenPage, ShowsNothingButItsMenu)
{
    for (const Control* control : FrmAnzeigen.controls()) {
        const bool shown = control->kind == menu || control->kind == data || control == &FrmAnzeigen.TxtFoc;
        EXPECT_EQ(control->seen(), shown) << control->name;
    }
}

TEST_F(FrmAnzeigenPage, HasNoOptionChosen)
{
    for (const Control* control : FrmAnzeigen.controls())
        if (const auto* chosen = dynamic_cast<const screen::OptionButton*>(control)) {
            EXPECT_FALSE(chosen->Value) << control->name;
        }
}

/// Boxes of a frame in the order in which Tab and Enter walk them.
std::vector<std::string> boxesOf(const Control& container)
{
    std::vector<std::string> names;
    for (const Control* control : FrmAnzeigen.controls())
        if (control->kind == box && control->container == &container) names.push_back(control->name);
    return names;
}

template <std::size_t count>
std::vector<std::string> namesOf(const BoxRow (&rows)[count])
{
    std::vector<std::string> names;
    for (const BoxRow& row : rows)
        names.emplace_back(row.box);
    return names;
}

TEST_F(FrmAnzeigenPage, AsksForDataInTheOrderInWhichItIsTaken)
{
    EXPECT_EQ(boxesOf(FrmAnzeigen.FraLogEDI1), namesOf(ediStation));
    EXPECT_EQ(boxesOf(FrmAnzeigen.FraLogEDI2), namesOf(ediClaims));
    EXPECT_EQ(boxesOf(FrmAnzeigen.Frame6), namesOf(stationData));
}

TEST_F(FrmAnzeigenPage, KeepsInputMethodsOutOfCallsLocatorsAndDates)
{
    const auto& f = FrmAnzeigen;
    const std::set<const Control*> plain = {&f.TxtTDate1, &f.TxtTDate2, &f.TxtPCall, &f.TxtPWWLo,
                                            &f.TxtRCall,  &f.TxtCODXC1, &f.TxtCODXC2};
    for (const Control* control : f.controls()) {
        const auto* field = dynamic_cast<const screen::TextBox*>(control);
        if (field == nullptr || field->parking) continue;
        EXPECT_EQ(field->inputMethod, !plain.contains(field)) << field->name;
    }
}

TEST_F(FrmAnzeigenPage, StartsItsRunState)
{
    const auto& f = FrmAnzeigen;
    for (const int flag : {f.OutMode, f.OutFormat, f.ArhFormat, f.ArhSelExt, f.EnterFlag, f.EnterAgain, f.InsertAsked})
        EXPECT_EQ(flag, 0);
    for (const std::string& text : {f.BandText, f.OutFile, f.LineBuf, f.ArhName, f.VerifPath})
        EXPECT_EQ(text, "");
    EXPECT_EQ(f.RecCount, 0);
    EXPECT_EQ(f.SumQso, 0);
    EXPECT_EQ(f.SumPct, 0);
    EXPECT_EQ(f.EdiHdr.TName, "");
    EXPECT_EQ(f.EdiHdr.CDXCs1, "");
}

TEST_F(FrmAnzeigenPage, KeepsARowOfTheLogInTextsOfFixedLength)
{
    struct LengthRow {
        const std::string& field;
        std::size_t characters;
    };
    const auto& record = FrmAnzeigen.LogRec;
    const LengthRow lengths[] = {
        {record.Nr, 3},     {record.Callsign, 10}, {record.Data, 9},   {record.UTC, 6},    {record.Sent, 7},
        {record.Rcvd, 7},   {record.Mode, 4},      {record.Freq, 5},   {record.QRALoc, 6}, {record.Pct, 6},
        {record.NameR, 10}, {record.NameE, 10},    {record.QRALcE, 6},
    };
    for (const LengthRow& row : lengths)
        EXPECT_EQ(row.field, std::string(row.characters, ' '));

    FrmAnzeigen.LogRec.UTC = "12:34";
    EXPECT_EQ(record.UTC.get(), "12:34 ");
    FrmAnzeigen.LogRec.Pct = "1234567";
    EXPECT_EQ(record.Pct.get(), "123456");
    FrmAnzeigen.LogRec.NameR = "ȘTEFAN";
    EXPECT_EQ(record.NameR.get(), "ȘTEFAN    ");
}

}  // namespace
