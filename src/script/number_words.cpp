#include "script/number_words.h"

#include <array>
#include <charconv>
#include <cmath>
#include <vector>

namespace script {

namespace {

constexpr std::size_t mostDigits = 9;

bool isDigits(std::string_view text)
{
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

std::vector<std::string_view> partsAt(std::string_view text, char separator)
{
    std::vector<std::string_view> parts;
    for (;;) {
        const std::size_t end = text.find(separator);
        parts.push_back(text.substr(0, end));
        if (end == std::string_view::npos) return parts;
        text.remove_prefix(end + 1);
    }
}

/// `parts` of exactly these numbers of digits, each as a number.
template <std::size_t count>
std::optional<std::array<int, count>> fixedNumbers(const std::vector<std::string_view>& parts,
                                                   const std::array<std::size_t, count>& digits)
{
    if (parts.size() != count) return std::nullopt;
    std::array<int, count> numbers{};
    for (std::size_t i = 0; i < count; ++i) {
        if (parts[i].size() != digits.at(i) || !isDigits(parts[i])) return std::nullopt;
        std::from_chars(parts[i].data(), parts[i].data() + parts[i].size(), numbers.at(i));
    }
    return numbers;
}

}  // namespace

std::optional<long> wholeNumber(std::string_view text)
{
    const std::string_view digits = text.substr(text.starts_with('-') ? 1 : 0);
    if (!isDigits(digits) || digits.size() > mostDigits) return std::nullopt;
    long number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

std::optional<double> decimalNumber(std::string_view text)
{
    if (text.find_first_not_of("0123456789.-") != std::string_view::npos) return std::nullopt;
    double number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    if (result.ec != std::errc() || result.ptr != text.data() + text.size()) return std::nullopt;
    return number;
}

std::optional<std::chrono::nanoseconds> seconds(std::string_view text)
{
    constexpr double tenYears = 10.0 * 366 * 86400;
    const std::optional<double> number = decimalNumber(text);
    if (!number || *number < 0 || *number > tenYears) return std::nullopt;
    return std::chrono::nanoseconds(std::llround(*number * 1e9));
}

std::optional<platform::LocalTime> calendarDay(std::string_view text)
{
    const auto numbers = fixedNumbers<3>(partsAt(text, '-'), {4, 2, 2});
    if (!numbers) return std::nullopt;
    const auto [year, month, day] = *numbers;
    const std::chrono::year_month_day date{std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
                                           std::chrono::day(static_cast<unsigned>(day))};
    if (year < 100 || !date.ok()) return std::nullopt;
    return std::chrono::local_days(date);
}

std::optional<std::chrono::seconds> timeOfDay(std::string_view text)
{
    const auto numbers = fixedNumbers<3>(partsAt(text, ':'), {2, 2, 2});
    if (!numbers) return std::nullopt;
    const auto [hour, minute, second] = *numbers;
    if (hour > 23 || minute > 59 || second > 59) return std::nullopt;
    return std::chrono::hours(hour) + std::chrono::minutes(minute) + std::chrono::seconds(second);
}

std::optional<screen::Colour> colour(std::string_view text)
{
    const std::vector<std::string_view> parts = partsAt(text, ',');
    std::array<std::uint8_t, 3> values{};
    if (parts.size() != values.size()) return std::nullopt;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const std::optional<long> number = wholeNumber(parts[i]);
        if (!number || *number < 0 || *number > 255) return std::nullopt;
        values.at(i) = static_cast<std::uint8_t>(*number);
    }
    return screen::Colour{values[0], values[1], values[2]};
}

}  // namespace script
