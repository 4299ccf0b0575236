// Several scripts in one folder, and the program kelvo-script around them.
#include "script/session.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "script/command_line.h"
#include "script/parser.h"
#include "support/temporary_folder.h"

namespace {

using Lines = std::vector<std::string>;

TEST(ScriptSession, BeginsEachScriptAnewInOneFolder)
{
    const test::TemporaryFolder folder;
    Lines printed;
    script::Session session(folder.path(), [&](const std::string& line) { printed.push_back(line); });
    const script::Result first = session.play(
        "expect rows Uus144a 0\nscreen 640 480\nnow 2026-11-15 12:00:00\nwait 5\n"
        "sql LogKelvo.mdb \"INSERT INTO Uus144a (Callsign) VALUES ('YO2A')\"\n"
        "start\nexpect rows Uus144a 2\nafter 1 close\n",
        "first");
    EXPECT_EQ(first.passed, 1);
    EXPECT_EQ(first.failed, 2);
    EXPECT_EQ(first.output,
              "first:7: expected 2 rows in Uus144a got 1\n"
              "first:8: expected time to reach the moment got a statement left over\n");
    const script::Result second = session.play(
        "expect rows Uus144a 1\nexpect form FrmInit\nstart\n"
        "expect FrmInit.Width 12000\nexpect ended",
        "second");
    EXPECT_EQ(second.passed, 2);
    EXPECT_EQ(second.output,
              "second:2: expected a running program got none\n"
              "second:5: expected a program that has ended got one that runs\n");
    EXPECT_EQ(session.tally().passed, 3);
    EXPECT_EQ(session.tally().failed, 4);
    EXPECT_EQ(printed.size(), 4U);
    EXPECT_THROW(session.play("nix", "third"), script::UnreadableScript);
}

class ScriptCommandLine : public testing::Test {
 protected:
    int run(const std::vector<std::string>& arguments)
    {
        out_.str("");
        err_.str("");
        return script::runCommandLine(arguments, out_, err_);
    }

    std::string file(const std::string& name, const std::string& text)
    {
        test::writeFile(folder_.file(name), text);
        return folder_.file(name).string();
    }

    test::TemporaryFolder folder_;
    std::ostringstream out_;
    std::ostringstream err_;
};

TEST_F(ScriptCommandLine, CountsWhatPassedAndFailed)
{
    const std::string good = file("good", "expect rows QRA 0\nstart\nexpect form FrmInit\n");
    const std::string bad = file("bad", "expect rows QRA 1\n");
    EXPECT_EQ(run({good}), 0);
    EXPECT_EQ(out_.str(), "2 passed, 0 failed\n");
    EXPECT_EQ(run({good, bad}), 1);
    EXPECT_EQ(out_.str(), bad + ":1: expected 1 rows in QRA got 0\n2 passed, 1 failed\n");
    EXPECT_EQ(err_.str(), "");
}

TEST_F(ScriptCommandLine, PlaysNothingWhenAScriptCannotBeRead)
{
    const std::string good = file("good", "show table QRA\n");
    const std::string bad = file("bad", "start\nnix\n");
    const std::string missing = folder_.file("missing").string();
    const std::string folder = folder_.file("program").string();
    EXPECT_EQ(run({"--folder", folder, good, bad, missing}), 2);
    EXPECT_EQ(out_.str(), "");
    EXPECT_EQ(err_.str(), bad + ":2: there is no statement \"nix\"\n" + missing + ":0: the file cannot be read\n");
    EXPECT_FALSE(std::filesystem::exists(folder));
}

TEST_F(ScriptCommandLine, MakesAndKeepsTheFolderThatItIsGiven)
{
    const std::string folder = folder_.file("a/b").string();
    const std::string change = file("change", "sql DbsKelvo.mdb \"INSERT INTO QRA VALUES ('YO2A', 'KN05OS')\"\n");
    EXPECT_EQ(run({"--folder", folder, change}), 0);
    EXPECT_TRUE(std::filesystem::exists(folder + "/LogKelvo.mdb"));
    EXPECT_EQ(run({file("look", "show table QRA\nfile \"x\"\n|a\nshow file \"X\"\n"), "--folder", folder}), 0);
    EXPECT_EQ(out_.str(), "YO2A|KN05OS\na\n0 passed, 0 failed\n");
}

TEST_F(ScriptCommandLine, TellsOfAFolderThatCannotBeUsed)
{
    const std::string notAFolder = file("file", "");
    EXPECT_EQ(run({"--folder", notAFolder, file("good", "start\n")}), 2);
    EXPECT_EQ(out_.str(), "");
    EXPECT_TRUE(err_.str().starts_with("kelvo-script: ")) << err_.str();
}

TEST_F(ScriptCommandLine, ExplainsItself)
{
    EXPECT_EQ(run({"--help"}), 0);
    EXPECT_TRUE(out_.str().starts_with("usage: kelvo-script [--folder DIR] FILE...\n"));
    EXPECT_NE(out_.str().find("expect row TABLE N VALUE..."), std::string::npos);
    for (const std::vector<std::string>& wrong :
         {std::vector<std::string>{}, {"--folder"}, {"--folder", "x"}, {"--nix", "x"}}) {
        EXPECT_EQ(run(wrong), 2);
        EXPECT_EQ(err_.str(), "usage: kelvo-script [--folder DIR] FILE...\n");
    }
}

}  // namespace
