#include "script/value.h"

#include <array>
#include <cstdio>

#include "base/text.h"
#include "script/number_words.h"
#include "script/words.h"

namespace script {

namespace {

std::string sixDecimals(double number)
{
    // A double of any size fits: 309 digits in front of the point.
    std::array<char, 330> text{};
    std::snprintf(text.data(), text.size(), "%.6f", number);
    const std::string shownNumber = text.data();
    return shownNumber == "-0.000000" ? "0.000000" : shownNumber;
}

std::optional<bool> flagMeantBy(std::string_view word)
{
    if (word == "1" || base::equalIgnoringCase(word, "yes")) return true;
    if (word == "0" || base::equalIgnoringCase(word, "no")) return false;
    return std::nullopt;
}

std::string escaped(const std::string& value)
{
    std::string text;
    for (const char character : value) {
        if (character == '|' || character == '\\') text.push_back('\\');
        text.push_back(character);
    }
    return text;
}

}  // namespace

std::string shown(const Value& value)
{
    struct Visitor {
        std::string operator()(const std::string& text) const { return inQuotes(text); }
        std::string operator()(long number) const { return std::to_string(number); }
        std::string operator()(double number) const { return sixDecimals(number); }
        std::string operator()(bool flag) const { return flag ? "yes" : "no"; }
        std::string operator()(const screen::Colour& colour) const
        {
            return std::to_string(colour.red) + "," + std::to_string(colour.green) + "," + std::to_string(colour.blue);
        }
    };
    return std::visit(Visitor{}, value);
}

bool means(std::string_view word, const Value& value)
{
    struct Visitor {
        std::string_view word;
        bool operator()(const std::string& text) const { return word == text; }
        bool operator()(long number) const { return decimalNumber(word) == static_cast<double>(number); }
        bool operator()(double number) const
        {
            const std::optional<double> expected = decimalNumber(word);
            return expected && sixDecimals(*expected) == sixDecimals(number);
        }
        bool operator()(bool flag) const { return flagMeantBy(word) == flag; }
        bool operator()(const screen::Colour& value) const { return colour(word) == value; }
    };
    return std::visit(Visitor{word}, value);
}

std::string rowText(const std::vector<std::optional<std::string>>& values)
{
    std::string text;
    for (const std::optional<std::string>& value : values) {
        if (&value != values.data()) text += '|';
        text += value ? escaped(*value) : "\\N";
    }
    return text;
}

std::string rowText(const std::vector<std::string>& values)
{
    return rowText(std::vector<std::optional<std::string>>(values.begin(), values.end()));
}

}  // namespace script
