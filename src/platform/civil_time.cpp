#include "platform/civil_time.h"

#include <array>
#include <cmath>
#include <cstdio>

#include "base/number.h"
#include "base/runtime_error.h"
#include "base/text.h"

namespace platform {

namespace {

using std::chrono::days;
using std::chrono::floor;

struct Fields {
    int year = 0;
    unsigned month = 0;
    unsigned day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
};

Fields fieldsOf(LocalTime time)
{
    const auto midnight = floor<days>(time);
    const std::chrono::year_month_day date(midnight);
    const std::chrono::hh_mm_ss clock(time - midnight);
    return {int(date.year()),
            unsigned(date.month()),
            unsigned(date.day()),
            static_cast<int>(clock.hours().count()),
            static_cast<int>(clock.minutes().count()),
            static_cast<int>(clock.seconds().count())};
}

std::string twoDigits(int value)
{
    return (value < 10 ? "0" : "") + base::toText(value);
}

}  // namespace

LocalTime minusHours(LocalTime local, double hours)
{
    constexpr double hoursInTenThousandYears = 10000.0 * 366 * 24;
    if (std::abs(hours) > hoursInTenThousandYears)
        throw base::RuntimeError(base::overflow, "The time difference leads out of the calendar");
    const LocalTime result = local - std::chrono::seconds(std::llround(hours * 3600));
    const int year = fieldsOf(result).year;
    if (year < 100 || year > 9999)
        throw base::RuntimeError(base::overflow, "The time difference leads out of the calendar");
    return result;
}

std::string shortDate(LocalTime time)
{
    const Fields at = fieldsOf(time);
    return twoDigits(static_cast<int>(at.day)) + "." + twoDigits(static_cast<int>(at.month)) + "." +
           twoDigits(at.year % 100);
}

std::string longDate(LocalTime time)
{
    const Fields at = fieldsOf(time);
    std::array<char, 24> text{};
    std::snprintf(text.data(), text.size(), "%02u.%02u.%04d", at.day, at.month, at.year);
    return text.data();
}

std::string shortTime(LocalTime time)
{
    const Fields at = fieldsOf(time);
    return twoDigits(at.hour) + ":" + twoDigits(at.minute);
}

std::string longTime(LocalTime time)
{
    return shortTime(time) + ":" + twoDigits(fieldsOf(time).second);
}

std::optional<std::string> validTime(std::string_view text)
{
    constexpr std::array<int, 3> limits = {23, 59, 59};
    std::array<int, 3> values{};
    std::size_t part = 0;
    std::size_t digits = 0;
    for (const char character : base::trim(text)) {
        if (character == ':') {
            if (digits == 0 || ++part == limits.size()) return std::nullopt;
            digits = 0;
            continue;
        }
        if (character < '0' || character > '9' || ++digits > 2) return std::nullopt;
        values.at(part) = values.at(part) * 10 + (character - '0');
        if (values.at(part) > limits.at(part)) return std::nullopt;
    }
    if (part == 0 || digits == 0) return std::nullopt;
    return twoDigits(values[0]) + ":" + twoDigits(values[1]);
}

}  // namespace platform
