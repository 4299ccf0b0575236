// Codes of the contests that have rules of their own. The whole catalogue stands in contests.cpp.
#pragma once

#include <cstdint>

namespace runstate {

constexpr std::uint16_t maratonContest = 7;
constexpr std::uint16_t internationalContest = 100;
constexpr std::uint16_t sixMetresContest = 101;

}  // namespace runstate
