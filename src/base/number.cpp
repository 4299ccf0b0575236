#include "base/number.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "base/runtime_error.h"
#include "base/text.h"

namespace base {

namespace {

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

template <typename Integer>
bool fits(double whole)
{
    return whole >= static_cast<double>(std::numeric_limits<Integer>::min()) &&
           whole <= static_cast<double>(std::numeric_limits<Integer>::max());
}

template <typename Integer>
Integer rounded(double value, const char* what)
{
    const double whole = roundHalfEven(value);
    if (!fits<Integer>(whole)) throw RuntimeError(overflow, std::string("A number does not fit ") + what);
    return static_cast<Integer>(whole);
}

/// A text for a sentence that the operator reads: of a very long one only its beginning.
std::string quoted(std::string_view text)
{
    constexpr std::size_t longest = 40;
    const std::string shown = length(text) > longest ? left(text, longest) + "..." : std::string(text);
    return "\"" + shown + "\"";
}

}  // namespace

double numericValue(std::string_view text)
{
    std::size_t at = text.find_first_not_of(' ');
    if (at == std::string_view::npos) return 0;
    const bool negative = text[at] == '-';
    if (negative || text[at] == '+') ++at;

    std::size_t end = at;
    bool point = false;
    while (end < text.size() && (isDigit(text[end]) || (text[end] == '.' && !point))) {
        point = point || text[end] == '.';
        ++end;
    }
    double value = 0;
    const auto result = std::from_chars(text.data() + at, text.data() + end, value, std::chars_format::fixed);
    // Only digits were handed over, so the one way to fail with digits present is a number beyond all doubles.
    if (result.ec == std::errc::result_out_of_range) value = std::numeric_limits<double>::max();
    return negative ? -value : value;
}

std::int16_t toInt16(std::string_view text)
{
    const std::string bare = trim(text);
    std::size_t at = 0;
    if (!bare.empty() && (bare[0] == '-' || bare[0] == '+')) at = 1;
    const bool number = at < bare.size() && bare.find_first_not_of("0123456789", at) == std::string::npos;
    if (!number) throw RuntimeError(notANumber, quoted(bare) + " is not a number");
    const double value = numericValue(bare);
    if (!fits<std::int16_t>(value)) throw RuntimeError(overflow, quoted(bare) + " is not between -32768 and 32767");
    return static_cast<std::int16_t>(value);
}

std::int16_t toInt16(long long value)
{
    if (value < std::numeric_limits<std::int16_t>::min() || value > std::numeric_limits<std::int16_t>::max())
        throw RuntimeError(overflow, toText(value) + " does not fit a count of 16 bits");
    return static_cast<std::int16_t>(value);
}

std::int16_t roundToInt16(double value)
{
    return rounded<std::int16_t>(value, "16 bits");
}

std::int32_t roundToInt32(double value)
{
    return rounded<std::int32_t>(value, "32 bits");
}

double roundHalfEven(double value)
{
    // The default rounding mode of the floating-point environment, which this program never changes.
    return std::nearbyint(value);
}

std::string toText(long long value)
{
    return std::to_string(value);
}

std::string paddedCode(long long value)
{
    if (value < 10) return "00" + toText(value);
    if (value < 100) return "0" + toText(value);
    return toText(value);
}

}  // namespace base
