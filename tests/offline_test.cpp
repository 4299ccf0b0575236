// Typing a paper log in: what the function keys leave of date and time, and what goes to the log.
#include "entry/offline.h"

#include <gtest/gtest.h>

#include <string>

#include "entry/commit.h"
#include "platform/keys.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"
#include "support/running_program.h"

namespace {

class PaperLog : public testing::Test {
 protected:
    void SetUp() override
    {
        Modul1.OfflineInput = 100;
        FrmQSO.TxtDate.Text = "15.11.26";
        FrmQSO.TxtUTC.Text = "18:34";
        Modul1.DateOff = "before";
        Modul1.TimeOff = "before";
        FrmQSO.Show();
    }

    test::RunningProgram program;
};

TEST(PaperDate, LosesItsDayInBothLengthsAndInNoOther)
{
    const struct {
        const char* date;
        const char* left;
    } rows[] = {{"15.11.26", ".11.26"},
                {"15.11.2026", ".11.2026"},
                {"29.02.26", ".02.26"},
                {"  15.11.26 ", ".11.26"},
                {"aaaaaaaa", "aaaaaa"},
                {"", ""},
                {" ", ""},
                {"1", "1"},
                {".11.26", ".11.26"},
                {"5.11.26", "5.11.26"},
                {"5.11.2026", "5.11.2026"},
                {"15.11.20261", "15.11.20261"}};
    for (const auto& row : rows)
        EXPECT_EQ(entry::dateWithoutDay(row.date), row.left) << row.date;
}

TEST(PaperTime, KeepsItsHourOrItsMinutes)
{
    const struct {
        const char* time;
        const char* hour;
        const char* minutes;
    } rows[] = {{"18:34", "18:", ":34"}, {"00:00", "00:", ":00"}, {" 18:34 ", "18:", ":34"}, {"18:", "18:", "18:"},
                {":34", ":34", ":34"},   {"1834", "183", "834"},  {"18", "18", "18"},        {"", "", ""},
                {" ", "", ""},           {"24:61", "24:", ":61"}};
    for (const auto& row : rows) {
        EXPECT_EQ(entry::hourOf(row.time), row.hour) << row.time;
        EXPECT_EQ(entry::minutesOf(row.time), row.minutes) << row.time;
    }
}

TEST(PaperDate, IsStoredInEightCharactersWhenItHasTen)
{
    const struct {
        const char* date;
        const char* stored;
    } rows[] = {{"15.11.26", "15.11.26"},
                {"15.11.2026", "15.11.26"},
                {"29.02.2028", "29.02.28"},
                {"29.02.2026", "29.02.26"},
                {"31.02.2026", "31.02.26"},
                {"5.11.2026", "5.11.2026"},
                {"15.11.20261", "15.11.20261"},
                {"", ""},
                {"1", "1"}};
    for (const auto& row : rows)
        EXPECT_EQ(entry::withShortYear(row.date), row.stored) << row.date;
}

TEST_F(PaperLog, F2LeavesTheDateWithoutItsDay)
{
    entry::reopenPaperTime(platform::keyF2);
    EXPECT_EQ(FrmQSO.TxtDate.Text.get(), ".11.26");
    EXPECT_EQ(FrmQSO.TxtDate.SelStart, 0U);
    EXPECT_EQ(Modul1.DateOff, ".11.26");
    EXPECT_EQ(FrmQSO.ActiveControl, &FrmQSO.TxtDate);
    EXPECT_EQ(Modul1.TimeOff, "before");
    EXPECT_EQ(FrmQSO.TxtUTC.Text.get(), "18:34");
}

TEST_F(PaperLog, F3LeavesTheHourWithTheCaretBehindIt)
{
    entry::reopenPaperTime(platform::keyF3);
    EXPECT_EQ(FrmQSO.TxtUTC.Text.get(), "18:");
    EXPECT_EQ(FrmQSO.TxtUTC.SelStart, 3U);
    EXPECT_EQ(Modul1.TimeOff, "18:");
    EXPECT_EQ(FrmQSO.ActiveControl, &FrmQSO.TxtUTC);
    EXPECT_EQ(Modul1.DateOff, "before");
    EXPECT_EQ(FrmQSO.TxtDate.Text.get(), "15.11.26");
}

TEST_F(PaperLog, F4LeavesTheMinutesWithTheCaretInFront)
{
    entry::reopenPaperTime(platform::keyF4);
    EXPECT_EQ(FrmQSO.TxtUTC.Text.get(), ":34");
    EXPECT_EQ(FrmQSO.TxtUTC.SelStart, 0U);
    EXPECT_EQ(Modul1.TimeOff, ":34");
    EXPECT_EQ(FrmQSO.ActiveControl, &FrmQSO.TxtUTC);
    EXPECT_EQ(Modul1.DateOff, "before");
}

TEST_F(PaperLog, NoOtherKeyReopensAnything)
{
    for (int key = 0; key < 256; ++key) {
        if (key >= platform::keyF2 && key <= platform::keyF4) continue;
        entry::reopenPaperTime(key);
        EXPECT_EQ(Modul1.DateOff + Modul1.TimeOff, "beforebefore") << key;
        EXPECT_EQ(FrmQSO.TxtDate.Text.get() + FrmQSO.TxtUTC.Text.get(), "15.11.2618:34") << key;
    }
}

TEST_F(PaperLog, InLiveInputNoKeyReopensAnything)
{
    for (const std::int16_t mode : {std::int16_t{0}, std::int16_t{10}}) {
        Modul1.OfflineInput = mode;
        for (const int key : {platform::keyF2, platform::keyF3, platform::keyF4})
            entry::reopenPaperTime(key);
        EXPECT_EQ(Modul1.DateOff + Modul1.TimeOff, "beforebefore") << mode;
        EXPECT_FALSE(entry::paperLog()) << mode;
    }
}

TEST_F(PaperLog, ALineBeginsWithDateAndHour)
{
    const struct {
        const char* time;
        const char* hour;
    } rows[] = {{"18:34", "18:"}, {"18:", "18:"}, {"", ""}, {"7:5", "7:5"}, {"1834", "183"}, {" 18:34", "18"}};
    for (const auto& row : rows) {
        Modul1.DateOff = "15.11.2026";
        Modul1.TimeOff = row.time;
        entry::showPaperDateAndHour();
        EXPECT_EQ(FrmQSO.TxtDate.Text.get(), "15.11.2026") << row.time;
        EXPECT_EQ(FrmQSO.TxtUTC.Text.get(), row.hour) << row.time;
        EXPECT_EQ(Modul1.TimeOff, row.hour) << row.time;
    }
}

TEST_F(PaperLog, TheFieldsAreTheOperators)
{
    entry::switchTimeFields();
    EXPECT_EQ(FrmQSO.TxtUTC.BackColor, screen::yellow);
    EXPECT_EQ(FrmQSO.TxtDate.BackColor, screen::yellow);
    FrmQSO.TxtUTC.Enabled = false;
    FrmQSO.TxtDate.Enabled = false;
    entry::switchTimeFields();
    EXPECT_FALSE(FrmQSO.TxtUTC.Enabled);
    EXPECT_FALSE(FrmQSO.TxtDate.Enabled);
    Modul1.OfflineInput = 10;
    entry::switchTimeFields();
    EXPECT_EQ(FrmQSO.TxtUTC.BackColor, screen::grey);
    EXPECT_EQ(FrmQSO.TxtDate.BackColor, screen::grey);
    EXPECT_TRUE(FrmQSO.TxtUTC.Enabled);
    EXPECT_TRUE(FrmQSO.TxtDate.Enabled);
}

TEST_F(PaperLog, TheLogGetsTheTimeInItsFormWhereItIsOne)
{
    const struct {
        const char* typed;
        const char* logged;
    } rows[] = {{"18:34", "18:34"},    {"7:5", "07:05"}, {"00:0", "00:00"},
                {"18:34:59", "18:34"}, {"18:", "18:"},   {"24:00", "24:00"},
                {"18:60", "18:60"},    {"1834", "1834"}, {"", ""}};
    Modul1.BandCur = 0;  // no table: nothing is written
    for (const auto& row : rows) {
        Modul1.DateOff = "15.11.2026";
        Modul1.TimeOff = row.typed;
        entry::ScrieTab();
        EXPECT_EQ(Modul1.TimeQso, row.logged) << row.typed;
        EXPECT_EQ(Modul1.DateQso, "15.11.2026") << row.typed;
        EXPECT_EQ(Modul1.TimeOff, row.typed) << row.typed;
    }
}

}  // namespace
