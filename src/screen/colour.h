// Colours of the screen. Some of them are state: see the fields that they belong to.
#pragma once

#include <cstdint>

namespace screen {

struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    bool operator==(const Colour&) const = default;
};

constexpr Colour black{0, 0, 0};
constexpr Colour white{255, 255, 255};
constexpr Colour yellow{255, 255, 0};  ///< a field to fill in; of the call: no verdict yet
constexpr Colour red{255, 0, 0};       ///< of the call: a duplicate or the own call
constexpr Colour green{0, 255, 0};     ///< of the call: clean
constexpr Colour lampOff{192, 192, 192};
constexpr Colour lampOn{128, 0, 128};
constexpr Colour grey = lampOff;      ///< a field that the program fills in
constexpr Colour warning{176, 0, 0};  ///< a text that shall not be overlooked; readable on the button face
constexpr Colour buttonFace{240, 240, 240};

}  // namespace screen
