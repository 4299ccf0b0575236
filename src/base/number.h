// Numbers and their text forms, and arithmetic that is checked against 16 and 32 bits.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace base {

/// The numeric value of a text: leading blanks skipped, then sign, digits and decimal point, up to the first other
/// character. Nothing there counts 0. Never fails.
double numericValue(std::string_view text);

/// A text as a 16-bit integer: blanks, a sign and digits only, else error 13; outside 16 bits error 6.
std::int16_t toInt16(std::string_view text);

/// A whole number checked against 16 bits (error 6).
std::int16_t toInt16(long long value);

/// A number rounded to the nearest whole number, ties to even, and checked against 16 bits (error 6).
std::int16_t roundToInt16(double value);

/// The same against 32 bits (error 6).
std::int32_t roundToInt32(double value);

/// Nearest whole number, ties to even.
double roundHalfEven(double value);

/// Decimal text of a whole number, without a leading blank.
std::string toText(long long value);

/// A code with at least three digits: numbers below 10 get "00" in front, 10 to 99 get "0", from 100 on nothing.
std::string paddedCode(long long value);

}  // namespace base
