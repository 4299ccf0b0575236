// The seven log tables of bands and stages, with what belongs to each.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "runstate/modul1.h"
#include "screen/frm_qso.h"

namespace entry {

/// `BandCur` while the GHz group is chosen without a band; the GHz log as a whole.
constexpr std::int32_t bandGHz = 1;
/// Everything above this band goes to the GHz log.
constexpr std::int32_t highestNamedBand = 1296;

struct LogTable {
    const char* name;
    const char* searchName;  ///< as the search for the beginning of a call spells it
    std::int32_t band;
    const char* stage;  ///< "A" or "B"; the GHz log has none
    screen::DataControl screen::FrmQSOForm::*data;
    screen::Grid screen::FrmQSOForm::*grid;
    std::int16_t runstate::Modul1State::*Qso;
    std::int32_t runstate::Modul1State::*Pct;
    std::int32_t runstate::Modul1State::*Loc;
    screen::Label screen::FrmQSOForm::*lastCode;  ///< label of the band's code where every band counts by itself
    void (*layOut)();
};

/// All seven.
std::span<const LogTable> logTables();

/// Table of a band and stage; every microwave band, and 1, is the GHz log whatever the stage. nullptr when there is
/// none.
const LogTable* logTableFor(std::int32_t band, std::string_view stage);

/// Table of the band and stage in hand. Not for the Maraton contest, which has one log for all bands.
const LogTable* currentLogTable();

/// True when any stage of the band has a table.
bool bandHasTable(std::int32_t band);

/// Puts the whole table into its grid, with the newest row current.
void showWholeTable(const LogTable& table);

}  // namespace entry
