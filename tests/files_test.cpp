// Files and folders on a file system that may respect case.
#include "platform/files.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/runtime_error.h"
#include "support/error_of.h"
#include "support/temporary_folder.h"

namespace {

namespace fs = std::filesystem;

using test::errorOf;

TEST(MakeFolder, MakesOneFolder)
{
    const test::TemporaryFolder folder;
    platform::makeFolder(folder.designPath("WAVUus"));
    EXPECT_TRUE(fs::is_directory(folder.file("WAVUus")));
    EXPECT_TRUE(platform::folderIsThere(folder.designPath("WAVUus")));
    EXPECT_TRUE(platform::folderIsThere(folder.designPath("wavuus")));
}

TEST(MakeFolder, SaysWhenItIsThereAlready)
{
    const test::TemporaryFolder folder;
    fs::create_directory(folder.file("WavUus"));
    EXPECT_EQ(errorOf([&] { platform::makeFolder(folder.designPath("WAVUus")); }), base::existsOrNoAccess);
    EXPECT_FALSE(fs::exists(folder.file("WAVUus"))) << "one folder, in the spelling that it has";
}

TEST(MakeFolder, SaysWhenAFileHasItsName)
{
    const test::TemporaryFolder folder;
    test::writeFile(folder.file("WAVUus"), "x");
    EXPECT_EQ(errorOf([&] { platform::makeFolder(folder.designPath("WAVUus")); }), base::existsOrNoAccess);
    EXPECT_FALSE(platform::folderIsThere(folder.designPath("WAVUus")));
}

TEST(MakeFolder, NeedsTheFolderAbove)
{
    const test::TemporaryFolder folder;
    EXPECT_EQ(errorOf([&] { platform::makeFolder(folder.designPath("none\\WAVUus")); }), base::noSuchFolder);
    EXPECT_FALSE(fs::exists(folder.file("none")));
}

TEST(DeleteFile, DeletesAFileInWhateverCase)
{
    const test::TemporaryFolder folder;
    test::writeFile(folder.file("Name.TXT"), "x");
    platform::deleteFile(folder.designPath("NAME.txt"));
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST(DeleteFile, SaysWhenThereIsNone)
{
    const test::TemporaryFolder folder;
    fs::create_directory(folder.file("Name.txt"));
    EXPECT_EQ(errorOf([&] { platform::deleteFile(folder.designPath("other.txt")); }), base::noSuchFile);
    EXPECT_EQ(errorOf([&] { platform::deleteFile(folder.designPath("Name.txt")); }), base::noSuchFile);
    EXPECT_TRUE(fs::exists(folder.file("Name.txt")));
}

TEST(ReadFolder, GivesFoldersAndFilesInOrder)
{
    const test::TemporaryFolder folder;
    for (const char* name : {"b.txt", "C.txt", "a.ADI", "A.adi"})
        test::writeFile(folder.file(name), "x");
    fs::create_directory(folder.file("zoo"));
    fs::create_directory(folder.file("Arhiva"));
    const platform::FolderContents contents = platform::readFolder(folder.designPath(""));
    EXPECT_EQ(contents.folders, (std::vector<std::string>{"Arhiva", "zoo"}));
    EXPECT_EQ(contents.files, (std::vector<std::string>{"A.adi", "a.ADI", "b.txt", "C.txt"}));
}

TEST(ReadFolder, SaysWhenThereIsNone)
{
    const test::TemporaryFolder folder;
    test::writeFile(folder.file("file"), "x");
    EXPECT_EQ(errorOf([&] { platform::readFolder(folder.designPath("none")); }), base::noSuchFolder);
    EXPECT_EQ(errorOf([&] { platform::readFolder(folder.designPath("file")); }), base::noSuchFolder);
}

TEST(FolderAbove, EndsAtTheRoot)
{
    const test::TemporaryFolder folder;
    fs::create_directory(folder.file("Arhiva"));
    EXPECT_EQ(platform::folderAbove(folder.designPath("Arhiva")), platform::pathText(folder.path()));
    EXPECT_EQ(platform::folderAbove(folder.designPath("arhiva\\")), platform::pathText(folder.path()));
    const std::string root = platform::pathText(folder.path().root_path());
    EXPECT_EQ(platform::folderAbove(root), root);
}

TEST(FileName, IsNotThatOfADevice)
{
    for (const char* name : {"CON", "con.txt", "Con .txt", "PRN.adi", "AUX", "NUL.txt", "nul.tar.gz", "CONIN$",
                             "conout$.txt", "COM1", "com9.txt", "COM¹.txt", "LPT1.adi", "LPT9", "lpt³"})
        EXPECT_FALSE(platform::isFileName(name)) << name;
    for (const char* name :
         {"CONCURS.txt", "COM", "COM0.txt", "COM10.txt", "COMA.txt", "LPT", "A.CON", "NULL.txt", "A CON.txt"})
        EXPECT_TRUE(platform::isFileName(name)) << name;
}

TEST(FileName, DoesNotEndInWhatASystemDrops)
{
    for (const char* name : {"NAME.", "NAME ", "NAME.txt ", "NAME...", "."})
        EXPECT_FALSE(platform::isFileName(name)) << name;
}

TEST(PathFrom, IsTheOtherWayOfPathText)
{
    for (const char* text : {"/home/Ștefan/Concurs ă", "a/b.txt", "ЖЗ/日本"})
        EXPECT_EQ(platform::pathText(platform::pathFrom(text)), text);
}

TEST(FileName, IsOneOnEverySystem)
{
    for (const char* name : {"NAME", "YO VHF 26", "A.B", "ȘȚ", "A-B_(C)!", ".txt"})
        EXPECT_TRUE(platform::isFileName(name)) << name;
    for (const char* name : {"", "A/B", "A\\B", "..\\A", "C:A", "A*", "A?", "\"A\"", "A<B", "A>B", "A|B", "A\tB"})
        EXPECT_FALSE(platform::isFileName(name)) << name;
}

}  // namespace
