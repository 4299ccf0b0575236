// The stored messages: what their placeholders stand for, and how a code is keyed.
#include "keyer/messages.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr int allContests[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 100, 101};

struct CodeRow {
    const char* code;
    const char* abbreviated;  ///< in contests 1 to 9
};

constexpr CodeRow codeRows[] = {
    {"007", "TT7"},   {"042", "T42"},  {"100", "100"}, {"000", "TT0"},   {"001", "TT1"},
    {"010", "T10"},   {"099", "T99"},  {"999", "999"}, {"1000", "1000"}, {"0123", "T23"},
    {"00123", "TT3"}, {"00", "TT0"},   {"0", "T0"},    {"", ""},         {" ", " "},
    {" 007", " 007"}, {"007 ", "TT "}, {"7", "7"},     {"00A", "TTA"},   {"0AB", "TAB"},
    {"A00", "A00"},   {"-07", "-07"},  {"00Ă", "TTĂ"}, {"0ȘȚ", "TȘȚ"},   {"32767", "32767"},
};

TEST(AbbreviatedCode, KeysLeadingZerosAsTInTheContestsThatAbbreviate)
{
    for (const int contest : allContests) {
        const bool abbreviates = contest >= 1 && contest <= 9;
        for (const CodeRow& row : codeRows)
            EXPECT_EQ(keyer::abbreviatedCode(row.code, contest), abbreviates ? row.abbreviated : row.code)
                << "contest " << contest << " code " << row.code;
    }
}

TEST(AbbreviatedCode, DoesSoForEveryCodeOfThreeDigits)
{
    for (int number = 0; number < 1000; ++number) {
        const std::string digits = std::to_string(1000 + number).substr(1);
        std::string keyed = digits;
        if (number < 100) keyed[0] = 'T';
        if (number < 10) keyed[1] = 'T';
        EXPECT_EQ(keyer::abbreviatedCode(digits, 5), keyed);
        EXPECT_EQ(keyer::abbreviatedCode(digits, 0), digits);
    }
}

const keyer::Placeholders placeholders = {"YO2ABC", "HA5A", "TT7", "KN05OS"};

struct MessageRow {
    const char* message;
    const char* filled;
};

constexpr MessageRow messageRows[] = {
    {"CQ TEST DE #1 #1 K", "CQ TEST DE YO2ABC YO2ABC K"},
    {"#2 599#3 #4", "HA5A 599TT7 KN05OS"},
    {"#1#2#3#4", "YO2ABCHA5ATT7KN05OS"},
    {"", ""},
    {"   ", ""},
    {"  TU  73  ", "TU  73"},
    {"TU #", "TU "},
    {"#", ""},
    {"##", ""},
    {"##1", "1"},
    {"###1", "YO2ABC"},
    {"# 1", "1"},
    {"A#5B", "AB"},
    {"A#0#6#7#8#9B", "AB"},
    {"#A", ""},
    {"A#ĂB", "AB"},
    {"ĂÎ #1", "ĂÎ YO2ABC"},
    {"#1 #", "YO2ABC "},
    {"SAY \"73\", #2", "SAY \"73\", HA5A"},
    {"1 2 3 4", "1 2 3 4"},
};

TEST(FilledMessage, PutsInWhatThePlaceholdersStandFor)
{
    for (const MessageRow& row : messageRows)
        EXPECT_EQ(keyer::filledMessage(row.message, placeholders), row.filled) << row.message;
}

TEST(FilledMessage, FillsNothingInTwice)
{
    EXPECT_EQ(keyer::filledMessage("#1 #2", {"#2", "#1", "", ""}), "#2 #1");
}

TEST(FilledMessage, LeavesOutWhatIsNotKnownYet)
{
    EXPECT_EQ(keyer::filledMessage("#2 DE #1 #3#4", {"YO2ABC", "", "", ""}), " DE YO2ABC ");
}

TEST(FilledMessage, TakesLongMessages)
{
    const std::string text(10000, 'E');
    EXPECT_EQ(keyer::filledMessage(text + "#4", placeholders), text + "KN05OS");
}

}  // namespace
