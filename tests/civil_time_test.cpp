// UTC from local time, the text forms of date and time, and what counts as a time.
#include "platform/civil_time.h"

#include <gtest/gtest.h>

#include "base/runtime_error.h"

namespace {

using namespace std::chrono_literals;
using platform::LocalTime;

LocalTime at(int year, unsigned month, unsigned day, std::chrono::seconds clock)
{
    const std::chrono::year_month_day date{std::chrono::year(year), std::chrono::month(month), std::chrono::day(day)};
    return LocalTime(std::chrono::local_days(date)) + clock;
}

TEST(Utc, IsLocalTimeMinusTheDifferenceInWholeSeconds)
{
    const LocalTime noon = at(2026, 11, 15, 12h + 34min);
    EXPECT_EQ(platform::minusHours(noon, 0), noon);
    EXPECT_EQ(platform::minusHours(noon, 2), noon - 2h);
    EXPECT_EQ(platform::minusHours(noon, -13), noon + 13h);
    EXPECT_EQ(platform::minusHours(noon, 2.5), noon - 150min);
    EXPECT_EQ(platform::shortDate(platform::minusHours(at(2026, 1, 1, 1h), 2)), "31.12.25") << "over midnight and year";
}

TEST(Utc, RefusesADifferenceThatLeadsOutOfTheCalendar)
{
    for (const double hours : {1e9, -1e9, 1e300}) {
        try {
            (void)platform::minusHours(at(2026, 11, 15, 0s), hours);
            FAIL() << hours;
        } catch (const base::RuntimeError& error) {
            EXPECT_EQ(error.number(), base::overflow);
        }
    }
}

TEST(DateAndTime, HaveTheirTextForms)
{
    const LocalTime time = at(2026, 2, 3, 4h + 5min + 6s);
    EXPECT_EQ(platform::shortDate(time), "03.02.26");
    EXPECT_EQ(platform::longDate(time), "03.02.2026");
    EXPECT_EQ(platform::shortTime(time), "04:05");
    EXPECT_EQ(platform::longTime(time), "04:05:06");
}

TEST(ValidTime, TakesATimeAndGivesItsShortForm)
{
    const struct {
        const char* text;
        const char* time;
    } good[] = {{"12:34", "12:34"}, {" 9:5 ", "09:05"}, {"00:00", "00:00"}, {"23:59", "23:59"}, {"12:34:56", "12:34"}};
    for (const auto& row : good)
        EXPECT_EQ(platform::validTime(row.text), row.time) << row.text;
    for (const char* text : {"", " ", "12", "12:", ":34", "24:00", "12:60", "1234", "12.34", "a:b", "123:4", "12:34:60",
                             "12:34:56:7", "-1:00"})
        EXPECT_FALSE(platform::validTime(text)) << text;
}

}  // namespace
