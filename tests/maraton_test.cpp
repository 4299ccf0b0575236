// The Maraton contest: one log of all bands, what counts as a duplicate in it, and whose name is known.
#include "band/maraton.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/runtime_error.h"
#include "entry/commit.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"
#include "support/maraton_log.h"

namespace {

class Maraton : public test::MaratonLog {};

/// A QSO on the screen as the operator has typed it.
void fillScreen()
{
    Modul1.IndicLog = " yo5abc ";
    Modul1.DateQso = "15.11.26";
    Modul1.TimeQso = "12:34";
    Modul1.ModeCur = "CW";
    Modul1.PctCur = "163";
    Modul1.DbLog = storage::OpenDatabase(storage::logDatabasePath());
    FrmQSO.TxtRSTE1.Text = " 599 ";
    FrmQSO.txtRSTE2.Text = " 012";
    FrmQSO.TxtRSTR1.Text = "579 ";
    FrmQSO.TxtRSTR2.Text = " 007 ";
    FrmQSO.TxtRSTr3.Text = " KN16AA ";
    FrmQSO.TxtYourName.Text = "  DAN POP ";
    FrmQSO.LblQSO.Caption = "1";
}

TEST_F(Maraton, StoresTwelveColumns)
{
    for (const int band : {144, 432, 1296}) {
        fillScreen();
        Modul1.BandCur = band;
        band::ScrieTabYO2();
        const std::vector<std::string> expected = {
            "YO5ABC", "15.11.26", "12:34", "599 012", "579 007", "CW", std::to_string(band),
            "KN16AA", "DAN POP",  "163",   "KN05OS",  "ION"};
        EXPECT_EQ(logged().back(), expected);
        EXPECT_EQ(Modul1.BandYO, std::to_string(band));
        EXPECT_EQ(currentCall(), "YO5ABC");
        EXPECT_EQ(shownCalls().size(), 1U) << "one band in view";
    }
    EXPECT_EQ(logged().size(), 3U);
}

TEST_F(Maraton, StoresDatesInEightCharacters)
{
    struct DateRow {
        const char* date;
        const char* stored;
    };
    constexpr DateRow rows[] = {{"15.11.26", "15.11.26"},
                                {"15.11.2026", "15.11.26"},
                                {" 15.11.2026 ", "15.11.26"},
                                {"5.11.2026", "5.11.2026"},
                                {"", ""},
                                {"01.02.1999", "01.02.99"}};
    Modul1.BandCur = 144;
    for (const DateRow& row : rows) {
        fillScreen();
        Modul1.DateQso = row.date;
        band::ScrieTabYO2();
        EXPECT_EQ(logged().back().at(1), row.stored) << row.date;
        EXPECT_EQ(entry::withShortYear(row.date), row.stored) << row.date;
    }
}

TEST_F(Maraton, AddsThePointsToTheScoreOfTheBandInHand)
{
    fillScreen();
    Modul1.BandCur = 432;
    FrmQSO.LblPkt.Caption = "1000";
    FrmQSO.LblQSO.Caption = "9";
    band::ScrieTabYO2();
    EXPECT_EQ(FrmQSO.LblPkt.Caption, "1163");
    EXPECT_EQ(Modul1.PctGHz, 1163);
    EXPECT_EQ(Modul1.QsoGHz, 9);
    EXPECT_EQ(Modul1.PctYO432, 0) << "counted anew when a band is chosen";
    Modul1.PctCur = "";
    band::ScrieTabYO2();
    EXPECT_EQ(FrmQSO.LblPkt.Caption, "1163");
}

TEST_F(Maraton, StoresNothingWithAQuoteInAName)
{
    fillScreen();
    Modul1.BandCur = 144;
    FrmQSO.TxtYourName.Text = "D'ARC";
    EXPECT_THROW(band::ScrieTabYO2(), base::RuntimeError);
    EXPECT_TRUE(logged().empty());
}

struct DuplicateRow {
    const char* call;
    const char* band;
    const char* day;
    bool duplicate;
};

constexpr DuplicateRow duplicateRows[] = {
    {"YO5ABC", "144", "15.11.26", true},    {"yo5abc", "144", "15.11.26", true},
    {"  YO5ABC ", "144", "15.11.26", true}, {"YO5ABC", "432", "15.11.26", false},
    {"YO5ABC", "1296", "15.11.26", false},  {"YO5ABC", "144", "16.11.26", false},
    {"YO5ABC", "144", "15.12.26", false},   {"YO5ABC", "144", "15.11.27", false},
    {"YO5AB", "144", "15.11.26", false},    {"YO5ABC/P", "144", "15.11.26", false},
    {"YO5ABCD", "144", "15.11.26", false},  {"YO2XYZ", "144", "15.11.26", false},
    {"YO5ABC", "144", "15.11.2026", true},
};

TEST_F(Maraton, ADuplicateIsTheSameCallOnTheSameBandAndDay)
{
    add("'YO5ABC'", "'15.11.26'", "'144'", "'DAN'", "'100'", "'SSB'");
    for (const char* mode : {"CW", "SSB", "Fm"})
        for (const DuplicateRow& row : duplicateRows) {
            SCOPED_TRACE(std::string(row.call) + " on " + row.band + ", " + row.day + " in " + mode);
            Modul1.ModeCur = mode;
            Modul1.Indic = row.call;
            Modul1.BandYO = row.band;
            Modul1.DateQso = row.day;
            FrmQSO.txtIndic.BackColor = screen::yellow;
            FrmQSO.DupLock = 0;
            FrmQSO.CmdEnterCall.Enabled = row.duplicate;
            band::IndicInfoDublYO2();
            EXPECT_EQ(FrmQSO.txtIndic.BackColor, row.duplicate ? screen::red : screen::green);
            EXPECT_EQ(FrmQSO.CmdEnterCall.Enabled, !row.duplicate);
            EXPECT_EQ(FrmQSO.DupLock, row.duplicate ? 10 : 0);
            EXPECT_FALSE(FrmQSO.Frame4.Visible);
        }
}

TEST_F(Maraton, ADuplicateOnPaperIsOneOfTheDayThatIsTyped)
{
    add("'YO5ABC'", "'15.11.26'", "'144'", "'DAN'");
    Modul1.OfflineInput = 100;
    Modul1.BandYO = "144";
    Modul1.DateQso = "01.01.26";
    for (const char* day : {"15.11.26", "15.11.2026", " 15.11.2026"}) {
        Modul1.Indic = "YO5ABC";
        Modul1.DateOff = day;
        FrmQSO.txtIndic.BackColor = screen::yellow;
        band::IndicInfoDublYO2();
        EXPECT_EQ(FrmQSO.txtIndic.BackColor, screen::red) << day;
        EXPECT_EQ(Modul1.DateOff, day);
    }
    Modul1.DateOff = "16.11.2026";
    FrmQSO.DupLock = 0;
    band::IndicInfoDublYO2();
    EXPECT_EQ(FrmQSO.txtIndic.BackColor, screen::green);
}

TEST_F(Maraton, GivesNoVerdictOnNoCall)
{
    for (const char* call : {"", "   "}) {
        Modul1.Indic = call;
        FrmQSO.txtIndic.BackColor = screen::yellow;
        band::IndicInfoDublYO2();
        EXPECT_EQ(FrmQSO.txtIndic.BackColor, screen::yellow);
    }
}

TEST_F(Maraton, ACleanCallDoesNotOpenTheButtonWhileItIsLocked)
{
    Modul1.Indic = "YO5ABC";
    Modul1.BandYO = "144";
    FrmQSO.DupLock = 10;
    FrmQSO.CmdEnterCall.Enabled = false;
    band::IndicInfoDublYO2();
    EXPECT_EQ(FrmQSO.txtIndic.BackColor, screen::green);
    EXPECT_FALSE(FrmQSO.CmdEnterCall.Enabled);
}

struct NameRow {
    std::vector<const char*> names;  ///< as logged, the oldest first
    const char* shown;
    const char* variable;
};

const NameRow nameRows[] = {
    {{"'DAN'"}, "DAN", "DAN"},    {{"'DAN'", "'ION'"}, "ION", "ION"}, {{"'DAN'", "'I'"}, "DAN", "I"},
    {{"'DAN'", "''"}, "DAN", ""}, {{"'DAN'", "NULL"}, "DAN", ""},     {{"'D'"}, "before", "D"},
    {{"''"}, "before", ""},       {{"' DAN '"}, "DAN", " DAN "},      {{"'  '"}, "", "  "},
    {{"'ȘT'"}, "ȘT", "ȘT"},       {{"'Ș'"}, "before", "Ș"},
};

TEST_F(Maraton, LearnsTheNameFromTheNewestQsoThatHasOne)
{
    constexpr const char* bands[] = {"'1296'", "'432'"};
    for (const NameRow& row : nameRows) {
        program.changeLog("DELETE * FROM UusLGYO2");
        std::size_t number = 0;
        for (const char* name : row.names)
            add("'YO5ABC'", "'14.11.26'", bands[number++], name);
        add("'YO5ABD'", "'14.11.26'", "'144'", "'WRONG'");
        Modul1.Indic = "YO5ABC";
        Modul1.BandYO = "144";
        Modul1.DateQso = "15.11.26";
        FrmQSO.TxtYourName.Text = "before";
        band::IndicInfoDublYO2();
        EXPECT_EQ(FrmQSO.TxtYourName.Text, row.shown) << row.names.front();
        EXPECT_EQ(Modul1.YourName, row.variable) << row.names.front();
        EXPECT_EQ(shownCalls().size(), row.names.size()) << "the grid shows the QSOs with the station";
    }
}

TEST_F(Maraton, LearnsNoNameForADuplicate)
{
    add("'YO5ABC'", "'15.11.26'", "'144'", "'DAN'");
    Modul1.Indic = "YO5ABC";
    Modul1.BandYO = "144";
    Modul1.DateQso = "15.11.26";
    FrmQSO.TxtYourName.Text = "";
    band::IndicInfoDublYO2();
    EXPECT_EQ(FrmQSO.TxtYourName.Text, "");
}

TEST_F(Maraton, KeepsTheNameWhereTheStationIsNew)
{
    Modul1.Indic = "YO5ABC";
    Modul1.BandYO = "144";
    Modul1.YourName = "before";
    FrmQSO.TxtYourName.Text = "DAN";
    band::IndicInfoDublYO2();
    EXPECT_EQ(FrmQSO.TxtYourName.Text, "DAN");
    EXPECT_EQ(Modul1.YourName, "before");
}

TEST_F(Maraton, ShowsTheLogOfOneBandInTheOrderOfEntry)
{
    add("'YO2ZZZ'", "'15.11.26'", "'144'", "'DAN'");
    add("'YO2BBB'", "'15.11.26'", "'432'", "'DAN'");
    add("'YO2AAA'", "'14.11.26'", "'144'", "'DAN'");
    Modul1.BandYO = "144";
    band::ViewLogGen();
    EXPECT_EQ(shownCalls(), (std::vector<std::string>{"YO2ZZZ", "YO2AAA"}));
    EXPECT_EQ(currentCall(), "YO2AAA") << "the newest QSO";
    EXPECT_TRUE(FrmQSO.DBGrid9.Visible);
    Modul1.BandYO = "1296";
    band::ViewLogGen();
    EXPECT_TRUE(shownCalls().empty());
    EXPECT_TRUE(program.notices().empty());
}

}  // namespace
