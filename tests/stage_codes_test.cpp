// Codes read back from the log, and what the contests make of them.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "band/stage.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"
#include "support/filled_log.h"

namespace {

using State = runstate::Modul1State;
using Text = std::string State::*;
using Caption = screen::Label screen::FrmQSOForm::*;

using LastCodes = test::FilledLog;

// ---- The last code of a table

struct LastCodeRow {
    const char* name;
    void (*read)();
    const char* table;
    Caption label;  ///< takes the code sent
    Text variable;
    const char* inOtherContests;  ///< what the variable gets; nullptr nothing
    const char* inTheChampionship;
};

const LastCodeRow lastCodeRows[] = {
    {"CitStart144", band::CitStart144, "Uus144a", &screen::FrmQSOForm::LblCod, nullptr, nullptr, nullptr},
    {"CitStart144a", band::CitStart144a, "Uus144a", nullptr, &State::Start144a, "011", "022"},
    {"CitStart144b", band::CitStart144b, "Uus144b", nullptr, &State::Start144b, "011", "022"},
    {"CitStart432a", band::CitStart432a, "Uus432a", &screen::FrmQSOForm::LblCod432, &State::Start432a, nullptr, "022"},
    {"CitStart432b", band::CitStart432b, "Uus432b", nullptr, &State::Start432b, "022", "022"},
    {"CitStart1296a", band::CitStart1296a, "Uus1296a", &screen::FrmQSOForm::LblCod1296, &State::Start1296a, nullptr,
     "022"},
    {"CitStart1296b", band::CitStart1296b, "Uus1296b", nullptr, &State::Start1296b, "022", "022"},
    {"CitStartGHz", band::CitStartGHz, "UusGHz", &screen::FrmQSOForm::LblCodGhz, nullptr, nullptr, nullptr},
};

const std::vector<Caption> codeLabels = {&screen::FrmQSOForm::LblCod, &screen::FrmQSOForm::LblCod432,
                                         &screen::FrmQSOForm::LblCod1296, &screen::FrmQSOForm::LblCodGhz};
const std::vector<Text> startCodes = {&State::Start144a, &State::Start144b,  &State::Start432a,
                                      &State::Start432b, &State::Start1296a, &State::Start1296b};

void forgetCodes()
{
    for (const Caption label : codeLabels)
        (FrmQSO.*label).Caption = "before";
    for (const Text code : startCodes)
        Modul1.*code = "before";
}

void expectCodes(const LastCodeRow& row, const char* labelText, const char* variableText)
{
    for (const Caption label : codeLabels)
        EXPECT_EQ((FrmQSO.*label).Caption, label == row.label ? labelText : "before") << (FrmQSO.*label).name;
    for (const Text code : startCodes)
        EXPECT_EQ(Modul1.*code, code == row.variable && variableText != nullptr ? variableText : "before");
}

TEST_F(LastCodes, GoWhereTheContestCountsFrom)
{
    for (const LastCodeRow& row : lastCodeRows) {
        add(row.table, "599 010", "599 020");
        add(row.table, "599 011", "59 022");
        for (const int id : {0, 1, 2, 3, 4, 5, 6, 8, 100, 101}) {
            SCOPED_TRACE(std::string(row.name) + " in contest " + std::to_string(id));
            contest(id);
            forgetCodes();
            row.read();
            expectCodes(row, "011", id == 0 ? row.inTheChampionship : row.inOtherContests);
        }
        empty(row.table);
    }
}

TEST_F(LastCodes, OfAnEmptyTableAreEmpty)
{
    for (const LastCodeRow& row : lastCodeRows)
        for (const int id : {0, 3}) {
            SCOPED_TRACE(std::string(row.name) + " in contest " + std::to_string(id));
            contest(id);
            forgetCodes();
            row.read();
            const char* inContest = id == 0 ? row.inTheChampionship : row.inOtherContests;
            expectCodes(row, "", inContest == nullptr ? nullptr : "");
        }
    EXPECT_TRUE(program.notices().empty()) << "an empty log is no trouble";
}

TEST_F(LastCodes, AreTheLastThreeCharacters)
{
    const struct {
        const char* sent;
        const char* code;
    } rows[] = {{"599 1234", "234"}, {"59 7", "9 7"}, {"12", "12"}, {"", ""}, {"599 01A", "01A"}, {"599 01ț", "01ț"}};
    for (const auto& row : rows) {
        add("Uus144a", row.sent, "599 001");
        band::CitStart144();
        EXPECT_EQ(FrmQSO.LblCod.Caption, row.code) << row.sent;
    }
}

TEST_F(LastCodes, ComeFromRowsWithATextForPoints)
{
    add("Uus144a", "599 007", "599 001");
    insert("Uus144a", "('YO3ABC', '', '', '599 008', '599 001', 'CW', '144', '', '0')");
    band::CitStart144();
    EXPECT_EQ(FrmQSO.LblCod.Caption, "008") << "a QSO without points counts";
    insert("Uus144a", "('YO4ABC', '', '', '599 009', '599 001', 'CW', '144', '', '')");
    insert("Uus144a", "('YO4ABC', '', '', '599 010', '599 001', 'CW', '144', '', NULL)");
    band::CitStart144();
    EXPECT_EQ(FrmQSO.LblCod.Caption, "008");
}

TEST_F(LastCodes, OfALogThatIsGoneAreEmpty)
{
    add("Uus144a", "599 007", "599 001");
    FrmQSO.Uus144a.DatabaseName = Modul1.AppDir + "\\nothing.mdb";
    band::CitStart144();
    EXPECT_EQ(FrmQSO.LblCod.Caption, "");
    EXPECT_FALSE(program.notices().empty()) << "the operator is told why";
}

// ---- One number over three bands

TEST_F(LastCodes, OfThreeBandsAreOneNumber)
{
    const struct {
        const char* on144;
        const char* on432;
        const char* on1296;
        const char* label;
        int greatest;
    } rows[] = {
        {"005", "009", "002", "9", 9}, {"010", "009", "002", "10", 10}, {"001", "002", "120", "120", 120},
        {"000", "000", "000", "0", 0}, {"12A", "011", "010", "12", 12},
    };
    contest(3);
    for (const auto& row : rows) {
        SCOPED_TRACE(row.label);
        add("Uus144a", std::string("599 ") + row.on144, "599 900");
        add("Uus432a", std::string("599 ") + row.on432, "599 900");
        add("Uus1296a", std::string("599 ") + row.on1296, "599 900");
        band::MaxConc3();
        EXPECT_EQ(FrmQSO.LblCod.Caption, row.label);
        EXPECT_EQ(FrmQSO.CodMax, row.greatest);
        EXPECT_EQ(FrmQSO.LblCod432.Caption, row.on432);
        EXPECT_EQ(FrmQSO.LblCod1296.Caption, row.on1296);
    }
}

TEST_F(LastCodes, OfThreeEmptyBandsAreZero)
{
    contest(3);
    FrmQSO.LblCod.Caption = "077";
    band::MaxConc3();
    EXPECT_EQ(FrmQSO.LblCod.Caption, "0");
    EXPECT_EQ(FrmQSO.LblCod432.Caption, "");
    EXPECT_EQ(FrmQSO.LblCod1296.Caption, "");
}

// ---- One number over two stages

TEST_F(LastCodes, OfTwoStagesAreOneNumber)
{
    const struct {
        const char* stageA;
        const char* stageB;
        const char* label;
        const char* next;
    } rows[] = {
        {"011", "014", "14", "015"}, {"014", "011", "14", "015"},   {"000", "000", "0", "001"},
        {"008", "000", "8", "009"},  {"000", "009", "9", "010"},    {"098", "001", "98", "099"},
        {"001", "099", "99", "100"}, {"999", "001", "999", "1000"}, {" -5", " -7", "-5", ""},
        {" -5", "003", "3", "004"},
    };
    for (const int id : {1, 4, 6})
        for (const auto& row : rows) {
            SCOPED_TRACE(std::string(row.stageA) + " and " + row.stageB + " in contest " + std::to_string(id));
            contest(id);
            add("Uus144a", std::string("599") + row.stageA, "599 900");
            add("Uus144b", std::string("599") + row.stageB, "599 900");
            band::MaxConcAB();
            EXPECT_EQ(FrmQSO.LblCod.Caption, row.label);
            EXPECT_EQ(FrmQSO.txtRSTE2.Text, row.next);
        }
}

TEST_F(LastCodes, OfTwoEmptyStagesStartWithTheFirst)
{
    contest(1);
    band::MaxConcAB();
    EXPECT_EQ(FrmQSO.LblCod.Caption, "0");
    EXPECT_EQ(FrmQSO.txtRSTE2.Text, "001");
    EXPECT_EQ(FrmQSO.CodMax, 0);
}

// ---- The championship goes on with the code received

struct ChampionshipBand {
    void (*goOn)();
    const char* tableA;
    const char* tableB;
};

const ChampionshipBand championshipBands[] = {
    {band::Dute144AB, "Uus144a", "Uus144b"},
    {band::Dute432AB, "Uus432a", "Uus432b"},
    {band::Dute1296AB, "Uus1296a", "Uus1296b"},
};

TEST_F(LastCodes, OfTheChampionshipAreThoseReceived)
{
    const struct {
        const char* stageA;
        const char* stageB;
        const char* code;
    } rows[] = {
        {"000", "000", "31"},  {"012", "000", "012"},   {"000", "017", "017"},   {"012", "017", "017"},
        {"017", "012", "012"}, {"012", " -5", nullptr}, {" -5", "000", nullptr}, {" -5", " -5", nullptr},
        {" -5", "017", "017"}, {"12A", "000", "12A"},
    };
    contest(0);
    Modul1.SerNrStart = 31;
    for (const ChampionshipBand& band : championshipBands)
        for (const auto& row : rows) {
            SCOPED_TRACE(std::string(band.tableA) + ": " + row.stageA + " and " + row.stageB);
            add(band.tableA, "599 500", std::string("599") + row.stageA);
            add(band.tableB, "599 600", std::string("599") + row.stageB);
            FrmQSO.LblCod.Caption = "before";
            FrmQSO.txtRSTE2.Text = "before";
            band.goOn();
            EXPECT_EQ(FrmQSO.LblCod.Caption, row.code == nullptr ? "before" : row.code);
            EXPECT_EQ(FrmQSO.txtRSTE2.Text, row.code == nullptr ? "before" : row.code);
        }
}

TEST_F(LastCodes, OfAnEmptyChampionshipAreTheStartNumber)
{
    contest(0);
    Modul1.SerNrStart = 31;
    for (const ChampionshipBand& band : championshipBands) {
        FrmQSO.LblCod.Caption = "before";
        band.goOn();
        EXPECT_EQ(FrmQSO.LblCod.Caption, "31") << band.tableA;
        EXPECT_EQ(FrmQSO.txtRSTE2.Text, "31") << band.tableA;
    }
}

TEST_F(LastCodes, OfAnotherBandAreNotLookedAt)
{
    contest(0);
    Modul1.SerNrStart = 31;
    add("Uus432a", "599 500", "599 044");
    band::Dute144AB();
    EXPECT_EQ(FrmQSO.LblCod.Caption, "31");
    band::Dute432AB();
    EXPECT_EQ(FrmQSO.LblCod.Caption, "044") << "all bands use the one label";
    EXPECT_EQ(FrmQSO.LblCod432.Caption, "500") << "the label of the band keeps the code sent";
}

}  // namespace
