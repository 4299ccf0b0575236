// The rows of the score on the entry form. Row 0 is always the band or stage worked on.
#pragma once

#include <cstdint>

#include "screen/control.h"

namespace band {

struct ScoreRow {
    screen::Label& band;
    screen::Label& points;
    screen::Label& qsos;
};

/// Row by number, 0 to 3.
ScoreRow scoreRow(int number);

/// Shows points and QSOs in a row; its caption stays.
void showFigures(int number, std::int32_t points, std::int16_t qsos);

/// Shows a band or stage with its points and QSOs in a row.
void showScore(int number, const char* caption, std::int32_t points, std::int16_t qsos);

}  // namespace band
