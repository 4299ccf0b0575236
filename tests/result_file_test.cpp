// Files of results: whole, or not there.
#include "platform/result_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <utility>

#include "base/runtime_error.h"
#include "support/error_of.h"
#include "support/temporary_folder.h"

namespace {

namespace fs = std::filesystem;

using test::errorOf;
using test::readFile;
using test::writeFile;

class ResultFile : public testing::Test {
 protected:
    std::string place(const std::string& name = "log.txt") const { return folder.designPath(name); }
    std::string content(const std::string& name = "log.txt") const { return readFile(folder.file(name)); }

    /// Nothing lies about but what is named.
    void expectFiles(std::initializer_list<const char*> names) const
    {
        std::size_t count = 0;
        for (const auto& entry : fs::directory_iterator(folder.path())) {
            ++count;
            const std::string found = entry.path().filename().string();
            EXPECT_NE(std::find(names.begin(), names.end(), found), names.end()) << found;
        }
        EXPECT_EQ(count, names.size());
    }

    test::TemporaryFolder folder;
    platform::ResultFile file;
};

TEST_F(ResultFile, HasEveryLineInTheCodePageWithItsEnd)
{
    file.open(place());
    EXPECT_TRUE(file.isOpen());
    file.print("Țara");
    file.print("");
    file.print("a \xE6\x97\xA5 ");
    file.close();
    EXPECT_FALSE(file.isOpen());
    EXPECT_EQ(content(),
              "\xDE"
              "ara\r\n\r\na ? \r\n");
    expectFiles({"log.txt"});
}

TEST_F(ResultFile, WithoutALineIsEmpty)
{
    file.open(place());
    file.close();
    EXPECT_EQ(content(), "");
    expectFiles({"log.txt"});
}

TEST_F(ResultFile, LeavesTheOlderOneInPlaceUntilItIsClosed)
{
    writeFile(folder.file("log.txt"), "old");
    file.open(place());
    file.print("new");
    EXPECT_EQ(content(), "old");
    file.close();
    EXPECT_EQ(content(), "new\r\n");
    expectFiles({"log.txt"});
}

TEST_F(ResultFile, TakesThePlaceOfAnotherSpelling)
{
    writeFile(folder.file("LOG.TXT"), "old");
    file.open(place());
    file.print("new");
    file.close();
    EXPECT_EQ(content("LOG.TXT"), "new\r\n");
    expectFiles({"LOG.TXT"});
}

TEST_F(ResultFile, ThatWasNotClosedIsThrownAway)
{
    writeFile(folder.file("log.txt"), "old");
    {
        platform::ResultFile abandoned;
        abandoned.open(place());
        abandoned.print("new");
    }
    EXPECT_EQ(content(), "old");
    expectFiles({"log.txt"});
}

TEST_F(ResultFile, IsClosedByTheNextOne)
{
    file.open(place("a.txt"));
    file.print("a");
    file.open(place("b.txt"));
    EXPECT_EQ(content("a.txt"), "a\r\n");
    file.print("b");
    file.close();
    EXPECT_EQ(content("b.txt"), "b\r\n");
    expectFiles({"a.txt", "b.txt"});
}

TEST_F(ResultFile, TakesNothingWhileItIsNotOpen)
{
    EXPECT_EQ(errorOf([&] { file.print("lost"); }), 0);
    EXPECT_EQ(errorOf([&] { file.close(); }), 0);
    file.open(place());
    file.close();
    file.print("lost");
    EXPECT_EQ(content(), "");
}

TEST_F(ResultFile, GoesOnWhereItWasMoved)
{
    file.open(place());
    file.print("a");
    platform::ResultFile other(std::move(file));
    other.print("b");
    other.close();
    EXPECT_EQ(content(), "a\r\nb\r\n");

    platform::ResultFile replaced;
    replaced.open(place("c.txt"));
    replaced = platform::ResultFile();
    expectFiles({"log.txt"});
}

TEST_F(ResultFile, NeedsItsFolder)
{
    EXPECT_EQ(errorOf([&] { file.open(place("Log\\log.txt")); }), base::noSuchFolder);
    EXPECT_FALSE(file.isOpen());
    writeFile(folder.file("Log"), "a file in its place");
    EXPECT_EQ(errorOf([&] { file.open(place("Log\\log.txt")); }), base::noSuchFolder);
    expectFiles({"Log"});
}

TEST_F(ResultFile, CannotTakeThePlaceOfAFolder)
{
    fs::create_directory(folder.file("log.txt"));
    EXPECT_EQ(errorOf([&] { file.open(place()); }), base::existsOrNoAccess);
    EXPECT_FALSE(file.isOpen());
    expectFiles({"log.txt"});
}

TEST_F(ResultFile, CannotBeWrittenWhereItsNameIsNone)
{
    const std::string tooLong(300, 'x');
    EXPECT_EQ(errorOf([&] { file.open(place(tooLong)); }), base::existsOrNoAccess);
    EXPECT_EQ(errorOf([&] { file.open(place("no/folder")); }), base::noSuchFolder);
    EXPECT_FALSE(file.isOpen());
    expectFiles({});
}

TEST_F(ResultFile, IsNotOpenBehindAFailure)
{
    file.open(place("a.txt"));
    file.print("a");
    EXPECT_EQ(errorOf([&] { file.open(place("Log\\log.txt")); }), base::noSuchFolder);
    file.print("not into the one before");
    EXPECT_EQ(content("a.txt"), "a\r\n");
    expectFiles({"a.txt"});
}

#ifdef __linux__
/// A device that takes nothing stands in for a disk that is full.
TEST_F(ResultFile, OnAFullDiskLeavesTheOlderOneAndNothingBeside)
{
    writeFile(folder.file("log.txt"), "old");
    fs::create_symlink("/dev/full", folder.file("log.txt.new"));
    file.open(place());
    const int error = errorOf([&] {
        for (int line = 0; line < 100000 && file.isOpen(); ++line)
            file.print("a line that no longer fits");
    });
    EXPECT_TRUE(error == base::diskFull || error == base::existsOrNoAccess) << error;
    EXPECT_FALSE(file.isOpen());
    EXPECT_EQ(content(), "old");
    expectFiles({"log.txt"});
    EXPECT_EQ(errorOf([&] { file.print("more"); }), 0) << "the failure was told once";
}

TEST_F(ResultFile, ThatFailsAtItsEndLeavesTheOlderOneToo)
{
    writeFile(folder.file("log.txt"), "old");
    fs::create_symlink("/dev/full", folder.file("log.txt.new"));
    file.open(place());
    file.print("short enough to wait");
    EXPECT_NE(errorOf([&] { file.close(); }), 0);
    EXPECT_FALSE(file.isOpen());
    EXPECT_EQ(content(), "old");
    expectFiles({"log.txt"});
}
#endif

}  // namespace
