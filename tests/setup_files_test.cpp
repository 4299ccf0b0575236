// The two set-up files, byte for byte, and what is made of files that somebody else wrote or broke.
#include "runstate/setup_files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "base/runtime_error.h"
#include "runstate/modul1.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"
#include "support/error_of.h"
#include "support/running_program.h"
#include "support/temporary_folder.h"

namespace {

namespace fs = std::filesystem;
using State = runstate::Modul1State;

constexpr const char* initDat = "KelvoInit.dat";
constexpr const char* textCw = "KELVOTextCw.dat";

struct TextRow {
    std::string State::*variable;
    const char* value;
};

// In the order of the file, but for the two numbers: the serial stands fourth, the number of the station seventh.
constexpr TextRow stationTexts[] = {
    {&State::MyCall, "YO2XYZ"},       {&State::MyQRA, "KN05OS"},  {&State::TimeDiff, "2"},
    {&State::CfgSection, "MULTI OP"}, {&State::CfgOp, "ION POP"}, {&State::CfgQTH, "TIMISOARA"},
    {&State::CfgAds, "STR. LUNGA 7"}, {&State::CfgTx, "100 W"},   {&State::CfgRx, "NF 0.8"},
    {&State::CfgAnt, "17 EL"},        {&State::CfgAnt2, "19 EL"}, {&State::CfgAnt3, "35 EL"},
    {&State::CfgAnt4, "DISH 1.2 M"},  {&State::CfgClub, "CS XY"}, {&State::MyName, "ION"},
};

constexpr TextRow messages[] = {
    {&State::TxtCwF1, "CQ TEST DE #1"}, {&State::TxtCwF2, "#2 599#3 #4"}, {&State::TxtCwF3, "TU"},
    {&State::TxtCwF4, "QRZ? DE #1"},    {&State::TxtCwF5, "AGN?"},        {&State::TxtCwF6, "QRX"},
    {&State::TxtCwF7, "73 SK"},
};

const std::string fullStation =
    "YO2XYZ\r\nKN05OS\r\n2\r\n 12 \r\nMULTI OP\r\nION POP\r\n 3 \r\nTIMISOARA\r\nSTR. LUNGA 7\r\n100 W\r\nNF 0.8\r\n"
    "17 EL\r\n19 EL\r\n35 EL\r\nDISH 1.2 M\r\nCS XY\r\nION\r\n";
const std::string fullMessages = "CQ TEST DE #1\r\n#2 599#3 #4\r\nTU\r\nQRZ? DE #1\r\nAGN?\r\nQRX\r\n73 SK\r\n 4 \r\n";

using test::errorOf;

class SetUpFiles : public testing::Test {
 protected:
    void SetUp() override { forget(); }

    void forget()
    {
        Modul1 = {};
        Modul1.AppPath = folder.path().string();
    }

    static void fillState()
    {
        for (const TextRow& row : stationTexts)
            Modul1.*row.variable = row.value;
        for (const TextRow& row : messages)
            Modul1.*row.variable = row.value;
        Modul1.SerNr = 12;
        Modul1.CfgNo = 3;
        Modul1.CwPort = 4;
    }

    template <std::size_t rows>
    static void expectValues(const TextRow (&table)[rows])
    {
        for (std::size_t i = 0; i < rows; ++i)
            EXPECT_EQ(Modul1.*table[i].variable, table[i].value) << "text " << i + 1;
    }

    /// Reads a file of these bytes into a fresh state; gives the error.
    int readStation(const std::string& bytes) { return read(initDat, bytes, runstate::ReadInitDat); }
    int readMessages(const std::string& bytes) { return read(textCw, bytes, runstate::ReadTextCw); }

    int read(const char* name, const std::string& bytes, void (*reader)())
    {
        test::writeFile(folder.file(name), bytes);
        return errorOf(reader);
    }

    std::string written(const char* name) const { return test::readFile(folder.file(name)); }

    test::TemporaryFolder folder;
};

TEST_F(SetUpFiles, AreWrittenByteForByte)
{
    fillState();
    runstate::WriteInitDat();
    runstate::WriteTextCw();
    EXPECT_EQ(written(initDat), fullStation);
    EXPECT_EQ(written(textCw), fullMessages);
}

TEST_F(SetUpFiles, HaveAllTheirLinesInAFirstRun)
{
    runstate::WriteInitDat();
    runstate::WriteTextCw();
    EXPECT_EQ(written(initDat), "\r\n\r\n\r\n 0 \r\n\r\n\r\n 0 \r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n");
    EXPECT_EQ(written(textCw), "\r\n\r\n\r\n\r\n\r\n\r\n\r\n 0 \r\n");
}

TEST_F(SetUpFiles, HaveTheirNamesInThisSpelling)
{
    runstate::WriteInitDat();
    runstate::WriteTextCw();
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder.path()))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::string>{textCw, initDat}));
}

TEST_F(SetUpFiles, AreFoundInAnotherSpelling)
{
    test::writeFile(folder.file("KELVOINIT.DAT"), fullStation);
    test::writeFile(folder.file("kelvotextcw.dat"), fullMessages);
    runstate::ReadInitDat();
    runstate::ReadTextCw();
    EXPECT_EQ(Modul1.MyCall, "YO2XYZ");
    EXPECT_EQ(Modul1.TxtCwF1, "CQ TEST DE #1");
}

TEST_F(SetUpFiles, ComeBackAsTheyWereWritten)
{
    fillState();
    runstate::WriteInitDat();
    runstate::WriteTextCw();
    forget();
    runstate::ReadInitDat();
    runstate::ReadTextCw();
    expectValues(stationTexts);
    expectValues(messages);
    EXPECT_EQ(Modul1.SerNr, 12);
    EXPECT_EQ(Modul1.CfgNo, 3);
    EXPECT_EQ(Modul1.CwPort, 4);
}

TEST_F(SetUpFiles, TouchNothingOfEachOther)
{
    fillState();
    runstate::WriteInitDat();
    forget();
    Modul1.CwPort = 7;
    runstate::ReadInitDat();
    EXPECT_EQ(Modul1.CwPort, 7);
    EXPECT_EQ(Modul1.TxtCwF1, "");
    EXPECT_FALSE(fs::exists(folder.file(textCw)));
}

struct NumberRow {
    std::int16_t number;
    const char* line;
};

TEST_F(SetUpFiles, PrintNumbersWithABlankForTheSignAndOneBehind)
{
    const NumberRow rows[] = {{0, " 0 "},         {1, " 1 "},  {999, " 999 "},
                              {32767, " 32767 "}, {-1, "-1 "}, {-32768, "-32768 "}};
    for (const NumberRow& row : rows) {
        forget();
        Modul1.CwPort = row.number;
        runstate::WriteTextCw();
        EXPECT_EQ(written(textCw), "\r\n\r\n\r\n\r\n\r\n\r\n\r\n" + std::string(row.line) + "\r\n");
        Modul1.CwPort = 77;
        runstate::ReadTextCw();
        EXPECT_EQ(Modul1.CwPort, row.number);
    }
}

TEST_F(SetUpFiles, AnEmptyValueKeepsThePlaceOfTheOthers)
{
    fillState();
    Modul1.TimeDiff = "";
    runstate::WriteInitDat();
    forget();
    Modul1.TimeDiff = "5";
    EXPECT_EQ(errorOf(runstate::ReadInitDat), 0);
    EXPECT_EQ(Modul1.TimeDiff, "");
    EXPECT_EQ(Modul1.SerNr, 12);
    EXPECT_EQ(Modul1.MyName, "ION");
}

TEST_F(SetUpFiles, ACommaShiftsWhatStandsBehindIt)
{
    EXPECT_EQ(readMessages("CQ, CQ DE #1\r\nTWO\r\nTHREE\r\nFOUR\r\nFIVE\r\nSIX\r\nSEVEN\r\n 4 \r\n"),
              base::notANumber);
    const TextRow shifted[] = {
        {&State::TxtCwF1, "CQ"},   {&State::TxtCwF2, "CQ DE #1"}, {&State::TxtCwF3, "TWO"}, {&State::TxtCwF4, "THREE"},
        {&State::TxtCwF5, "FOUR"}, {&State::TxtCwF6, "FIVE"},     {&State::TxtCwF7, "SIX"},
    };
    expectValues(shifted);
    EXPECT_EQ(Modul1.CwPort, 0);
}

TEST_F(SetUpFiles, AreWrittenWithACommaAsItStands)
{
    Modul1.TxtCwF1 = "CQ, CQ";
    runstate::WriteTextCw();
    EXPECT_EQ(written(textCw), "CQ, CQ\r\n\r\n\r\n\r\n\r\n\r\n\r\n 0 \r\n");
}

struct ValueRow {
    const char* line;
    const char* value;
    const char* next;  ///< of the line "NEXT" behind it
};

TEST_F(SetUpFiles, TakeValuesField)
{
    const ValueRow rows[] = {
        {"YO2XYZ", "YO2XYZ", "NEXT"},
        {"  YO2XYZ", "YO2XYZ", "NEXT"},
        {"YO2XYZ  ", "YO2XYZ  ", "NEXT"},
        {"   ", "", "NEXT"},
        {"A,B", "A", "B"},
        {"A,", "A", ""},
        {",B", "", "B"},
        {"\"A,B\"", "A,B", "NEXT"},
        {"  \"A,B\"", "A,B", "NEXT"},
        {"\"A\r\nB\"", "A\r\nB", "NEXT"},
        {"\"A\" rest", "A", "NEXT"},
        {"\"A\",B", "A", "B"},
        {"\"\"", "", "NEXT"},
        {"6\" DISH", "6\" DISH", "NEXT"},
        {"A;B", "A;B", "NEXT"},
        {"\tA", "\tA", "NEXT"},
    };
    for (const ValueRow& row : rows) {
        forget();
        (void)readStation(std::string(row.line) + "\r\nNEXT\r\n");
        EXPECT_EQ(Modul1.MyCall, row.value) << '[' << row.line << ']';
        EXPECT_EQ(Modul1.MyQRA, row.next) << '[' << row.line << ']';
    }
}

TEST_F(SetUpFiles, AQuoteThatIsNeverClosedTakesTheRest)
{
    EXPECT_EQ(readStation("\"YO2XYZ\r\nKN05OS\r\n"), base::endOfFile);
    EXPECT_EQ(Modul1.MyCall, "YO2XYZ\r\nKN05OS\r\n");
    EXPECT_EQ(Modul1.MyQRA, "");
}

TEST_F(SetUpFiles, TakeAnyLineEnd)
{
    for (const char* end : {"\r\n", "\n", "\r"}) {
        forget();
        std::string bytes = fullMessages;
        for (std::size_t at = 0; (at = bytes.find("\r\n", at)) != std::string::npos; at += std::string(end).size())
            bytes.replace(at, 2, end);
        EXPECT_EQ(readMessages(bytes), 0);
        expectValues(messages);
        EXPECT_EQ(Modul1.CwPort, 4);
    }
}

TEST_F(SetUpFiles, NeedNoLineEndAtTheirEnd)
{
    EXPECT_EQ(readMessages("1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n8"), 0);
    EXPECT_EQ(Modul1.CwPort, 8);
}

TEST_F(SetUpFiles, LeaveWhatStandsBehindTheirRecords)
{
    EXPECT_EQ(readMessages(fullMessages + "MORE\r\nAND MORE\r\n"), 0);
    expectValues(messages);
}

TEST_F(SetUpFiles, AShortFileLeavesTheLaterValuesAsTheyWere)
{
    for (std::size_t lines = 0; lines < std::size(messages); ++lines) {
        forget();
        for (const TextRow& row : messages)
            Modul1.*row.variable = "before";
        std::string bytes;
        for (std::size_t i = 0; i < lines; ++i)
            bytes += std::string(messages[i].value) + "\r\n";
        EXPECT_EQ(readMessages(bytes), base::endOfFile) << lines;
        for (std::size_t i = 0; i < std::size(messages); ++i)
            EXPECT_EQ(Modul1.*messages[i].variable, i < lines ? messages[i].value : "before") << lines;
    }
}

TEST_F(SetUpFiles, AShortFileCanBeWrittenAgain)
{
    EXPECT_EQ(readStation("YO2XYZ\r\n"), base::endOfFile);
    fillState();
    runstate::WriteInitDat();
    EXPECT_EQ(written(initDat), fullStation);
}

struct BadNumberRow {
    const char* line;
    int error;
};

TEST_F(SetUpFiles, AWrongNumberEndsTheReading)
{
    const BadNumberRow rows[] = {
        {"abc", base::notANumber},
        {"", base::notANumber},
        {"12A", base::notANumber},
        {"1.5", base::notANumber},
        {"1 2", base::notANumber},
        {"32768", base::overflow},
        {"-32769", base::overflow},
        {"99999999999", base::overflow},
        {"12,", 0},
        {"  12  ", 0},
        {"\"12\"", 0},
        {"+12", 0},
    };
    for (const BadNumberRow& row : rows) {
        forget();
        Modul1.SerNr = 5;
        Modul1.CfgSection = "before";
        const std::string tail = "\r\nSECTION\r\nOP\r\n3\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n";
        const int error = readStation("YO2XYZ\r\nKN05OS\r\n2\r\n" + std::string(row.line) + tail);
        EXPECT_EQ(Modul1.TimeDiff, "2") << row.line;
        if (row.error != 0) {
            EXPECT_EQ(error, row.error) << row.line;
            EXPECT_EQ(Modul1.SerNr, 5) << row.line;
            EXPECT_EQ(Modul1.CfgSection, "before") << row.line;
        } else {
            EXPECT_EQ(Modul1.SerNr, 12) << row.line;
        }
    }
}

TEST_F(SetUpFiles, AFileThatIsNotThereChangesNothing)
{
    fillState();
    EXPECT_EQ(errorOf(runstate::ReadInitDat), base::noSuchFile);
    EXPECT_EQ(errorOf(runstate::ReadTextCw), base::noSuchFile);
    expectValues(stationTexts);
    expectValues(messages);
    EXPECT_EQ(Modul1.SerNr, 12);
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST_F(SetUpFiles, TenMegabytesWithoutALineEndAreOneValue)
{
    constexpr std::size_t tenMegabytes = 10U << 20U;
    EXPECT_EQ(readStation(std::string(tenMegabytes, 'A')), base::endOfFile);
    EXPECT_EQ(Modul1.MyCall.size(), tenMegabytes);
    EXPECT_EQ(Modul1.MyQRA, "");
    EXPECT_EQ(readStation(std::string(tenMegabytes, ' ')), base::endOfFile);
    EXPECT_EQ(readStation("\"" + std::string(tenMegabytes, '\n')), base::endOfFile);
}

TEST_F(SetUpFiles, BytesOfAnyKindAreText)
{
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes.push_back(static_cast<char>(byte));
    EXPECT_NE(readStation(bytes), 0);
    EXPECT_NE(readMessages(bytes + bytes + bytes), 0);
    EXPECT_EQ(readStation(std::string("YO\0XYZ\r\nKN05OS\r\n", 16)), base::endOfFile);
    EXPECT_EQ(Modul1.MyCall, std::string("YO\0XYZ", 6));
    EXPECT_EQ(Modul1.MyQRA, "KN05OS");
}

struct CodePageRow {
    const char* text;
    const char* bytes;
    const char* readBack;
};

TEST_F(SetUpFiles, HoldTheCharactersOfTheCodePage)
{
    const CodePageRow rows[] = {
        {"Ţîru", "\xDE\xEEru", "Ţîru"},
        {"Șțefan",
         "\xAA\xFE"
         "efan",
         "Şţefan"},
        {"Ăâ", "\xC3\xE2", "Ăâ"},
        {"50 €", "50 \x80", "50 €"},
        {"Ω", "?", "?"},
    };
    for (const CodePageRow& row : rows) {
        forget();
        Modul1.MyName = row.text;
        runstate::WriteInitDat();
        EXPECT_EQ(written(initDat), "\r\n\r\n\r\n 0 \r\n\r\n\r\n 0 \r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n" +
                                        std::string(row.bytes) + "\r\n");
        forget();
        runstate::ReadInitDat();
        EXPECT_EQ(Modul1.MyName, row.readBack);
    }
}

TEST_F(SetUpFiles, GiveBytesBackAsTheyWere)
{
    for (int byte = 0; byte < 256; ++byte) {
        const char character = static_cast<char>(byte);
        if (character == ',' || character == '\r' || character == '\n') continue;
        forget();
        std::string bytes = fullStation;
        bytes.insert(1, 1, character);
        ASSERT_EQ(readStation(bytes), 0) << byte;
        runstate::WriteInitDat();
        EXPECT_EQ(written(initDat), bytes) << byte;
    }
}

TEST_F(SetUpFiles, SayWhereTheyAreWrong)
{
    const auto complaint = [](void (*reader)()) {
        try {
            reader();
        } catch (const base::RuntimeError& error) {
            return std::string(error.what());
        }
        return std::string();
    };
    test::writeFile(folder.file(initDat), "YO2XYZ\r\nKN05OS\r\n2\r\nABC\r\n");
    EXPECT_EQ(complaint(runstate::ReadInitDat), "KelvoInit.dat, value 4: \"ABC\" is not a number");
    test::writeFile(folder.file(initDat), "YO2XYZ\r\nKN05OS\r\n2\r\n" + std::string(1000, 'X') + "\r\n");
    EXPECT_EQ(complaint(runstate::ReadInitDat),
              "KelvoInit.dat, value 4: \"" + std::string(40, 'X') + "...\" is not a number");
    test::writeFile(folder.file(textCw), "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n40000\r\n");
    EXPECT_EQ(complaint(runstate::ReadTextCw), "KELVOTextCw.dat, value 8: \"40000\" is not between -32768 and 32767");
    test::writeFile(folder.file(textCw), "1\r\n2\r\n");
    EXPECT_EQ(complaint(runstate::ReadTextCw), "KELVOTextCw.dat, value 3: The file ends too early");
}

TEST_F(SetUpFiles, SayWhyTheyCannotBeWritten)
{
    fs::create_directory(folder.file(initDat));
    EXPECT_EQ(errorOf(runstate::WriteInitDat), base::existsOrNoAccess);
    EXPECT_EQ(errorOf(runstate::ReadInitDat), base::existsOrNoAccess);
    Modul1.AppPath += "\\none";
    EXPECT_EQ(errorOf(runstate::WriteTextCw), base::noSuchFolder);
}

TEST(SetUpFilesOfARun, ThatCannotBeWrittenKeepNobodyFromTheContest)
{
    test::RunningProgram program;
    fs::create_directory(program.folder() / initDat);
    fs::create_directory(program.folder() / textCw);
    program.restart();
    EXPECT_TRUE(FrmInit.Visible);
    const std::size_t before = program.notices().size();
    program.click(FrmInit.mnuQSOfahren);
    EXPECT_TRUE(FrmQSO.Visible);
    EXPECT_FALSE(program.box());
    ASSERT_GE(program.notices().size(), before + 2);
    EXPECT_NE(program.notices().at(before).find(textCw), std::string::npos);
    EXPECT_NE(program.notices().at(before + 1).find(initDat), std::string::npos);
}

TEST(SetUpFilesOfARun, AreMadeOnTheWayToTheFirstQso)
{
    test::RunningProgram program;
    EXPECT_FALSE(fs::exists(program.folder() / initDat));
    EXPECT_FALSE(fs::exists(program.folder() / textCw));
    FrmInit.TxtMyName.Text = "ION";
    FrmInit.TxtF7.Text = "73";
    FrmInit.TxtCP.Text = "2";
    program.click(FrmInit.mnuQSOfahren);
    EXPECT_TRUE(test::readFile(program.folder() / initDat).ends_with("\r\nION\r\n"));
    EXPECT_TRUE(test::readFile(program.folder() / textCw).ends_with("\r\n73\r\n 2 \r\n"));
}

}  // namespace
