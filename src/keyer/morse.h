// Morse code as this station sends it: the table of codes and the times of its elements.
//
// A dot lasts 20 / W ticks of 1/18.2 second at W words a minute, which is a little slower than the word PARIS says, and
// letters stand 4.2 dots apart. Below 13 words a minute the elements stay and only the spaces grow.
#pragma once

#include <array>
#include <chrono>
#include <cstdint>

namespace keyer {

/// Rows of the table: the symbol, then its code. The lower-case symbols are prosigns.
inline constexpr std::array MorseTab = {
    "E.",     "T-",     "A.-",    "I..",    "M--",    "N-.",    "D-..",    "G--.",    "K-.-",    "O---",    "R.-.",
    "S...",   "U..-",   "W.--",   "B-...",  "C-.-.",  "F..-.",  "H....",   "J.---",   "L.-..",   "P.--.",   "Q--.-",
    "V...-",  "X-..-",  "Y-.--",  "Z--..",  "0-----", "1.----", "2..---",  "3...--",  "4....-",  "5.....",  "6-....",
    "7--...", "8---..", "9----.", "/-..-.", "=-...-", "a.-.-.", "..-.-.-", ",--..--", "?..--..", "s...-.-", "~.-...-",
};

/// Units of time in ticks of 1/18.2 second.
struct TimeUnits {
    float CharUnit = 0;  ///< of the spaces between letters
    float ElemUnit = 0;  ///< of dots, dashes and the gaps between them
};

/// The units at a speed of `wpm` words a minute, 10 to 40. `tickBase` is the length of a dot in ticks at one word a
/// minute.
TimeUnits timeUnits(float wpm, std::int16_t tickBase);

/// Spaces between letters are this much wider than the units say.
constexpr double spacing = 1.4;

/// Times in milliseconds, as they are computed; the clock takes whole ones.
/// An element of `length` units (1 a dot or a gap, 3 a dash).
double elementTime(float elemUnit, float length);
/// What is added to the gap behind the last element of a letter. `charUnit` is widened already.
double letterSpaceTime(float charUnit, float elemUnit);
/// What a blank adds to the space behind the letter before it.
double blankTime(float elemUnit);

/// A time as the clock takes it: whole milliseconds, a tie going to the even number.
std::chrono::milliseconds wholeMilliseconds(double time);

}  // namespace keyer
