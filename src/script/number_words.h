// Words that are numbers, dates or colours.
#pragma once

#include <chrono>
#include <optional>
#include <string_view>

#include "platform/machine.h"
#include "screen/colour.h"

namespace script {

/// A whole number, "-" in front if it is negative, of at most nine digits; nothing for any other text.
std::optional<long> wholeNumber(std::string_view text);

/// A number with decimals or without; nothing for any other text.
std::optional<double> decimalNumber(std::string_view text);

/// Seconds, 0 or more, at most ten years, to the nanosecond.
std::optional<std::chrono::nanoseconds> seconds(std::string_view text);

/// Midnight of a day as "2026-11-15", in the years 100 to 9999.
std::optional<platform::LocalTime> calendarDay(std::string_view text);

/// Time of day as "12:34:56".
std::optional<std::chrono::seconds> timeOfDay(std::string_view text);

/// A colour as "255,0,0".
std::optional<screen::Colour> colour(std::string_view text);

}  // namespace script
