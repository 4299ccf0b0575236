#include "base/text.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "base/runtime_error.h"

namespace base {

namespace {

bool isContinuation(unsigned char byte)
{
    return (byte & 0xC0U) == 0x80U;
}

/// Not the same byte in every code page.
bool isSpecial(char byte)
{
    return static_cast<unsigned char>(byte) >= 0x80;
}

/// Bytes of the sequence that begins at `text[0]`: 1 to 4. Broken sequences are taken one byte at a time.
std::size_t sequenceLength(std::string_view text)
{
    const auto first = static_cast<unsigned char>(text[0]);
    if (!isSpecial(text[0])) return 1;
    std::size_t count = 1;
    if (first >= 0xC2 && first <= 0xDF) count = 2;
    if (first >= 0xE0 && first <= 0xEF) count = 3;
    if (first >= 0xF0 && first <= 0xF4) count = 4;
    if (count > text.size()) return 1;
    for (std::size_t i = 1; i < count; ++i)
        if (!isContinuation(static_cast<unsigned char>(text[i]))) return 1;
    return count;
}

/// Byte offset behind the first `count` characters.
std::size_t offsetOf(std::string_view text, std::size_t count)
{
    std::size_t offset = 0;
    while (count > 0 && offset < text.size()) {
        offset += sequenceLength(text.substr(offset));
        --count;
    }
    return offset;
}

char32_t decode(std::string_view sequence)
{
    const auto byte = [&](std::size_t i) { return static_cast<char32_t>(static_cast<unsigned char>(sequence[i])); };
    switch (sequence.size()) {
        case 2:
            return ((byte(0) & 0x1FU) << 6U) | (byte(1) & 0x3FU);
        case 3:
            return ((byte(0) & 0x0FU) << 12U) | ((byte(1) & 0x3FU) << 6U) | (byte(2) & 0x3FU);
        case 4:
            return ((byte(0) & 0x07U) << 18U) | ((byte(1) & 0x3FU) << 12U) | ((byte(2) & 0x3FU) << 6U) |
                   (byte(3) & 0x3FU);
        default:
            return byte(0);
    }
}

void append(std::string& text, char32_t character)
{
    const auto put = [&](char32_t bits) { text.push_back(static_cast<char>(bits)); };
    if (character < 0x80) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0U | (character >> 6U));
        put(0x80U | (character & 0x3FU));
    } else if (character < 0x10000) {
        put(0xE0U | (character >> 12U));
        put(0x80U | ((character >> 6U) & 0x3FU));
        put(0x80U | (character & 0x3FU));
    } else {
        put(0xF0U | (character >> 18U));
        put(0x80U | ((character >> 12U) & 0x3FU));
        put(0x80U | ((character >> 6U) & 0x3FU));
        put(0x80U | (character & 0x3FU));
    }
}

/// Windows-1250, bytes 0x80 to 0xFF. The undefined bytes (81, 83, 88, 90, 98) stand for themselves.
constexpr std::array<char32_t, 128> windows1250 = {
    0x20AC, 0x0081, 0x201A, 0x0083, 0x201E, 0x2026, 0x2020, 0x2021, 0x0088, 0x2030, 0x0160, 0x2039, 0x015A,
    0x0164, 0x017D, 0x0179, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x0098, 0x2122,
    0x0161, 0x203A, 0x015B, 0x0165, 0x017E, 0x017A, 0x00A0, 0x02C7, 0x02D8, 0x0141, 0x00A4, 0x0104, 0x00A6,
    0x00A7, 0x00A8, 0x00A9, 0x015E, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x017B, 0x00B0, 0x00B1, 0x02DB, 0x0142,
    0x00B4, 0x00B5, 0x00B6, 0x00B7, 0x00B8, 0x0105, 0x015F, 0x00BB, 0x013D, 0x02DD, 0x013E, 0x017C, 0x0154,
    0x00C1, 0x00C2, 0x0102, 0x00C4, 0x0139, 0x0106, 0x00C7, 0x010C, 0x00C9, 0x0118, 0x00CB, 0x011A, 0x00CD,
    0x00CE, 0x010E, 0x0110, 0x0143, 0x0147, 0x00D3, 0x00D4, 0x0150, 0x00D6, 0x00D7, 0x0158, 0x016E, 0x00DA,
    0x0170, 0x00DC, 0x00DD, 0x0162, 0x00DF, 0x0155, 0x00E1, 0x00E2, 0x0103, 0x00E4, 0x013A, 0x0107, 0x00E7,
    0x010D, 0x00E9, 0x0119, 0x00EB, 0x011B, 0x00ED, 0x00EE, 0x010F, 0x0111, 0x0144, 0x0148, 0x00F3, 0x00F4,
    0x0151, 0x00F6, 0x00F7, 0x0159, 0x016F, 0x00FA, 0x0171, 0x00FC, 0x00FD, 0x0163, 0x02D9,
};

/// Romanian letters with a comma below are not in the page; those with a cedilla are, and were used for them.
constexpr char32_t withCedilla(char32_t character)
{
    switch (character) {
        case 0x0218:
            return 0x015E;
        case 0x0219:
            return 0x015F;
        case 0x021A:
            return 0x0162;
        case 0x021B:
            return 0x0163;
        default:
            return character;
    }
}

char toWindows1250Byte(char32_t character)
{
    if (character < 0x80) return static_cast<char>(character);
    const auto* const found = std::find(windows1250.begin(), windows1250.end(), withCedilla(character));
    if (found == windows1250.end()) return '?';
    return static_cast<char>(0x80 + std::distance(windows1250.begin(), found));
}

}  // namespace

std::size_t length(std::string_view text)
{
    std::size_t count = 0;
    for (std::size_t offset = 0; offset < text.size(); ++count)
        offset += sequenceLength(text.substr(offset));
    return count;
}

std::string left(std::string_view text, std::size_t count)
{
    return std::string(text.substr(0, offsetOf(text, count)));
}

std::string right(std::string_view text, std::size_t count)
{
    const std::size_t all = length(text);
    if (count >= all) return std::string(text);
    return std::string(text.substr(offsetOf(text, all - count)));
}

std::string mid(std::string_view text, std::size_t start, std::size_t count)
{
    if (start == 0) throw RuntimeError(invalidArgument, "A text position is counted from 1");
    const std::string_view rest = text.substr(offsetOf(text, start - 1));
    return std::string(rest.substr(0, offsetOf(rest, count)));
}

std::string trim(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

char32_t upper(char32_t character)
{
    if (character < 0x80) return (character >= 'a' && character <= 'z') ? character - 32 : character;
    const bool latin1 = character >= 0xE0 && character <= 0xFE && character != 0xF7;
    if (latin1) return character - 32;
    // In Latin Extended-A most capitals are even and are followed by their small letter; in two stretches they are odd.
    const bool oddCapitals =
        (character >= 0x0139 && character <= 0x0148) || (character >= 0x0179 && character <= 0x017E);
    if (oddCapitals) return (character % 2 == 0) ? character - 1 : character;
    const bool evenCapitals = (character >= 0x0100 && character <= 0x0137) ||
                              (character >= 0x014A && character <= 0x0177) ||
                              (character >= 0x0218 && character <= 0x021B);
    const bool withoutCapital = character == 0x0131;
    if (evenCapitals && !withoutCapital) return (character % 2 == 1) ? character - 1 : character;
    return character;
}

std::string upper(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    for (const char32_t character : toCharacters(text))
        append(result, upper(character));
    return result;
}

std::string padRight(std::string_view text, std::size_t count)
{
    const std::size_t present = length(text);
    if (present >= count) return left(text, count);
    std::string padded;
    padded.reserve(text.size() + count - present);
    return padded.append(text).append(count - present, ' ');
}

std::string blanks(std::size_t count)
{
    return std::string(count, ' ');
}

char32_t characterAt(std::string_view text, std::size_t position)
{
    const std::string character = mid(text, position, 1);
    if (character.empty()) throw RuntimeError(invalidArgument, "The text has no character " + std::to_string(position));
    return decode(character);
}

std::string fromCharacter(char32_t character)
{
    std::string text;
    append(text, character);
    return text;
}

std::u32string toCharacters(std::string_view text)
{
    std::u32string characters;
    characters.reserve(text.size());
    while (!text.empty()) {
        const std::size_t bytes = sequenceLength(text);
        characters.push_back(decode(text.substr(0, bytes)));
        text.remove_prefix(bytes);
    }
    return characters;
}

std::string fromCharacters(std::u32string_view characters)
{
    std::string text;
    text.reserve(characters.size());
    for (const char32_t character : characters)
        append(text, character);
    return text;
}

bool equalIgnoringCase(std::string_view a, std::string_view b)
{
    return upper(a) == upper(b);
}

std::string toWindows1250(std::string_view text)
{
    std::string bytes;
    bytes.reserve(text.size());
    while (!text.empty()) {
        // Most texts are plain from end to end, and go over as they are.
        std::size_t plain = 0;
        while (plain < text.size() && !isSpecial(text[plain]))
            ++plain;
        bytes.append(text.substr(0, plain));
        text.remove_prefix(plain);
        if (text.empty()) break;
        const std::size_t length = sequenceLength(text);
        bytes.push_back(toWindows1250Byte(decode(text.substr(0, length))));
        text.remove_prefix(length);
    }
    return bytes;
}

std::string fromWindows1250(std::string_view bytes)
{
    std::string text;
    text.reserve(bytes.size());
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        append(text, value < 0x80 ? value : windows1250[value - 0x80U]);
    }
    return text;
}

}  // namespace base
