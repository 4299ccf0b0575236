// Morse code as the station has to send it, written down a second time: what the keyer does is held against it.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "script/machine_record.h"

namespace test {

/// A symbol and its dots and dashes. The lower-case symbols are prosigns.
struct MorseCode {
    char symbol;
    const char* code;
};

constexpr MorseCode morseCodes[] = {
    {'E', "."},      {'T', "-"},      {'A', ".-"},    {'I', ".."},    {'M', "--"},     {'N', "-."},     {'D', "-.."},
    {'G', "--."},    {'K', "-.-"},    {'O', "---"},   {'R', ".-."},   {'S', "..."},    {'U', "..-"},    {'W', ".--"},
    {'B', "-..."},   {'C', "-.-."},   {'F', "..-."},  {'H', "...."},  {'J', ".---"},   {'L', ".-.."},   {'P', ".--."},
    {'Q', "--.-"},   {'V', "...-"},   {'X', "-..-"},  {'Y', "-.--"},  {'Z', "--.."},   {'0', "-----"},  {'1', ".----"},
    {'2', "..---"},  {'3', "...--"},  {'4', "....-"}, {'5', "....."}, {'6', "-...."},  {'7', "--..."},  {'8', "---.."},
    {'9', "----."},  {'/', "-..-."},  {'=', "-...-"}, {'a', ".-.-."}, {'.', ".-.-.-"}, {',', "--..--"}, {'?', "..--.."},
    {'s', "...-.-"}, {'~', ".-...-"},
};

/// Dots and dashes of a symbol, nothing for one that is not sent.
std::string_view codeOf(char symbol);

/// Times at one speed in whole milliseconds, each rounded by itself.
struct MorseTimes {
    long dot = 0;  ///< and the gap behind each element
    long dash = 0;
    long letter = 0;  ///< behind the gap of the last element of a letter
    long blank = 0;   ///< behind that, for a blank
};

/// At 9 to 40 words a minute.
MorseTimes morseTimes(int wpm);

/// Changes of the lines, "MS RTS on", milliseconds since the first of them.
using LineLog = std::vector<std::string>;

/// Asked before each element, counted from 0: true when a stop key is seen there.
using StopSeen = std::function<bool(int element)>;

/// What the lines do for a message, from the opening of port 1 to its closing.
LineLog keyedLines(std::string_view text, int wpm, const StopSeen& stopSeen = {});

/// The text of one message, as a listener with a stop watch writes it down: "*" for a code that nobody knows, and for a
/// time that is none of the speed "<57 ms>".
std::string heardText(const std::vector<script::TimedEvent>& lines, int wpm);

/// The changes of the lines as a LineLog.
LineLog logOf(const std::vector<script::TimedEvent>& lines);

}  // namespace test
