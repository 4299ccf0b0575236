// The roads to the files for the organisers: what each entry shows, what the questions do, which files come out.
#include "review/export_road.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "review/reset.h"
#include "review/summary_file.h"
#include "runstate/contests.h"
#include "runstate/modul1.h"
#include "screen/frm_anzeigen.h"
#include "screen/frm_init.h"
#include "support/filled_log.h"

namespace {

namespace fs = std::filesystem;

using Names = std::set<std::string>;

constexpr int allContests[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 100, 101};

class ExportRoad : public test::FilledLog {
 protected:
    void begin(int id)
    {
        test::writeFile(program.folder() / "KelvoInit.dat", station);
        program.restart();
        while (program.box().has_value()) {
        }
        fs::create_directories(drive());
        fs::create_directories(program.folder() / "Log");
        program.machine().description.drive = drive().string();
        program.click(FrmInit.*runstate::contestById(id)->button);
        program.click(FrmInit.mnuLOG);
    }

    fs::path drive() const { return program.folder() / "disk"; }

    void answer(std::initializer_list<platform::Button> answers)
    {
        for (const platform::Button each : answers)
            program.machine().boxes.queueAnswer(each, 0);
    }

    /// Files in a folder, whose names must not tell more than these.
    static Names filesIn(const fs::path& folder)
    {
        Names names;
        for (const auto& entry : fs::directory_iterator(folder))
            names.insert(entry.path().filename().string());
        return names;
    }

    static Names visibleFrames()
    {
        Names names;
        for (const screen::Control* control : FrmAnzeigen.controls())
            if (control->Visible && (control->kind == screen::Kind::frame || control == &FrmAnzeigen.CmdGata))
                names.insert(control->name);
        return names;
    }

    static constexpr const char* station =
        "YO2XYZ\r\nKN05OS\r\n2\r\n 1 \r\nA\r\nION\r\n 1 \r\nARAD\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\nYO2KAB\r\nION\r\n";
};

struct RoadRow {
    int id;
    Names inFolder;      ///< visible behind the entry for the folder
    Names onDrive;       ///< and behind that for the drive
    int band;            ///< BandCur behind either, 0 where nothing sets it
    Names bandsOnDrive;  ///< buttons of "DISKETA" that stay
};

const Names asksBandInFolder = {"Frame10", "CmdGata"};
const Names asksBandOnDrive = {"Frame8", "CmdGata"};
const Names asksStation = {"Frame6", "CmdGata"};
const Names threeBands = {"OpBDsk144", "OpBDsk432", "OpBDsk1296"};

const RoadRow roadRows[] = {
    {0, asksBandInFolder, asksBandOnDrive, 0, threeBands},
    {1, asksStation, asksStation, 144, {}},
    {2, asksStation, asksStation, 0, threeBands},
    {3, asksStation, asksStation, 0, threeBands},
    {4, asksStation, asksStation, 144, {}},
    {5, asksStation, asksStation, 0, threeBands},
    {6, asksStation, asksStation, 144, {}},
    {7, asksStation, asksStation, 0, threeBands},
    {8, asksStation, asksStation, 0, threeBands},
    {100, asksStation, asksStation, 0, threeBands},
    {101, asksStation, asksBandOnDrive, 144, threeBands},
};

TEST_F(ExportRoad, BeginsWithTheBandOrTheStation)
{
    for (const RoadRow& row : roadRows) {
        SCOPED_TRACE(row.id);
        begin(row.id);
        program.click(FrmAnzeigen.mnuFormTXT);
        EXPECT_EQ(visibleFrames(), row.inFolder);
        EXPECT_EQ(Modul1.BandCur, row.band);
        EXPECT_EQ(FrmAnzeigen.OutMode, 10);
        EXPECT_EQ(FrmAnzeigen.OutFormat, 10);
        EXPECT_EQ(FrmAnzeigen.EnterFlag, 10);

        begin(row.id);
        program.click(FrmAnzeigen.MnuASCIIDATEI);
        EXPECT_EQ(visibleFrames(), row.onDrive);
        EXPECT_EQ(Modul1.BandCur, row.band);
        EXPECT_EQ(FrmAnzeigen.OutMode, 1000);
        EXPECT_EQ(FrmAnzeigen.OutFormat, 10);
        EXPECT_EQ(FrmAnzeigen.EnterFlag, 10);
        for (const screen::OptionButton* button :
             {&FrmAnzeigen.OpBDsk144, &FrmAnzeigen.OpBDsk432, &FrmAnzeigen.OpBDsk1296})
            EXPECT_EQ(button->Visible, row.bandsOnDrive.contains(button->name)) << button->name;
    }
}

struct BandButtonRow {
    screen::OptionButton& button;
    screen::MenuEntry& entry;
    int band;
};

TEST_F(ExportRoad, GoesOnToTheStationBehindTheBand)
{
    const BandButtonRow rows[] = {
        {FrmAnzeigen.OpB0144, FrmAnzeigen.mnuFormTXT, 144},
        {FrmAnzeigen.Opb0432, FrmAnzeigen.mnuFormTXT, 432},
        {FrmAnzeigen.OpB01296, FrmAnzeigen.mnuFormTXT, 1296},
        {FrmAnzeigen.OpBDsk144, FrmAnzeigen.MnuASCIIDATEI, 144},
        {FrmAnzeigen.OpBDsk432, FrmAnzeigen.MnuASCIIDATEI, 432},
        {FrmAnzeigen.OpBDsk1296, FrmAnzeigen.MnuASCIIDATEI, 1296},
    };
    begin(0);
    for (const BandButtonRow& row : rows) {
        SCOPED_TRACE(row.button.name);
        // Twice: a button that is chosen already works again.
        for (int time = 0; time < 2; ++time) {
            program.click(row.entry);
            FrmAnzeigen.EnterFlag = 0;
            program.click(row.button);
            EXPECT_EQ(visibleFrames(), asksStation);
            EXPECT_EQ(Modul1.BandCur, row.band);
            EXPECT_EQ(FrmAnzeigen.EnterFlag, 10);
            EXPECT_EQ(FrmAnzeigen.TxtOp.Text, "ION");
            EXPECT_EQ(FrmAnzeigen.ActiveControl, &FrmAnzeigen.TxtClub);
        }
    }
}

TEST_F(ExportRoad, BehindTheBandOfAnArchiveLeadsToTheArchive)
{
    begin(0);
    FrmAnzeigen.OutMode = 20;
    FrmAnzeigen.Frame10.Visible = true;
    review::OpB0144_Click();
    EXPECT_EQ(visibleFrames(), Names{"FraArh"});
    EXPECT_EQ(FrmAnzeigen.EnterFlag, 10);
    EXPECT_EQ(FrmAnzeigen.TxtOp.Text, "") << "an archive has no station";
}

struct FilesRow {
    int id;
    int band;  ///< BandCur when the files are written
    Names bands;
};

const FilesRow filesRows[] = {
    {0, 144, {"144", ""}},
    {0, 432, {"432", ""}},
    {0, 1296, {"1296", ""}},
    {0, 0, {""}},
    {0, 1, {""}},
    {0, 22, {""}},
    {1, 144, {"144", ""}},
    {2, 0, {"144", "432", "1296", ""}},
    {3, 432, {"144", "432", "1296", ""}},
    {4, 144, {"144", ""}},
    {5, 0, {"144", "432", "1296", ""}},
    {6, 144, {"144", ""}},
    {7, 144, {"Maraton", ""}},
    {8, 0, {"144", "432", "1296", ""}},
    {100, 0, {"144", "432", "1296", "GHz", ""}},
    {101, 144, {}},
};

/// Files of the own call; `behindBand` is contest and year, in the folder.
Names namesFor(const Names& bands, const std::string& behindBand)
{
    Names names;
    for (const std::string& band : bands)
        names.insert(std::string("YO2XYZ").append(band).append(behindBand).append(".txt"));
    return names;
}

TEST_F(ExportRoad, LeadsToTheFilesOfTheContest)
{
    for (const FilesRow& row : filesRows) {
        SCOPED_TRACE(row.id);
        for (const int outMode : {10, 1000}) {
            begin(row.id);
            fs::remove_all(program.folder() / "Log");
            fs::create_directories(program.folder() / "Log");
            fs::remove_all(drive());
            fs::create_directories(drive());
            Modul1.BandCur = row.band;
            FrmAnzeigen.OutMode = static_cast<std::uint16_t>(outMode);
            FrmAnzeigen.OutFormat = 10;
            review::Message1();
            const bool toFolder = outMode == 10;
            const std::string contest = " " + std::string(runstate::contestById(row.id)->shortName) + "26";
            const Names names = namesFor(row.bands, toFolder ? contest : "");
            EXPECT_EQ(filesIn(program.folder() / "Log"), toFolder ? names : Names{});
            EXPECT_EQ(filesIn(drive()), toFolder ? Names{} : names);
            EXPECT_FALSE(Modul1.FileNo.isOpen());
            EXPECT_FALSE(program.box().has_value());
        }
    }
}

struct EdiRow {
    int band;
    const char* file;
};

TEST_F(ExportRoad, LeadsToOneEdiFileOfTheBandInHand)
{
    for (const EdiRow& row : {EdiRow{144, "YO2XYZ144 ConcCluj26.edi"}, EdiRow{432, "YO2XYZ432 ConcCluj26.edi"},
                              EdiRow{1296, "YO2XYZ1296 ConcCluj26.edi"}, EdiRow{1, "YO2XYZGHz ConcCluj26.txt"}}) {
        begin(2);
        fs::remove_all(program.folder() / "Log");
        fs::create_directories(program.folder() / "Log");
        test::writeFile(program.folder() / "Log" / "YO2XYZ144.txt", "of an earlier program");
        Modul1.BandCur = row.band;
        FrmAnzeigen.OutMode = 10;
        FrmAnzeigen.OutFormat = 100;
        review::Message1();
        EXPECT_EQ(filesIn(program.folder() / "Log"), (Names{row.file, "YO2XYZ144.txt"}));
    }
}

TEST_F(ExportRoad, WithoutAFormatAsksForADiskette)
{
    for (const bool yes : {true, false}) {
        begin(2);
        addPoints("Uus144a", "'70'");
        FrmAnzeigen.OutMode = 1000;
        FrmAnzeigen.Frame3.Visible = true;
        answer({yes ? platform::buttonOk : platform::buttonCancel});
        review::Message1();
        const auto box = program.box();
        ASSERT_TRUE(box.has_value());
        EXPECT_EQ(box->request.text, "INSERT DISKET IN :A");
        EXPECT_EQ(box->request.title, "Logbuch als ASCII Datei auf Diskette schreiben ");
        EXPECT_EQ(box->request.style, 65);
        EXPECT_EQ(Modul1.Pct144a, yes ? 70 : 0);
        EXPECT_FALSE(FrmAnzeigen.Frame3.Visible) << "the job has ended";
        empty("Uus144a");
    }
}

TEST_F(ExportRoad, LeadsBackToTheBoxOfItsFormat)
{
    begin(2);
    FrmAnzeigen.Frame6.Visible = true;
    FrmAnzeigen.FraLogEDI2.Visible = true;
    for (const int format : {0, 10, 100}) {
        FrmAnzeigen.OutFormat = static_cast<std::uint16_t>(format);
        FrmAnzeigen.CmdGata.Visible = false;
        answer({platform::buttonNo});
        review::Message5();
        EXPECT_EQ(FrmAnzeigen.ActiveControl,
                  format == 100 ? static_cast<screen::Control*>(&FrmAnzeigen.TxtCQSOs1) : &FrmAnzeigen.TxtSection);
        EXPECT_EQ(FrmAnzeigen.EnterAgain, 100);
        EXPECT_TRUE(FrmAnzeigen.CmdGata.Visible);
    }
}

TEST_F(ExportRoad, ForgetsAnEarlierNoBehindAYes)
{
    begin(4);
    program.click(FrmAnzeigen.mnuFormTXT);
    FrmAnzeigen.EnterAgain = 100;
    answer({platform::buttonYes, platform::buttonYes});
    program.click(FrmAnzeigen.CmdGata);
    EXPECT_EQ(FrmAnzeigen.EnterAgain, 0);
    EXPECT_TRUE(filesIn(program.folder() / "Log").contains("YO2XYZ144 Oltenia26.txt"));
}

TEST_F(ExportRoad, GoesOnThoughTheSetUpFileCannotBeWritten)
{
    begin(4);
    program.click(FrmAnzeigen.mnuFormTXT);
    fs::remove(program.folder() / "KelvoInit.dat");
    fs::create_directory(program.folder() / "KelvoInit.dat");
    answer({platform::buttonYes, platform::buttonYes});
    program.click(FrmAnzeigen.CmdGata);
    EXPECT_FALSE(program.notices().empty());
    EXPECT_TRUE(filesIn(program.folder() / "Log").contains("YO2XYZ144 Oltenia26.txt"));
    fs::remove(program.folder() / "KelvoInit.dat");
}

TEST_F(ExportRoad, HidesTheFramesOfEveryOtherJob)
{
    begin(2);
    for (screen::Control* control : FrmAnzeigen.controls())
        if (control->kind == screen::Kind::frame) control->Visible = true;
    FrmAnzeigen.CmdGata.Visible = true;
    review::hideOtherJobs();
    EXPECT_EQ(visibleFrames(), Names{});
}

class SummaryFigures : public ExportRoad {
 protected:
    /// Lines of the summary from the table of figures to the empty line behind it.
    std::vector<std::string> figures(int id)
    {
        constexpr std::size_t linesBeforeFigures = 15;
        FrmAnzeigen.OutMode = 10;
        review::PSumm();
        const std::string name = "YO2XYZ " + std::string(runstate::contestById(id)->shortName) + "26.txt";
        const std::string text = test::readFile(program.folder() / "Log" / name);
        std::vector<std::string> lines;
        for (std::size_t from = 0, end = text.find("\r\n"); end != std::string::npos;
             from = end + 2, end = text.find("\r\n", from))
            lines.push_back(text.substr(from, end - from));
        lines.erase(lines.begin(), lines.begin() + linesBeforeFigures);
        lines.erase(std::find(lines.begin(), lines.end(), ""), lines.end());
        return lines;
    }
};

TEST_F(SummaryFigures, HaveRoomForBigNumbers)
{
    begin(2);
    Modul1.Qso144a = Modul1.Qso432a = Modul1.Qso1296a = 32767;
    Modul1.Pct144a = Modul1.Pct432a = Modul1.Pct1296a = 2147483647;
    const std::vector<std::string> expected = {
        "         Band          No.QSO    Points",       "          144           32767     2147483647 ",
        "          432           32767     2147483647 ", "         1296           32767     2147483647 ",
        "         TOTAL          98301     6442450941",
    };
    EXPECT_EQ(figures(2), expected);
}

TEST_F(SummaryFigures, OfSixMetresAreThoseOfOneBand)
{
    begin(101);
    addPoints("Uus144a", "'120'");
    const std::vector<std::string> expected = {
        "         Etap          No.QSO    Points    Score",
        "          A             1         120 ",
        "         TOTAL           1         120      120 ",
    };
    EXPECT_EQ(figures(101), expected);
}

TEST_F(SummaryFigures, OfAContestWithStagesNeedABand)
{
    begin(0);
    Modul1.BandCur = 22;
    EXPECT_EQ(figures(0), std::vector<std::string>{});
}

}  // namespace
