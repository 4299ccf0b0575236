// Counts and points as the rows of the tables give them, counted without the arithmetic of the program.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>

#include "fuzz/tables.h"
#include "runstate/modul1.h"

namespace fuzz {

/// What the program keeps of a table.
struct Figures {
    const char* table;
    const char* band;
    const char* stage;
    std::int16_t runstate::Modul1State::*count;
    std::int32_t runstate::Modul1State::*points;
};

inline constexpr std::array figures = {
    Figures{"Uus144a", "144", "A", &runstate::Modul1State::Qso144a, &runstate::Modul1State::Pct144a},
    Figures{"Uus144b", "144", "B", &runstate::Modul1State::Qso144b, &runstate::Modul1State::Pct144b},
    Figures{"Uus432a", "432", "A", &runstate::Modul1State::Qso432a, &runstate::Modul1State::Pct432a},
    Figures{"Uus432b", "432", "B", &runstate::Modul1State::Qso432b, &runstate::Modul1State::Pct432b},
    Figures{"Uus1296a", "1296", "A", &runstate::Modul1State::Qso1296a, &runstate::Modul1State::Pct1296a},
    Figures{"Uus1296b", "1296", "B", &runstate::Modul1State::Qso1296b, &runstate::Modul1State::Pct1296b},
    Figures{"UusGHz", "", "", &runstate::Modul1State::QsoGHz, &runstate::Modul1State::PctGHz},
};

/// Those of a table, nullptr for the Maraton log and for none.
const Figures* figuresOf(const std::string& table);

inline constexpr int maratonContest = 7;
inline constexpr const char* maratonTable = "UusLGYO2";
inline constexpr std::array maratonBands = {"144", "432", "1296"};

struct Counted {
    long count = 0;
    /// Nothing where the review form would see other figures than the entry form, since it takes six characters of the
    /// points, and for sums beyond 32 bits, which end a recount.
    std::optional<double> points;

    friend bool operator==(const Counted&, const Counted&) = default;
};

/// By table, and for the Maraton log by the name of the band as well. Its own name has the count of its rows alone.
using Counts = std::map<std::string, Counted>;

/// Counts the rows of one table, into its name and what else stands for it.
void countInto(Counts& counts, const std::string& table, const Rows& rows);

/// The number that a text begins with: blanks, sign, digits, point.
double numberIn(const std::string& text);

}  // namespace fuzz
