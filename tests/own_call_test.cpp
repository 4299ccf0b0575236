// The own call as file names take it.
#include "review/own_call.h"

#include <gtest/gtest.h>

#include "runstate/modul1.h"

namespace {

struct CallRow {
    const char* call;
    const char* reduced;
};

const CallRow callRows[] = {
    // Nothing around it.
    {"YO9XYZ", "YO9XYZ"},
    {"", ""},
    {"   ", ""},
    {"  YO9XYZ ", "YO9XYZ"},
    {"yo9xyz", "yo9xyz"},
    // Portable, in either case of the letter.
    {"YO9XYZ/P", "YO9XYZ"},
    {"YO9XYZ/p", "YO9XYZ"},
    {" YO9XYZ/P ", "YO9XYZ"},
    {"/P", ""},
    // Any suffix of one letter, and one more behind portable.
    {"YO9XYZ/M", "YO9XYZ"},
    {"YO9XYZ/m", "YO9XYZ"},
    {"YO9XYZ/4", "YO9XYZ"},
    {"YO9XYZ/Ş", "YO9XYZ"},
    {"YO9XYZ/M/P", "YO9XYZ"},
    {"YO9XYZ/P/P", "YO9XYZ"},
    {"YO9XYZ/P/p", "YO9XYZ"},
    {"YO9XYZ/p/P", "YO9XYZ"},
    {"YO9XYZ/P/M", "P"},
    // Maritime mobile and low power, in capitals only.
    {"YO9XYZ/MM", "YO9XYZ"},
    {"YO9XYZ/QRP", "YO9XYZ"},
    {"YO9XYZ/MM/P", "YO9XYZ"},
    {"YO9XYZ/QRP/P", "YO9XYZ"},
    {"YO9XYZ/QRP/MM", "YO9XYZ"},
    {"YO9XYZ/mm", "mm"},
    {"YO9XYZ/qrp", "qrp"},
    {"YO9XYZ/AM", "AM"},
    {"YO9XYZ/MM/QRP", "MM"},
    {"/MM", ""},
    {"/QRP", ""},
    // What is left of the first slash goes.
    {"YO/DL1ABC", "DL1ABC"},
    {"YO/DL1ABC/P", "DL1ABC"},
    {"YO/DL1ABC/M/P", "DL1ABC"},
    {"YO/DL1ABC/MM", "DL1ABC"},
    {"YO/DL1ABC/QRP", "DL1ABC"},
    {"YO9XYZ/P/QRP", "P"},
    {"YO9XYZ/LX1", "LX1"},
    {"A/BC/DE", "BC/DE"},
    {"YO9XYZ/", ""},
    {"/YO9XYZ", "YO9XYZ"},
    {"/", ""},
    // From 20 characters on the last slash wins.
    {"AB/CDEF/GHIJKLMNOPQ", "CDEF/GHIJKLMNOPQ"},
    {"AB/CDEF/GHIJKLMNOPQR", "GHIJKLMNOPQR"},
    {"AB/CDEF/GHIJKLMNOPQRSTU", "GHIJKLMNOPQRSTU"},
    {"AB/CDEF/GHIJKLMNOPQR/P", "GHIJKLMNOPQR"},
    {"AB/CDEF/GHIJKLMNOPQ/QRP", "CDEF/GHIJKLMNOPQ"},
    {"ABCDEFGHIJKLMNOPQRSTUV", "ABCDEFGHIJKLMNOPQRSTUV"},
};

TEST(OwnCall, LosesWhatStandsAroundIt)
{
    for (const CallRow& row : callRows)
        EXPECT_EQ(review::reducedCall(row.call), row.reduced) << '"' << row.call << '"';
}

TEST(OwnCall, StaysReduced)
{
    Modul1 = {};
    Modul1.MyCall = "YO/DL1ABC/P";
    review::ModifIndic();
    EXPECT_EQ(Modul1.MyCall, "DL1ABC");
    review::ModifIndic();
    EXPECT_EQ(Modul1.MyCall, "DL1ABC");
}

}  // namespace
