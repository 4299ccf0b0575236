// The archive: the name one key behind, the lists, and what is deleted.
#include "review/archive.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "platform/files.h"
#include "runstate/modul1.h"
#include "screen/frm_anzeigen.h"
#include "screen/frm_init.h"
#include "support/filled_log.h"

namespace {

namespace fs = std::filesystem;

class Archive : public test::FilledLog {
 protected:
    void SetUp() override
    {
        program.click(FrmInit.mnuLOG);
        contest(3);
        Modul1.ConcShort = "Floare";
        begin();
    }

    void begin()
    {
        program.click(FrmAnzeigen.MnuArhiva);
        while (program.box()) {
        }
    }

    /// A key in the name that leaves no character, as Enter.
    static void pressKey()
    {
        char32_t key = U'\r';
        FrmAnzeigen.TxtNameDat.KeyPress(key);
    }

    static void name(const std::string& text)
    {
        FrmAnzeigen.TxtNameDat.Text = text;
        pressKey();
    }

    fs::path archives() const { return program.folder() / "ARHIVA"; }

    void makeArchive(const std::string& file) const { test::writeFile(archives() / file, "old"); }

    std::string told()
    {
        const auto box = program.box();
        return box ? box->request.text : "nothing";
    }

    static std::vector<std::string> files() { return FrmAnzeigen.FilList.items; }
};

TEST_F(Archive, BeginsWithItsFrame)
{
    EXPECT_EQ(FrmAnzeigen.OutMode, 20);
    EXPECT_EQ(FrmAnzeigen.EnterFlag, 10);
    for (const screen::Control* control : FrmAnzeigen.controls())
        if (control->kind == screen::Kind::frame) {
            EXPECT_EQ(control->Visible, control->name == "FraArh") << control->name;
        }
}

TEST_F(Archive, BeginsWithTheBandWhereEachIsAReportOfItsOwn)
{
    contest(0);
    begin();
    for (const screen::Control* control : FrmAnzeigen.controls())
        if (control->kind == screen::Kind::frame) {
            EXPECT_EQ(control->Visible, control->name == "Frame10") << control->name;
        }
}

TEST_F(Archive, LeavesTheFormatOfFilesAsItIs)
{
    for (const int format : {0, 10, 100}) {
        FrmAnzeigen.OutFormat = static_cast<std::uint16_t>(format);
        begin();
        EXPECT_EQ(FrmAnzeigen.OutFormat, format);
    }
}

TEST_F(Archive, TakesTheNameOneKeyBehind)
{
    const std::string typed = "name";
    for (std::size_t keys = 0; keys < typed.size(); ++keys) {
        char32_t key = static_cast<unsigned char>(typed[keys]);
        FrmAnzeigen.TxtNameDat.KeyPress(key);
        EXPECT_EQ(FrmAnzeigen.ArhName, std::string("NAME").substr(0, keys));
        FrmAnzeigen.TxtNameDat.Text = FrmAnzeigen.TxtNameDat.Text.get() + static_cast<char>(key);
    }
    EXPECT_EQ(FrmAnzeigen.TxtNameDat.Text.get(), "NAME");
    pressKey();
    EXPECT_EQ(FrmAnzeigen.ArhName, "NAME");
}

struct ExtensionRow {
    const char* text;
    const char* name;
    int format;  ///< ArhSelExt
};

TEST_F(Archive, SeesAnExtensionInTheName)
{
    constexpr int before = 7;
    constexpr ExtensionRow rows[] = {
        {"NAME.TXT", "NAME", 50},
        {"name.txt", "name", 50},
        {"NAME.ADI", "NAME", 60},
        {"NAME.adi", "NAME", 60},
        {"NAME.Txt", "NAME.Txt", 7},
        {"NAME.Adi", "NAME.Adi", 7},
        {"NAME", "NAME", 7},
        {"NAMETXT", "NAMETXT", 7},
        {".TXT", "", 50},
        {"A.ADI.TXT", "A", 60},
        {"A.TXT.ADI", "A.TXT", 60},
        {"TXT", "TXT", 7},
        {"", "", 7},
        {"NAME.TXT ", "NAME.TXT ", 7},
        {"A.B", "A.B", 7},
    };
    for (const ExtensionRow& row : rows) {
        FrmAnzeigen.ArhSelExt = before;
        name(row.text);
        EXPECT_EQ(FrmAnzeigen.ArhName, row.name) << row.text;
        EXPECT_EQ(FrmAnzeigen.TxtNameDat.Text.get(), row.name) << row.text;
        EXPECT_EQ(FrmAnzeigen.ArhSelExt, row.format) << row.text;
    }
}

TEST_F(Archive, AsksForANameBeforeItIsWritten)
{
    for (screen::CommandButton* button : {&FrmAnzeigen.CmdMem, &FrmAnzeigen.CmdArhivADI}) {
        for (const char* text : {"", "   "}) {
            name("NAME");
            FrmAnzeigen.TxtNameDat.Text = text;
            program.click(*button);
            EXPECT_EQ(told(), "Complectati NUMELE FISIERULUI ! ") << button->name;
            EXPECT_EQ(FrmAnzeigen.ActiveControl, &FrmAnzeigen.TxtNameDat);
            EXPECT_TRUE(fs::is_empty(archives()));
        }
    }
}

TEST_F(Archive, IsWrittenInTheFormatOfTheButton)
{
    add("Uus144a", "599 001", "599 002");
    name("NAME.ADI");
    program.click(FrmAnzeigen.CmdMem);
    EXPECT_EQ(FrmAnzeigen.ArhFormat, 50);
    EXPECT_EQ(files(), (std::vector<std::string>{"NAME.txt"}));
    EXPECT_EQ(FrmAnzeigen.TxtNameDat.Text.get(), "");
    name("NAME.TXT");
    program.click(FrmAnzeigen.CmdArhivADI);
    EXPECT_EQ(FrmAnzeigen.ArhFormat, 60);
    EXPECT_EQ(files(), (std::vector<std::string>{"NAME.adi", "NAME.txt"}));
    EXPECT_FALSE(Modul1.FileNo.isOpen());
    EXPECT_EQ(told(), "nothing");
}

TEST_F(Archive, ReplacesAnOlderOneWithoutAQuestion)
{
    makeArchive("NAME.txt");
    add("Uus144a", "599 001", "599 002");
    name("NAME");
    program.click(FrmAnzeigen.CmdMem);
    EXPECT_NE(test::readFile(archives() / "NAME.txt"), "old");
    EXPECT_EQ(told(), "nothing");
}

TEST_F(Archive, IsWrittenUnderTheNameOfTheLastKey)
{
    makeArchive("OTHER.txt");
    begin();
    name("NAME");
    FrmAnzeigen.FilList.ListIndex = 0;
    review::FilList_Click();
    EXPECT_EQ(FrmAnzeigen.TxtNameDat.Text.get(), "OTHER.txt");
    EXPECT_EQ(FrmAnzeigen.ArhName, "NAME");
    EXPECT_EQ(FrmAnzeigen.ArhSelExt, 0);
    program.click(FrmAnzeigen.CmdArhivADI);
    EXPECT_EQ(files(), (std::vector<std::string>{"NAME.adi", "OTHER.txt"}));
}

TEST_F(Archive, UnderANameThatIsNoneIsNotThere)
{
    add("Uus144a", "599 001", "599 002");
    for (const char* text : {"A/B", "A\\B", "..\\A", "A:B", "A*", "A?"}) {
        name(text);
        const std::size_t notices = program.notices().size();
        program.click(FrmAnzeigen.CmdMem);
        EXPECT_TRUE(fs::is_empty(archives())) << text;
        EXPECT_FALSE(fs::exists(program.folder() / "A.txt")) << text;
        EXPECT_GT(program.notices().size(), notices) << text;
        EXPECT_EQ(told(), "nothing") << text;
    }
}

TEST_F(Archive, OfTheSixMetreContestIsNone)
{
    add("Uus144a", "599 001", "599 002");
    contest(101);
    name("NAME");
    program.click(FrmAnzeigen.CmdMem);
    EXPECT_TRUE(fs::is_empty(archives()));
    EXPECT_EQ(FrmAnzeigen.TxtNameDat.Text.get(), "");
    EXPECT_EQ(told(), "nothing");
}

struct TablesRow {
    int contest;
    int band;  ///< chosen before, 0 where there is no choice
    const char* calls;
};

TEST_F(Archive, HoldsTheTablesOfTheContest)
{
    // A row a table, named after it.
    for (const char* table : {"144a", "144b", "432a", "432b", "1296a", "1296b", "GHz"})
        insert(std::string("Uus") + table, std::string("('") + table +
                                               "', '15.11.26', '12:34', '599 001', '599 002', " +
                                               "'CW', '144', 'KN16AA', '1')");
    program.changeLog(
        "INSERT INTO UusLGYO2 (Callsign, Data, UTC, Sent, Rcvd, Mode, Bnd, QRALcR, NameR, Pct, QRALcE, NameE) VALUES "
        "('Maraton', '15.11.26', '12:34', '599 001', '599 002', 'CW', '144', 'KN16AA', 'ION', '1', 'KN05OS', 'ANA')");
    constexpr TablesRow rows[] = {
        {0, 144, "144a 144b "},
        {0, 432, "432a 432b "},
        {0, 1296, "1296a 1296b "},
        {0, 1, ""},
        {0, 0, ""},
        {1, 0, "144a 144b "},
        {6, 0, "144a 144b "},
        {4, 0, "144a "},
        {2, 0, "144a 432a 1296a "},
        {3, 0, "144a 432a 1296a "},
        {5, 0, "144a 432a 1296a "},
        {8, 0, "144a 432a 1296a "},
        {100, 0, "144a 432a 1296a GHz "},
        {7, 0, "Maraton "},
        {101, 0, ""},
    };
    for (const TablesRow& row : rows) {
        SCOPED_TRACE("contest " + std::to_string(row.contest) + " band " + std::to_string(row.band));
        contest(row.contest);
        Modul1.BandCur = row.band;
        fs::remove(archives() / "NAME.txt");
        name("NAME");
        review::CmdMem_Click();
        std::string calls;
        std::ifstream file(archives() / "NAME.txt");
        for (std::string line; std::getline(file, line);)
            calls += line.substr(15, line.find(' ', 15) - 15) + " ";
        EXPECT_EQ(calls, row.calls);
    }
}

TEST_F(Archive, IsNotDeletedWithoutAName)
{
    name("NAME");
    FrmAnzeigen.TxtNameDat.Text = "";
    program.click(FrmAnzeigen.CmdSterg);
    EXPECT_EQ(told(), "Un fisier fara nume nu poate fi sters !!  COMPLECTATI NUMELE FISIERULUI ");
    EXPECT_EQ(FrmAnzeigen.ActiveControl, &FrmAnzeigen.TxtNameDat);
    EXPECT_EQ(told(), "nothing");
}

struct DeletionRow {
    const char* text;
    platform::Button answer;
    std::vector<std::string> left;
    const char* box;  ///< text behind it
};

TEST_F(Archive, IsDeletedByTheExtensionThatWasSeen)
{
    const DeletionRow rows[] = {
        {"NAME.txt", platform::buttonYes, {"NAME.adi", "OTHER.txt"}, ""},
        {"NAME.ADI", platform::buttonYes, {"NAME.txt", "OTHER.txt"}, ""},
        {"NAME.txt", platform::buttonNo, {"NAME.adi", "NAME.txt", "OTHER.txt"}, "NAME"},
        {"NAME", platform::buttonYes, {"NAME.adi", "NAME.txt", "OTHER.txt"}, ""},
        {"NAME.dat", platform::buttonYes, {"NAME.adi", "NAME.txt", "OTHER.txt"}, ""},
        {"NONE.txt", platform::buttonYes, {"NAME.adi", "NAME.txt", "OTHER.txt"}, "NONE"},
        {"..\\ARHIVA\\NAME.txt", platform::buttonYes, {"NAME.adi", "NAME.txt", "OTHER.txt"}, "..\\ARHIVA\\NAME"},
    };
    for (const DeletionRow& row : rows) {
        SCOPED_TRACE(row.text);
        for (const char* file : {"NAME.txt", "NAME.adi", "OTHER.txt"})
            makeArchive(file);
        begin();
        FrmAnzeigen.ArhSelExt = 0;
        name(row.text);
        const std::string shown = FrmAnzeigen.TxtNameDat.Text;
        program.machine().boxes.queueAnswer(row.answer, 0);
        program.click(FrmAnzeigen.CmdSterg);
        const auto box = program.box();
        ASSERT_TRUE(box);
        EXPECT_EQ(box->request.text, "VRETI SA STERGETI FISIERUL " + shown + " ?");
        EXPECT_EQ(box->request.title, "STERGERE?");
        EXPECT_EQ(box->request.style, 292);
        EXPECT_EQ(told(), "nothing");
        std::vector<std::string> left = platform::readFolder(Modul1.AppDir + "\\Arhiva").files;
        EXPECT_EQ(left, row.left);
        EXPECT_EQ(files(), row.left);
        EXPECT_EQ(FrmAnzeigen.TxtNameDat.Text.get(), row.box);
    }
}

TEST_F(Archive, ListsDrivesFoldersAndFilesFromItsFolder)
{
    fs::create_directories(archives() / "y2025");
    makeArchive("b.txt");
    makeArchive("A.adi");
    begin();
    EXPECT_EQ(FrmAnzeigen.DrvList.items, program.machine().drivers().volumes.names());
    EXPECT_EQ(FrmAnzeigen.DrvList.ListIndex, 0);
    EXPECT_EQ(FrmAnzeigen.DirList.items, (std::vector<std::string>{"..", "y2025"}));
    EXPECT_EQ(files(), (std::vector<std::string>{"A.adi", "b.txt"}));
    EXPECT_EQ(FrmAnzeigen.DirListPath, Modul1.AppDir + "\\Arhiva");
    EXPECT_EQ(FrmAnzeigen.FilListPath, Modul1.AppDir + "\\Arhiva");
}

TEST_F(Archive, GoesIntoAFolderAndBack)
{
    fs::create_directories(archives() / "y2025");
    test::writeFile(archives() / "y2025" / "OLD.txt", "old");
    makeArchive("NEW.txt");
    begin();
    FrmAnzeigen.DirList.ListIndex = 1;
    review::DirList_Click();
    EXPECT_EQ(files(), (std::vector<std::string>{"OLD.txt"}));
    EXPECT_EQ(FrmAnzeigen.DirList.items, (std::vector<std::string>{".."}));
    FrmAnzeigen.DirList.ListIndex = 0;
    review::DirList_Click();
    EXPECT_EQ(files(), (std::vector<std::string>{"NEW.txt"}));
    EXPECT_EQ(FrmAnzeigen.DirList.items, (std::vector<std::string>{"..", "y2025"}));
}

TEST_F(Archive, ListsItsFolderAgainBehindAFile)
{
    add("Uus144a", "599 001", "599 002");
    FrmAnzeigen.DirList.ListIndex = 0;
    review::DirList_Click();
    ASSERT_EQ(fs::path(FrmAnzeigen.DirListPath), program.folder());
    name("NAME");
    program.click(FrmAnzeigen.CmdMem);
    EXPECT_EQ(FrmAnzeigen.DirListPath, Modul1.AppDir + "\\Arhiva");
    EXPECT_EQ(files(), (std::vector<std::string>{"NAME.txt"}));
}

TEST_F(Archive, ChangesTheDrive)
{
    fs::create_directories(program.folder() / "stick" / "logs");
    test::writeFile(program.folder() / "stick" / "X.txt", "x");
    program.machine().description.drive = (program.folder() / "stick").string();
    begin();
    FrmAnzeigen.DrvList.ListIndex = 1;
    review::DrvList_Click();
    EXPECT_EQ(FrmAnzeigen.DirList.items, (std::vector<std::string>{"..", "logs"}));
    EXPECT_EQ(files(), (std::vector<std::string>{"X.txt"}));
}

TEST_F(Archive, StaysWhereItIsWhenADriveIsGone)
{
    program.machine().description.drive = (program.folder() / "pulled").string();
    makeArchive("NEW.txt");
    begin();
    FrmAnzeigen.DrvList.ListIndex = 1;
    review::DrvList_Click();
    EXPECT_EQ(FrmAnzeigen.DirListPath, Modul1.AppDir + "\\Arhiva");
    EXPECT_EQ(files(), (std::vector<std::string>{"NEW.txt"}));
    EXPECT_EQ(told(), "nothing");
    EXPECT_TRUE(program.notices().empty());
}

}  // namespace
