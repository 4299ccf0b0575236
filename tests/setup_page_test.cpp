// The set-up page in a running program: every control of it, help, long and odd texts, paper-log input.
#include "screen/setup_page.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "runstate/modul1.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"
#include "screen/mnemonic.h"
#include "support/running_program.h"
#include "support/script_player.h"

namespace {

namespace fs = std::filesystem;

// ---- Every control

/// A control of the page as it stands at the start. A caption that is nobody's business is nullptr.
struct ControlRow {
    const char* name;
    const char* caption;
    const char* toolTip;
    bool seen;
};

constexpr const char* anyText = nullptr;
constexpr bool seen = true;
constexpr bool hidden = false;

constexpr ControlRow controlsOfThePage[] = {
    {"mnuExit", "E&XIT", "", seen},
    {"mnuQSOfahren", "START_&QSO ", "", seen},
    {"mnuLOG", "&LOG", "", seen},
    {"mnuInputLog", "    &INPUT_LOG_OFF-LINE", "", seen},
    {"mnuHelp1", "&HELP", "", seen},
    {"mnuInit", anyText, "", seen},
    {"mnuInDat", anyText, "", seen},
    {"mnuOutInit", anyText, "", seen},
    {"LblContest", "BEFORE START PLEASE FILL THIS PAGE ", "", seen},
    {"LblTypTest", "", "", seen},
    {"LblMyCall", "MY CALL  ", "", seen},
    {"TxtMyCall", "", "Introdu indicativul propriu", seen},
    {"LblQraLoc", "   MY QRALOC", "", seen},
    {"txtMyQRA", "", "Introdu QRA Locatorul propriu", seen},
    {"LblTime", " (Time Local - UTC)", "", seen},
    {"TxtTime", "", "Introdu diferenta intre timpul calculator si timpul UTC", seen},
    {"LblMyName", "MY NAME", "", hidden},
    {"TxtMyName", "", "", hidden},
    {"LblRpNr", "Cod Nr", "", seen},
    {"TxtRpNr", "", "Introdu Codul de inceput (vezi regulamentul de concurs)", seen},
    {"LblInscr", "(Nr Control for the next QSO)", "", seen},
    {"LblSD", "START DATE", "", hidden},
    {"TxtSD", "", "Introdu data concursului", hidden},
    {"LblST", "START TIME", "", hidden},
    {"TxtST", "", "Introdu ora cind ai inceput concursul", hidden},
    {"FrmConcurs", "Concurs :", "", seen},
    {"OpBCampNatUUS", "Camp.Nationale UUS", "Lucru in Camp. Nation. UUS", seen},
    {"OpbCarpati", "Trofeul Carpati", "Lucru in Trofeul carpati", seen},
    {"OpbCluj", "Concurs Cluj Napoca", "Lucrul in Concurs Cluj Napoca", seen},
    {"OpBFloareademina", "Floarea de mina", "Lucrul in Concurs Floarea de Mina", seen},
    {"OpbOltenia", "Oltenia 144 MHz", "Lucrul in Concurs Oltenia 144 MHz", seen},
    {"OpBConstrMas", "Constructor masini", "Lucrul in concursul Constructor masini", seen},
    {"OpBTelecom", "Ziua Telecom", "", seen},
    {"OpBMaraton", "Maraton YO2", "", seen},
    {"OpbZPV", "Zi plina de vara", "Lucru in Camp. Intern. UUS", seen},
    {"OpBCampInternUUS", "Camp.Internat. UUS", "Lucru in Camp. Intern. UUS", seen},
    {"OpbOltenia6m", "Oltenia 6m", "", seen},
    {"FraConcurs", "ATENTIUNE", "", hidden},
    {"LblAnunt",
     "Programul permite doua moduri de operare. "
     "     -In modul CONCURS, (butonul CONCURS apasat) toate modificarile de QRA Locator sint memorate automat in baza "
     "de date."
     "                -Al doilea mod este util pentru invatarea programului sau pentru antrenament."
     "Cind butonul TEST este apasat, operatorul poate introduce orice date corespunzatoare QRA Locatorului fara a "
     "afecta baza de date."
     "               Aceasta inseamna ca in modul normal de lucru (CONTEST) toate datele referitoare la QRA Locator "
     "scrise in modul de lucru (TEST) vor fi ignorate.",
     "", hidden},
    {"OpbConcurs", "C&ONCURS", "", hidden},
    {"OpbTest", "T&EST", "", hidden},
    {"FramCW", "CW cu PC", "", seen},
    {"OpbCwJ", "CW Transmis cu calculatorul DA", "", seen},
    {"OpbCwN", "CW Transmis cu calculatorul NU", "", seen},
    {"ChkCwRpt", "Cw &Rpt", "", hidden},
    {"FramSSB", "SSB cu PC", "", seen},
    {"OpbSSBJ", "CW Transmis cu calculatorul DA", "", seen},
    {"OpbSSBN", "CW Transmis cu calculatorul NU", "", seen},
    {"ChkSSBRpt", "&SSB Rpt", "", hidden},
    {"LblCP", "CommPort:", "", seen},
    {"TxtCP", "", "Introdu Nr. Port Serial", seen},
    {"FramTxtCw", "TEXT PROGRAM CW", "", hidden},
    {"LblF1", anyText, "", hidden},
    {"TxtF1", "", "Text telegrafic de transmis prin F1", hidden},
    {"LblF2", anyText, "", hidden},
    {"TxtF2", "", "Text telegrafic de transmis prin F2", hidden},
    {"LblF3", anyText, "", hidden},
    {"TxtF3", "", "Text telegrafic de transmis prin F3", hidden},
    {"LblF4", anyText, "", hidden},
    {"TxtF4", "", "Text telegrafic de transmis prin F4", hidden},
    {"LblF5", anyText, "", hidden},
    {"TxtF5", "", "Text telegrafic de transmis prin F5", hidden},
    {"LblF6", anyText, "", hidden},
    {"TxtF6", "", "Text telegrafic de transmis prin F6", hidden},
    {"LblF7", anyText, "", hidden},
    {"TxtF7", "", "Text de transmis prin F7", hidden},
    {"LblMC", "#1 = MyCall", "", hidden},
    {"LblYC", "#2 = YourCall", "", hidden},
    {"LblNo", "#3 = Report Nr", "", hidden},
    {"LblMQRA", "#4 = My QRA", "", hidden},
    {"LblVar", "Var. A1.07", "", seen},
    {"LblJosIn", "F1 = HELP", "", seen},
    {"LblSemn1", "Created by XX9ZZZ", "", seen},
};

TEST(SetUpPage, HasEveryControlWithItsTextsAtTheStart)
{
    const test::RunningProgram program;
    ASSERT_EQ(FrmInit.controls().size(), std::size(controlsOfThePage)) << "a control that nobody checks";
    for (const ControlRow& row : controlsOfThePage) {
        const screen::Control* control = FrmInit.find(row.name);
        ASSERT_NE(control, nullptr) << row.name;
        EXPECT_EQ(control->name, row.name);
        const std::string& caption = screen::captionOf(*control);
        EXPECT_EQ(caption, row.caption != anyText ? row.caption : caption) << row.name;
        EXPECT_EQ(control->ToolTipText, row.toolTip) << row.name;
        EXPECT_EQ(control->seen(), row.seen) << row.name;
        EXPECT_TRUE(control->Enabled) << row.name;
    }
    EXPECT_EQ(FrmInit.HelpContextID, 100);
    EXPECT_EQ(FrmQSO.HelpContextID, 400);
}

struct FieldRow {
    const screen::Label& label;
    const screen::TextBox& field;
};

TEST(SetUpPage, EveryLabelStandsInFrontOfItsField)
{
    const test::RunningProgram program;
    const auto& f = FrmInit;
    const FieldRow rows[] = {
        {f.LblMyCall, f.TxtMyCall}, {f.LblQraLoc, f.txtMyQRA}, {f.LblTime, f.TxtTime}, {f.LblMyName, f.TxtMyName},
        {f.LblRpNr, f.TxtRpNr},     {f.LblSD, f.TxtSD},        {f.LblST, f.TxtST},     {f.LblCP, f.TxtCP},
        {f.LblF1, f.TxtF1},         {f.LblF2, f.TxtF2},        {f.LblF3, f.TxtF3},     {f.LblF4, f.TxtF4},
        {f.LblF5, f.TxtF5},         {f.LblF6, f.TxtF6},        {f.LblF7, f.TxtF7},
    };
    for (const FieldRow& row : rows) {
        const screen::Rectangle& label = row.label.design;
        const screen::Rectangle& field = row.field.design;
        const double middle = label.Top + label.Height / 2;
        EXPECT_EQ(row.label.container, row.field.container) << row.field.name;
        EXPECT_LE(label.Left + label.Width, field.Left) << row.field.name;
        EXPECT_GT(middle, field.Top) << row.field.name;
        EXPECT_LT(middle, field.Top + field.Height) << row.field.name;
    }
    const screen::Rectangle& behind = f.LblInscr.design;
    EXPECT_GE(behind.Left, f.TxtRpNr.design.Left + f.TxtRpNr.design.Width) << "the second label of the start number";
}

// ---- Help

class SetUpPageHelp : public test::ScriptPlayer {
 protected:
    void SetUp() override
    {
        ScriptPlayer::SetUp();
        play("file \"WAVUus/readme.txt\"\n|voice\nstart\n");
    }

    /// Context numbers asked for so far, in order.
    std::vector<std::string> contexts()
    {
        std::vector<std::string> contexts;
        for (const script::TimedEvent& event : player_->machine().record.help)
            contexts.push_back(event.what);
        return contexts;
    }
};

TEST_F(SetUpPageHelp, OpensWithF1EverywhereButInTheFieldsOfTheStation)
{
    play("click OpBMaraton\nclick OpbCwJ\nclick OpbSSBJ\nclick mnuInputLog\n");
    FrmInit.TxtRpNr.Visible = true;
    std::size_t asked = 0;
    for (const screen::Control* control : FrmInit.controls()) {
        if (!control->canTakeFocus()) continue;
        const bool swallows = control == &FrmInit.TxtMyCall || control == &FrmInit.TxtMyName ||
                              control == &FrmInit.txtMyQRA || control == &FrmInit.TxtRpNr ||
                              control == &FrmInit.TxtTime;
        if (!swallows) ++asked;
        play("focus " + control->name + "\nkey F1\n");
        EXPECT_EQ(contexts(), std::vector<std::string>(asked, "100")) << control->name;
        EXPECT_EQ(FrmInit.ActiveControl, control);
    }
    EXPECT_GE(asked, 18U) << "fields, options and boxes that were walked";
    expectTally(0, 0);
}

TEST_F(SetUpPageHelp, OpensFromTheMenuAtItsPlaces)
{
    play("click mnuInit\nclick mnuInDat\nclick mnuOutInit\n");
    EXPECT_EQ(contexts(), (std::vector<std::string>{"100", "200", "300"}));
    expectTally(0, 0);
}

// ---- Odd input

struct CountRow {
    std::string typed;
    int count;
    bool told;
};

TEST(SetUpPage, TakesANumberThatNobodyChecks)
{
    const CountRow rows[] = {
        {"", 0, false},
        {"   ", 0, false},
        {"0", 0, false},
        {"7", 7, false},
        {" 12 ", 12, false},
        {"012", 12, false},
        {"-3", -3, false},
        {"32767", 32767, false},
        {"-32768", -32768, false},
        {"32768", 0, true},
        {"-32769", 0, true},
        {"COM2", 0, true},
        {"1.5", 0, true},
        {"1 2", 0, true},
        {std::string(500, '9'), 0, true},
        {std::string(10000, 'X'), 0, true},
    };
    test::RunningProgram program;
    for (const CountRow& row : rows) {
        FrmInit.TxtCP.Text = row.typed;
        const std::size_t before = program.notices().size();
        EXPECT_EQ(screen::countIn(FrmInit.TxtCP), row.count) << row.typed;
        EXPECT_EQ(program.notices().size() - before, row.told ? 1U : 0U) << row.typed;
    }
    for (const std::string& notice : program.notices())
        EXPECT_LT(notice.size(), 100U) << "a line at the foot of the page";
}

class LongMessages : public test::ScriptPlayer {};

TEST_F(LongMessages, GoToTheFileAndComeBackWhole)
{
    std::string text;
    while (text.size() < 10000)
        text += "CQ CQ DE #1 #4 \xC4\x82 ";
    text += "K";
    play("start\nclick OpBFloareademina\nclick OpbTest\nclick OpbCwJ\npaste \"" + text + "\"\nkey Enter\n");
    EXPECT_EQ(FrmInit.TxtF1.Text, text);
    EXPECT_EQ(Modul1.TxtCwF1, text);
    EXPECT_EQ(FrmInit.ActiveControl, &FrmInit.TxtF2);
    play("click mnuQSOfahren\n");
    EXPECT_EQ(FrmQSO.TxtF1.Text, text);
    play("restart\n");
    EXPECT_EQ(FrmInit.TxtF1.Text, text);
    expectTally(0, 0);
}

TEST_F(LongMessages, KeepALineEndOutOfTheFile)
{
    play("start\nclick OpBFloareademina\nclick OpbTest\nclick OpbCwJ\n");
    FrmInit.TxtF1.SetFocus();
    player_->machine().clipboard.setText("cq\r\ncq\tde");
    play("key Ctrl+v\n");
    EXPECT_EQ(FrmInit.TxtF1.Text, "CQCQDE");
}

// ---- Files that nobody can use

constexpr const char* initDat = "KelvoInit.dat";
constexpr const char* textCw = "KELVOTextCw.dat";

/// A program that finds these bytes as its set-up files, and goes on to the entry.
void startWith(test::RunningProgram& program, const std::string& station, const std::string& messages)
{
    test::writeFile(program.folder() / initDat, station);
    test::writeFile(program.folder() / textCw, messages);
    program.restart();
    EXPECT_TRUE(FrmInit.Visible);
    EXPECT_FALSE(program.box());
}

TEST(SetUpFilesInPieces, AreToldAndKeepNobodyFromTheContest)
{
    const std::string station =
        "YO2XYZ\r\nKN05OS\r\n2\r\n 12 \r\nMULTI\r\nION\r\n 3 \r\nTIMISOARA\r\nSTR\r\nTX\r\nRX\r\n"
        "A1\r\nA2\r\nA3\r\nA4\r\nCLUB\r\nION\r\n";
    const std::string messages = "CQ\r\nTU\r\nQRZ\r\nAGN\r\nQRX\r\nNR\r\n73\r\n 4 \r\n";
    test::RunningProgram program;
    for (std::size_t length = 0; length < station.size(); length += 7) {
        startWith(program, station.substr(0, length), messages.substr(0, length));
        const std::string call = station.substr(0, std::min<std::size_t>(length, 6));
        EXPECT_EQ(FrmInit.TxtMyCall.Text, call) << length;
        program.click(FrmInit.mnuQSOfahren);
        EXPECT_TRUE(FrmQSO.Visible) << length;
        EXPECT_FALSE(program.box()) << length;
    }
    ASSERT_FALSE(program.notices().empty());
    EXPECT_EQ(program.notices().front(), "KelvoInit.dat, value 1: The file ends too early");
}

TEST(SetUpFilesInPieces, MayHoldAnything)
{
    std::string everyByte;
    for (int byte = 0; byte < 256; ++byte)
        everyByte.push_back(static_cast<char>(byte));
    const std::string nulBytes(40, '\0');
    const std::string utf8 = "\xEF\xBB\xBFYO2XYZ\r\nKN05OS\r\n\xC8\x99\r\n";
    const std::string utf16("Y\0O\0002\0X\0\r\0\n\0", 12);
    test::RunningProgram program;
    for (const std::string& bytes : {everyByte, nulBytes, utf8, utf16}) {
        startWith(program, bytes, bytes + bytes);
        program.click(FrmInit.OpBFloareademina);
        program.click(FrmInit.OpbTest);
        program.click(FrmInit.mnuQSOfahren);
        EXPECT_TRUE(FrmQSO.Visible);
        EXPECT_FALSE(program.box());
        EXPECT_FALSE(program.notices().empty());
    }
}

TEST(SetUpFilesInPieces, StayAsTheyAreWhenTheyAreWriteProtected)
{
    const std::string station =
        "YO2OLD\r\nKN05OS\r\n2\r\n 12 \r\n\r\n\r\n 0 \r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n";
    const std::string messages = "CQ\r\n\r\n\r\n\r\n\r\n\r\n\r\n 4 \r\n";
    test::RunningProgram program;
    startWith(program, station, messages);
    for (const char* name : {initDat, textCw})
        fs::permissions(program.folder() / name, fs::perms::owner_read);
    FrmInit.TxtMyCall.Text = "YO2NEW";
    FrmInit.TxtF1.Text = "QRZ";
    program.click(FrmInit.mnuQSOfahren);
    EXPECT_TRUE(FrmQSO.Visible);
    EXPECT_EQ(FrmQSO.LblMyCall.Caption, "YO2NEW");
    EXPECT_FALSE(program.box());
    EXPECT_EQ(test::readFile(program.folder() / initDat), station);
    EXPECT_EQ(test::readFile(program.folder() / textCw), messages);
    ASSERT_EQ(program.notices().size(), 2U);
    EXPECT_EQ(program.notices()[0], "KELVOTextCw.dat is write-protected: it stays as it was");
    EXPECT_EQ(program.notices()[1], "KelvoInit.dat is write-protected: it stays as it was");
}

TEST(SetUpFilesInPieces, ThatAreGoneOnTheWayBackTakeNothingWithThem)
{
    test::RunningProgram program;
    FrmInit.TxtCP.Text = "2";
    FrmInit.TxtF1.Text = "CQ";
    FrmInit.TxtMyCall.Text = "YO2XYZ";
    program.click(FrmInit.mnuQSOfahren);
    fs::remove(program.folder() / initDat);
    fs::remove(program.folder() / textCw);
    program.click(FrmQSO.mnuAnfang);
    EXPECT_EQ(FrmInit.TxtCP.Text, "2");
    EXPECT_EQ(FrmInit.TxtF1.Text, "CQ");
    EXPECT_EQ(FrmInit.TxtMyCall.Text, "YO2XYZ");
    EXPECT_EQ(FrmInit.TxtRpNr.Text, "000");
}

// ---- Paper-log input

TEST(PaperLogInput, ShowsItselfOnAnEntryFormThatIsLoadedAgain)
{
    test::RunningProgram program;
    FrmQSO.Unload();
    program.click(FrmInit.mnuInputLog);
    program.click(FrmInit.mnuQSOfahren);
    EXPECT_TRUE(FrmQSO.Visible);
    EXPECT_EQ(Modul1.OfflineInput, 100);
    EXPECT_TRUE(FrmQSO.LblOffLine.Visible);
    program.click(FrmQSO.mnuAnfang);
    EXPECT_FALSE(FrmQSO.LblOffLine.Visible);
}

}  // namespace
