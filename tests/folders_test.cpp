// The folders that files of results go to.
#include "review/folders.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "support/running_program.h"

namespace {

namespace fs = std::filesystem;

struct FolderRow {
    void (*make)();
    std::string (*path)();
    const char* made;
    const char* otherCase;
};

const FolderRow folderRows[] = {
    {review::OrdLog, review::logFolder, "LOG", "Log"},
    {review::OrdArhiva, review::archiveFolder, "ARHIVA", "Arhiva"},
};

class Folders : public testing::Test {
 protected:
    void expectToldOf(const std::string& name)
    {
        const auto box = program.box();
        ASSERT_TRUE(box);
        EXPECT_EQ(box->request.text, "Folderul " + Modul1.AppDir + "\\" + name +
                                         " a fost creiat. Datele se inscriu in folderul nou creiat");
        EXPECT_EQ(box->request.style, 0);
        EXPECT_EQ(box->request.title, "");
        EXPECT_FALSE(program.box());
    }

    test::RunningProgram program;
};

TEST_F(Folders, AreMadeAndToldOnceEach)
{
    for (const FolderRow& row : folderRows) {
        row.make();
        expectToldOf(row.made);
        EXPECT_TRUE(fs::is_directory(program.folder() / row.made));
        row.make();
        EXPECT_FALSE(program.box()) << "the second use";
    }
    EXPECT_TRUE(program.notices().empty());
}

TEST_F(Folders, AreFoundInWhateverCase)
{
    for (const FolderRow& row : folderRows) {
        fs::create_directory(program.folder() / row.otherCase);
        row.make();
        EXPECT_FALSE(program.box());
        EXPECT_FALSE(fs::exists(program.folder() / row.made)) << "one folder, in the spelling that it has";
    }
    EXPECT_TRUE(program.notices().empty());
}

TEST_F(Folders, ThatAFileStandsInTheWayOfAreNoticed)
{
    test::writeFile(program.folder() / "Log", "x");
    review::OrdLog();
    EXPECT_FALSE(program.box());
    EXPECT_EQ(program.notices().size(), 1U);
}

TEST_F(Folders, HaveOnePathEach)
{
    for (const FolderRow& row : folderRows)
        EXPECT_EQ(row.path(), Modul1.AppDir + "\\" + row.otherCase);
}

}  // namespace
