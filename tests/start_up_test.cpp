// What the start of the program makes of the folder that it stands in.
#include "runstate/start_up.h"

#include <gtest/gtest.h>

namespace {

struct FolderRow {
    const char* program;
    const char* databases;
};

TEST(FolderOfTheDatabases, LosesWhatStandsBetweenTheDriveAndTheLastBracket)
{
    const FolderRow rows[] = {
        {"C:\\Kelvo", "C:\\Kelvo"},
        {"C:\\[UUS]\\Kelvo", "C:\\Kelvo"},
        {"C:\\Radio\\Log[2026]\\Kelvo", "C:\\Kelvo"},
        {"C:\\[a]\\one[b]two", "C:two"},
        {"D:\\Kelvo]", "D:"},
        {"C:\\Kelvo[open", "C:\\Kelvo[open"},
        {"c:]x", "c:x"},
        {"/home/yo2xyz/kelvo", "/home/yo2xyz/kelvo"},
        {"/home/[uus]/kelvo", "/kelvo"},
        {"", ""},
        {"]", ""},
    };
    for (const FolderRow& row : rows)
        EXPECT_EQ(runstate::appDirOf(row.program), row.databases) << row.program;
}

}  // namespace
