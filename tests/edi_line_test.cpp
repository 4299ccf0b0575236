// A QSO as a line of an EDI file.
#include <gtest/gtest.h>

#include <string>

#include "review/log_lines.h"

namespace {

screen::LogRecord qso(const std::string& mode, const std::string& sent, const std::string& rcvd)
{
    screen::LogRecord record;
    record.Callsign = "YO9ABC";
    record.Data = "15.11.26";
    record.UTC = "12:34";
    record.Mode = mode;
    record.Sent = sent;
    record.Rcvd = rcvd;
    record.QRALoc = "KN16AA";
    record.Pct = "250";
    return record;
}

/// The fields from the fourth to the eighth: mode, reports and numbers.
std::string exchangeOf(const screen::LogRecord& record)
{
    const std::string line = review::ediLine(record);
    const std::string before = "20261115;1234;YO9ABC;";
    const std::string behind = ";;KN16AA;250;;;;;";
    EXPECT_TRUE(line.starts_with(before)) << line;
    EXPECT_TRUE(line.ends_with(behind)) << line;
    return line.substr(before.size(), line.size() - before.size() - behind.size());
}

TEST(EdiLine, OfACwQso)
{
    EXPECT_EQ(review::ediLine(qso("CW", "599 034", "599 012")),
              "20261115;1234;YO9ABC;2;599;012;599;034;;KN16AA;250;;;;;");
}

struct ModeRow {
    const char* mode;
    const char* code;
    const char* rcvd;
    const char* reportRcvd;
    const char* sent;
    const char* reportSent;
};

// In FM and in mixed mode the report keeps its number: the log writes "Fm", the cut is for "FM".
constexpr ModeRow modeRows[] = {
    {"CW", "2", "599 012", "599", "579 034", "579"},
    {"SSB", "1", "59 012", "59", "57 034", "57"},
    {"Fm", "6", "59 012", "59 012", "57 034", "57 034"},
    {"Mixt", "3", "59 012", "59 012", "599 034", "599 034"},
    {"FM", "FM", "59 012", "59", "57 034", "57"},
    {"ssb", "ssb", "59 012", "59 012", "57 034", "57 034"},
    {"RTTY", "RTTY", "599 012", "599 012", "579 034", "579 034"},
    {"", "", "59 012", "59 012", "57 034", "57 034"},
};

TEST(EdiLine, HasACodeAndReportsByMode)
{
    for (const ModeRow& row : modeRows) {
        const std::string expected = std::string(row.code) + ";" + row.reportRcvd + ";012;" + row.reportSent + ";034";
        EXPECT_EQ(exchangeOf(qso(row.mode, row.sent, row.rcvd)), expected) << row.mode;
    }
}

struct NumberRow {
    const char* exchange;
    const char* number;
};

constexpr NumberRow numberRows[] = {
    {"59 012", "012"}, {"59 12", "12"}, {"59 7", "7"}, {"59 1234", "234"}, {"599 001 ", "001"},
    {"59", "59"},      {"", ""},        {"5", "5"},    {" 59 012", "012"}, {"59 0 2", "2"},
};

TEST(EdiLine, TakesTheNumberFromTheEndOfTheExchange)
{
    for (const NumberRow& row : numberRows) {
        const std::string line = exchangeOf(qso("SSB", "59 034", row.exchange));
        EXPECT_TRUE(line.ends_with(std::string(";") + row.number + ";59;034")) << row.exchange << ": " << line;
        const std::string other = exchangeOf(qso("SSB", row.exchange, "59 034"));
        EXPECT_TRUE(other.ends_with(std::string(";") + row.number)) << row.exchange << ": " << other;
    }
}

TEST(EdiLine, OfACallAndPointsOfAnyLength)
{
    screen::LogRecord record = qso("SSB", "59 001", "59 002");
    record.Callsign = "X";
    record.Pct = "0";
    EXPECT_EQ(review::ediLine(record), "20261115;1234;X;1;59;002;59;001;;KN16AA;0;;;;;");
    record.Callsign = "HB9/YO2ABCDE/P";
    record.Pct = "123456";
    EXPECT_EQ(review::ediLine(record), "20261115;1234;HB9/YO2ABC;1;59;002;59;001;;KN16AA;123456;;;;;");
}

TEST(EdiLine, OfAnEmptyRowHasItsFieldsAllTheSame)
{
    // The century stands alone, and of the time the blanks of its field.
    EXPECT_EQ(review::ediLine(screen::LogRecord{}), "20;    ;;;;;;;;;;;;;;");
}

TEST(EdiDay, TurnsALogDateIntoEightDigitsOfThisCentury)
{
    EXPECT_EQ(review::ediDay("15.11.26"), "20261115");
    EXPECT_EQ(review::ediDay("01.02.00"), "20000201");
    EXPECT_EQ(review::ediDay("31.12.99"), "20991231");
    EXPECT_EQ(review::ediDay(""), "20");
}

}  // namespace
