// The writers of logs on logs that break other programs: as full as a log can be, and not to be read.
#include "review/writers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "review/output_modes.h"
#include "runstate/modul1.h"
#include "screen/frm_anzeigen.h"
#include "screen/frm_init.h"
#include "support/filled_log.h"
#include "support/station.h"

namespace {

namespace fs = std::filesystem;

class Writers : public test::FilledLog {
 protected:
    void SetUp() override
    {
        fs::create_directories(program.folder() / "Arhiva");
        program.click(FrmInit.OpBFloareademina);
        program.click(FrmInit.mnuLOG);
        FrmAnzeigen.OutMode = review::toArchive;
        FrmAnzeigen.ArhFormat = review::archiveAsText;
        FrmAnzeigen.ArhName = "SEPTEMBER";
    }

    void writeArchive()
    {
        review::PLog144();
        Modul1.FileNo.close();
    }

    fs::path archive() const { return program.folder() / "Arhiva" / "SEPTEMBER.txt"; }

    long linesOfArchive() const
    {
        std::ifstream file(archive(), std::ios::binary);
        return static_cast<long>(std::count(std::istreambuf_iterator<char>(file), {}, '\n'));
    }
};

TEST_F(Writers, ALogAsFullAsItCanBeIsWrittenOnce)
{
    constexpr int mostQsos = 32767;
    test::fillLog(program.folder(), "Uus144a", mostQsos);
    writeArchive();
    EXPECT_EQ(linesOfArchive(), mostQsos);
}

TEST_F(Writers, ALogThatCannotBeCountedGivesNoFile)
{
    test::fillLog(program.folder(), "Uus144a", 32768);
    writeArchive();
    EXPECT_FALSE(fs::exists(archive()));
    EXPECT_FALSE(program.notices().empty());
}

TEST_F(Writers, ALogThatCannotBeReadLeavesTheOlderFile)
{
    add("Uus144a", "599 001", "599 002");
    add("Uus144a", "599 002", "599 003");
    writeArchive();
    ASSERT_EQ(linesOfArchive(), 2);

    program.changeLog("DROP TABLE Uus144a");
    writeArchive();
    EXPECT_EQ(linesOfArchive(), 2);
    EXPECT_FALSE(program.notices().empty());
}

TEST_F(Writers, AnArchiveWithoutANameIsNotWritten)
{
    add("Uus144a", "599 001", "599 002");
    FrmAnzeigen.ArhName = " ";
    writeArchive();
    EXPECT_TRUE(fs::is_empty(program.folder() / "Arhiva"));
    EXPECT_FALSE(program.notices().empty());
}

}  // namespace
