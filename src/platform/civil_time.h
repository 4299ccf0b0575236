// Calendar arithmetic and the text forms of date and time.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/machine.h"

namespace platform {

/// `local` minus `hours` (decimal hours), in whole seconds. Error 6 when the result is not within the years 100 to
/// 9999.
LocalTime minusHours(LocalTime local, double hours);

/// Text form "dd.mm.yy".
std::string shortDate(LocalTime time);

/// Text form "dd.mm.yyyy", the system's own.
std::string longDate(LocalTime time);

/// Text form "hh:mm".
std::string shortTime(LocalTime time);

/// Text form "hh:mm:ss".
std::string longTime(LocalTime time);

/// The time of day that a text means, in the form "hh:mm", or nothing when it is no time. Hours 0 to 23, minutes and,
/// if there, seconds 0 to 59, each of one or two digits, with ":" between and blanks around.
std::optional<std::string> validTime(std::string_view text);

}  // namespace platform
