// Where each log table stands on the review form.
#pragma once

#include <cstdint>
#include <string_view>

#include "entry/log_table.h"
#include "screen/frm_anzeigen.h"

namespace review {

/// One band table on the review form.
struct LogView {
    screen::DataControl screen::FrmAnzeigenForm::*data;
    screen::Grid screen::FrmAnzeigenForm::*grid;
    const entry::LogTable* table;
};

/// The view of the table of a band and stage; the GHz log has its own band, 1, and no stage. nullptr without one.
const LogView* logViewFor(std::int32_t band, std::string_view stage);

/// Reads the whole table anew and stands on its newest row, in the grid, as far as that goes: an empty table leaves an
/// empty grid.
void showNewest(const LogView& log);

}  // namespace review
