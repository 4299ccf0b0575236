// The lines of a text log, column by column.
#include <gtest/gtest.h>

#include <string>

#include "base/text.h"
#include "review/log_lines.h"

namespace {

using screen::LogRecord;

/// From one column to another, both counted from 1 and part of it.
std::string columns(const std::string& line, std::size_t from, std::size_t to)
{
    return base::mid(line, from, to - from + 1);
}

struct ColumnRow {
    std::size_t from;
    std::size_t to;
    const char* head;  ///< empty where a blank parts two columns
    const char* content;
};

const ColumnRow bandColumns[] = {
    {1, 9, "DATA", "15.11.26x"},
    {10, 15, "UTC", "12:34y"},
    {16, 25, "CALLSIGN", "DL/YO2BEHM"},
    {26, 32, "SENT", "599 001"},
    {33, 33, "", " "},
    {34, 40, "RCVD", "599 012"},
    {41, 41, "", " "},
    {42, 45, "MOD", "Mixt"},
    {46, 50, "FRQ", "10368"},
    {51, 52, "", "  "},
    {53, 58, "QRALoc", "KN16AA"},
    {59, 60, "", "  "},
    {61, 66, "PCT", "123456"},
};

const ColumnRow maratonColumns[] = {
    {1, 9, "DATA", "15.11.26x"},
    {10, 15, "UTC", "12:34y"},
    {16, 25, "CALLSIGN", "DL/YO2BEHM"},
    {26, 32, "SENT", "599 001"},
    {33, 33, "", " "},
    {34, 40, "RCVD", "599 012"},
    {41, 41, "", " "},
    {42, 45, "MOD", "Mixt"},
    {46, 50, "FRQ", "10368"},
    {51, 52, "", "  "},
    {53, 58, "QRALoc", "KN16AA"},
    {59, 60, "", "  "},
    {61, 70, "NameR", "GHEORGHEŞI"},
    {71, 71, "", " "},
    {72, 77, "PCT", "123456"},
    {78, 83, "MyQRA", "KN05OS"},
    {84, 84, "", " "},
    {85, 94, "MyName", "ŢUŢUIANU A"},
};

/// Every field filled to its width, or beyond.
LogRecord fullRecord(const std::string& more)
{
    LogRecord record;
    record.Nr = "1";
    record.Callsign = "DL/YO2BEHM" + more;
    record.Data = "15.11.26x" + more;
    record.UTC = "12:34y" + more;
    record.Sent = "599 001" + more;
    record.Rcvd = "599 012" + more;
    record.Mode = "Mixt" + more;
    record.Freq = "10368" + more;
    record.QRALoc = "KN16AA" + more;
    record.Pct = "123456" + more;
    record.NameR = "GHEORGHEŞI" + more;
    record.NameE = "ŢUŢUIANU A" + more;
    record.QRALcE = "KN05OS" + more;
    return record;
}

TEST(TextLogLine, HasEachFieldInItsColumns)
{
    for (const char* more : {"", "0", "ŞŢ and more"}) {
        const std::string line = review::textLogLine(fullRecord(more));
        for (const ColumnRow& row : bandColumns)
            EXPECT_EQ(columns(line, row.from, row.to), row.content) << row.from;
        EXPECT_EQ(base::length(line), 66U);
    }
}

TEST(TextLogLine, HasTheNamesOfTheMaratonContest)
{
    for (const char* more : {"", "0", "ŞŢ and more"}) {
        const std::string line = review::maratonLogLine(fullRecord(more));
        for (const ColumnRow& row : maratonColumns)
            EXPECT_EQ(columns(line, row.from, row.to), row.content) << row.from;
        EXPECT_EQ(base::length(line), 94U);
    }
}

TEST(TextLogLine, OfAnEmptyRowIsBlank)
{
    EXPECT_EQ(review::textLogLine({}), std::string(66, ' '));
    EXPECT_EQ(review::maratonLogLine({}), std::string(94, ' '));
}

TEST(TextLogLine, FillsShortFieldsWithBlanks)
{
    LogRecord record;
    record.Callsign = "YO2A";
    record.Data = "15.11.26";
    record.UTC = "12:34";
    record.Sent = "59 001";
    record.Rcvd = "59 7";
    record.Mode = "CW";
    record.Freq = "144";
    record.QRALoc = "KN16";
    record.Pct = "0";
    EXPECT_EQ(review::textLogLine(record), "15.11.26 12:34 YO2A      59 001  59 7    CW  144    KN16    0     ");
}

struct StageBRow {
    const char* band;
    std::size_t blanks;
    std::size_t locatorAt;  ///< where the locator begins: 53 in stage A
};

const StageBRow stageBRows[] = {{"144", 4, 53}, {"432", 2, 51}, {"1296", 2, 52}};

TEST(TextLogLine, OfStageBHasTheBandInPlaceOfTheFrequency)
{
    for (const StageBRow& row : stageBRows) {
        const std::string line = review::textLogLineOfStageB(fullRecord(""), row.band, row.blanks);
        EXPECT_EQ(columns(line, 1, 45), columns(review::textLogLine(fullRecord("")), 1, 45));
        EXPECT_EQ(columns(line, 46, row.locatorAt - 1), row.band + std::string(row.blanks, ' '));
        EXPECT_EQ(columns(line, row.locatorAt, 100), "KN16AA  123456") << row.band;
    }
}

TEST(TextLogHead, HasEachWordAtItsColumn)
{
    for (const ColumnRow& row : bandColumns)
        EXPECT_EQ(base::trim(columns(review::textLogHead(false), row.from, row.to)), row.head) << row.from;
    for (const ColumnRow& row : maratonColumns)
        EXPECT_EQ(base::trim(columns(review::textLogHead(true), row.from, row.to)), row.head) << row.from;
}

TEST(TextLogHead, EndsWithItsLastWord)
{
    EXPECT_EQ(base::length(review::textLogHead(false)), 63U);
    EXPECT_EQ(base::length(review::textLogHead(true)), 90U);
    EXPECT_EQ(review::textLogHead(false), "DATA     UTC   CALLSIGN  SENT    RCVD    MOD FRQ    QRALoc  PCT");
}

}  // namespace
