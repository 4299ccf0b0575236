#include "entry/log_table.h"

#include <algorithm>

#include "base/runtime_error.h"
#include "screen/grid_layout.h"
#include "storage/log_statements.h"

namespace entry {

namespace {

using screen::FrmQSOForm;
using State = runstate::Modul1State;

constexpr LogTable tables[] = {
    {"Uus144a", "Uus144A", 144, "A", &FrmQSOForm::Uus144a, &FrmQSOForm::DBGrid1, &State::Qso144a, &State::Pct144a,
     &State::Loc144a, &FrmQSOForm::LblCod, screen::layOutUus144a},
    {"Uus144b", "Uus144B", 144, "B", &FrmQSOForm::Uus144b, &FrmQSOForm::DBGrid2, &State::Qso144b, &State::Pct144b,
     &State::Loc144b, &FrmQSOForm::LblCod, screen::layOutUus144b},
    {"Uus432a", "Uus432A", 432, "A", &FrmQSOForm::Uus432a, &FrmQSOForm::DBGrid3, &State::Qso432a, &State::Pct432a,
     &State::Loc432a, &FrmQSOForm::LblCod432, screen::layOutUus432a},
    {"Uus432b", "Uus432B", 432, "B", &FrmQSOForm::Uus432b, &FrmQSOForm::DBGrid4, &State::Qso432b, &State::Pct432b,
     &State::Loc432b, &FrmQSOForm::LblCod432, screen::layOutUus432b},
    {"Uus1296a", "Uus1296A", 1296, "A", &FrmQSOForm::Uus1296a, &FrmQSOForm::DBGrid6, &State::Qso1296a, &State::Pct1296a,
     &State::Loc1296a, &FrmQSOForm::LblCod1296, screen::layOutUus1296a},
    {"Uus1296b", "Uus1296B", 1296, "B", &FrmQSOForm::Uus1296b, &FrmQSOForm::DBGrid7, &State::Qso1296b, &State::Pct1296b,
     &State::Loc1296b, &FrmQSOForm::LblCod1296, screen::layOutUus1296b},
    {"UusGHz", "UusGHz", bandGHz, "", &FrmQSOForm::UusGHz, &FrmQSOForm::DBGrid8, &State::QsoGHz, &State::PctGHz,
     &State::LocGHz, &FrmQSOForm::LblCodGhz, screen::layOutUusGHz},
};

std::int32_t groupOf(std::int32_t band)
{
    return band > highestNamedBand ? bandGHz : band;
}

}  // namespace

std::span<const LogTable> logTables()
{
    return tables;
}

const LogTable* logTableFor(std::int32_t band, std::string_view stage)
{
    const std::int32_t group = groupOf(band);
    const auto* const found = std::find_if(std::begin(tables), std::end(tables), [&](const LogTable& table) {
        return table.band == group && (table.band == bandGHz || table.stage == stage);
    });
    return found == std::end(tables) ? nullptr : found;
}

const LogTable* currentLogTable()
{
    return logTableFor(Modul1.BandCur, Modul1.Etapa);
}

bool bandHasTable(std::int32_t band)
{
    return std::any_of(std::begin(tables), std::end(tables),
                       [&](const LogTable& table) { return table.band == groupOf(band); });
}

void showWholeTable(const LogTable& table)
{
    screen::DataControl& data = FrmQSO.*table.data;
    data.RecordSource = storage::showTable(table.name);
    data.Refresh();
    base::passing<base::noCurrentRecord>([&] { data.Recordset.MoveLast(); });
    table.layOut();
}

}  // namespace entry
