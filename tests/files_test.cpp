// Making a folder on a file system that may respect case.
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

}  // namespace
