// Files of the program: found whatever their case, written whole or not at all, read value by value.
#include "platform/text_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "base/runtime_error.h"
#include "platform/files.h"
#include "support/error_of.h"
#include "support/temporary_folder.h"

namespace {

namespace fs = std::filesystem;

using test::errorOf;

class TextFile : public testing::Test {
 protected:
    std::string path(const std::string& designName) const { return platform::pathText(folder.path()) + designName; }
    std::string bytesOf(const std::string& name) const
    {
        std::ifstream file(folder.path() / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }

    test::TemporaryFolder folder;
};

TEST_F(TextFile, IsFoundWhateverItsCase)
{
    fs::create_directories(folder.path() / "WAVUus");
    std::ofstream(folder.path() / "WAVUus" / "f1.WAV") << "x";
    EXPECT_EQ(platform::resolve(path("\\wavuus\\F1.wav")).filename(), "f1.WAV");
    EXPECT_EQ(platform::resolve(path("\\WAVUus\\F2.wav")).filename(), "F2.wav") << "a file that is not there";
    EXPECT_EQ(platform::resolve(path("\\wavuus\\F2.wav")).parent_path().filename(), "WAVUus");
}

TEST_F(TextFile, IsWrittenInTheCodePageAndComesBack)
{
    platform::writeTextFile(path("\\Set.dat"), "Țara\r\n");
    EXPECT_EQ(bytesOf("Set.dat"),
              "\xDE"
              "ara\r\n");
    EXPECT_EQ(platform::readTextFile(path("\\set.DAT")), "Ţara\r\n");
    EXPECT_FALSE(fs::exists(folder.path() / "Set.dat.new"));
}

TEST_F(TextFile, ReplacesTheFileOfAnotherSpelling)
{
    platform::writeTextFile(path("\\KelvoInit.dat"), "one");
    platform::writeTextFile(path("\\KELVOINIT.DAT"), "two");
    EXPECT_EQ(bytesOf("KelvoInit.dat"), "two");
    EXPECT_FALSE(fs::exists(folder.path() / "KELVOINIT.DAT"));
}

TEST_F(TextFile, SaysWhatIsMissing)
{
    EXPECT_EQ(errorOf([&] { (void)platform::readTextFile(path("\\nothing.dat")); }), base::noSuchFile);
    EXPECT_EQ(errorOf([&] { platform::writeTextFile(path("\\none\\x.dat"), "x"); }), base::noSuchFolder);
    fs::create_directories(folder.path() / "taken.dat");
    EXPECT_EQ(errorOf([&] { platform::writeTextFile(path("\\taken.dat"), "x"); }), base::existsOrNoAccess);
    EXPECT_FALSE(fs::exists(folder.path() / "taken.dat.new")) << "nothing half-written stays";
}

TEST_F(TextFile, ThatIsWriteProtectedStaysAsItIs)
{
    platform::writeTextFile(path("\\Set.dat"), "one");
    fs::permissions(folder.path() / "Set.dat", fs::perms::owner_read);
    EXPECT_EQ(errorOf([&] { platform::writeTextFile(path("\\Set.dat"), "two"); }), base::existsOrNoAccess);
    EXPECT_EQ(bytesOf("Set.dat"), "one");
    EXPECT_FALSE(fs::exists(folder.path() / "Set.dat.new"));
    fs::permissions(folder.path() / "Set.dat", fs::perms::owner_read | fs::perms::owner_write);
    platform::writeTextFile(path("\\Set.dat"), "two");
    EXPECT_EQ(bytesOf("Set.dat"), "two");
}

TEST(FieldReader, EndsAValueAtALineEndAndAtAComma)
{
    platform::FieldReader reader("YO2XYZ\r\n  KN05OS\n\r\n a,b \r\nlast");
    EXPECT_EQ(reader.text(), "YO2XYZ");
    EXPECT_EQ(reader.text(), "KN05OS");
    EXPECT_EQ(reader.text(), "") << "an empty line is an empty value";
    EXPECT_EQ(reader.text(), "a");
    EXPECT_EQ(reader.text(), "b ");
    EXPECT_EQ(reader.text(), "last");
    EXPECT_EQ(errorOf([&] { (void)reader.text(); }), base::endOfFile);
}

TEST(FieldReader, AQuoteAtTheStartOpensAQuotedValue)
{
    platform::FieldReader reader("\"a,b\r\nc\" ignored,next\r\nit's \"so\"\r\n\"open");
    EXPECT_EQ(reader.text(), "a,b\r\nc");
    EXPECT_EQ(reader.text(), "next");
    EXPECT_EQ(reader.text(), "it's \"so\"");
    EXPECT_EQ(reader.text(), "open");
}

TEST(FieldReader, ReadsNumbersAsTheyArePrinted)
{
    platform::FieldReader reader(" 12 \r\n-3 \r\nx\r\n");
    EXPECT_EQ(reader.number(), 12);
    EXPECT_EQ(reader.number(), -3);
    EXPECT_EQ(errorOf([&] { (void)reader.number(); }), base::notANumber);
}

}  // namespace
