// Where each file of results goes.
#include "review/output_names.h"

#include <gtest/gtest.h>

#include <string>

#include "base/runtime_error.h"
#include "support/error_of.h"
#include "support/running_program.h"

namespace {

using review::OutputName;

constexpr int maraton = 7;
constexpr int allContests[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 100, 101};
constexpr std::int32_t namedBands[] = {144, 432, 1296};
constexpr std::int32_t microwaves[] = {1, 2320, 5760, 10380, 24192, 47088, 76000};

OutputName nameFor(int outMode, int outFormat, int contest, std::int32_t band)
{
    return {.outMode = outMode,
            .outFormat = outFormat,
            .arhFormat = 50,
            .contest = contest,
            .band = band,
            .folder = "C:\\Kelvo",
            .call = " YO9XYZ ",
            .concShort = "YOVHFUHF",
            .year = "26",
            .arhName = " MAI "};
}

TEST(OutputPath, InTheFolderHasBandContestAndYear)
{
    for (const int contest : allContests) {
        for (const std::int32_t band : namedBands) {
            const std::string middle = contest == maraton ? "Maraton" : std::to_string(band);
            const std::string beginning = "C:\\Kelvo\\Log\\YO9XYZ" + middle + " YOVHFUHF26";
            EXPECT_EQ(review::outputPath(nameFor(10, 10, contest, band)), beginning + ".txt");
            EXPECT_EQ(review::outputPath(nameFor(10, 100, contest, band)), beginning + ".edi");
        }
    }
}

TEST(OutputPath, OnTheDriveHasTheBandAlone)
{
    for (const int contest : allContests) {
        for (const std::int32_t band : namedBands) {
            const std::string middle = contest == maraton ? "Maraton" : std::to_string(band);
            EXPECT_EQ(review::outputPath(nameFor(1000, 10, contest, band)), "A:YO9XYZ" + middle + ".txt");
            EXPECT_EQ(review::outputPath(nameFor(1000, 100, contest, band)), "A:YO9XYZ" + middle + ".edi");
        }
    }
}

TEST(OutputPath, OfMicrowavesIsATextInEveryFormat)
{
    for (const int contest : allContests) {
        for (const std::int32_t band : microwaves) {
            for (const int format : {10, 100}) {
                EXPECT_EQ(review::outputPath(nameFor(10, format, contest, band)),
                          "C:\\Kelvo\\Log\\YO9XYZGHz YOVHFUHF26.txt");
                EXPECT_EQ(review::outputPath(nameFor(1000, format, contest, band)), "A:YO9XYZGHz.txt");
            }
        }
    }
}

TEST(OutputPath, OfAnArchiveIsItsNameWhateverTheBand)
{
    for (const int contest : allContests) {
        for (const std::int32_t band : {1, 144, 432, 1296, 5760}) {
            for (const int format : {0, 10, 100}) {
                OutputName name = nameFor(20, format, contest, band);
                EXPECT_EQ(review::outputPath(name), "C:\\Kelvo\\Arhiva\\MAI.txt");
                name.arhFormat = 60;
                EXPECT_EQ(review::outputPath(name), "C:\\Kelvo\\Arhiva\\MAI.adi");
            }
        }
    }
}

TEST(OutputPath, IsNoneWhereNoFileIsWritten)
{
    for (const int outMode : {0, 100}) {
        EXPECT_EQ(review::outputPath(nameFor(outMode, 10, 0, 144)), "");
        EXPECT_EQ(review::summaryPath(nameFor(outMode, 10, 0, 144)), "");
    }
}

TEST(SummaryPath, HasNoBand)
{
    for (const int contest : allContests) {
        for (const std::int32_t band : {1, 144, 432, 1296, 5760}) {
            EXPECT_EQ(review::summaryPath(nameFor(10, 10, contest, band)), "C:\\Kelvo\\Log\\YO9XYZ YOVHFUHF26.txt");
            EXPECT_EQ(review::summaryPath(nameFor(1000, 10, contest, band)), "A:YO9XYZ.txt");
        }
    }
}

TEST(OnThisMachine, PutsTheFirstRemovableVolumeInPlaceOfTheDrive)
{
    test::RunningProgram program;
    EXPECT_EQ(test::errorOf([] { review::onThisMachine("A:YO9XYZ.txt"); }), base::noSuchFolder);
    program.machine().description.drive = "/media/stick";
    EXPECT_EQ(review::onThisMachine("A:YO9XYZ.txt"), "/media/stick\\YO9XYZ.txt");
    EXPECT_EQ(review::onThisMachine("C:\\Kelvo\\Log\\A.txt"), "C:\\Kelvo\\Log\\A.txt");
}

}  // namespace
