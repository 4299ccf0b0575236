#include "review/log_view.h"

#include <algorithm>
#include <vector>

#include "base/runtime_error.h"
#include "storage/log_statements.h"

namespace review {

namespace {

using screen::FrmAnzeigenForm;

struct Place {
    std::string_view table;
    screen::DataControl FrmAnzeigenForm::*data;
    screen::Grid FrmAnzeigenForm::*grid;
};

constexpr Place places[] = {
    {"Uus144a", &FrmAnzeigenForm::Uus144a, &FrmAnzeigenForm::DBGrid1},
    {"Uus144b", &FrmAnzeigenForm::Uus144b, &FrmAnzeigenForm::DBGrid2},
    {"Uus432a", &FrmAnzeigenForm::Uus432a, &FrmAnzeigenForm::DBGrid3},
    {"Uus432b", &FrmAnzeigenForm::Uus432b, &FrmAnzeigenForm::DBGrid4},
    {"Uus1296a", &FrmAnzeigenForm::Uus1296a, &FrmAnzeigenForm::DBGrid6},
    {"Uus1296b", &FrmAnzeigenForm::Uus1296b, &FrmAnzeigenForm::DBGrid7},
    {"UusGHz", &FrmAnzeigenForm::UusGHz, &FrmAnzeigenForm::DBGrid8},
};

std::vector<LogView> makeViews()
{
    std::vector<LogView> views;
    for (const entry::LogTable& table : entry::logTables()) {
        const auto* const place = std::find_if(std::begin(places), std::end(places),
                                               [&](const Place& each) { return each.table == table.name; });
        views.push_back({place->data, place->grid, &table});
    }
    return views;
}

}  // namespace

const LogView* logViewFor(std::int32_t band, std::string_view stage)
{
    static const std::vector<LogView> views = makeViews();
    const entry::LogTable* table = entry::logTableFor(band, stage);
    const auto found =
        std::find_if(views.begin(), views.end(), [&](const LogView& view) { return view.table == table; });
    return found == views.end() ? nullptr : &*found;
}

void showNewest(const LogView& log)
{
    base::ResumeNext go;
    screen::DataControl& data = FrmAnzeigen.*log.data;
    data.RecordSource = storage::showTable(log.table->name);
    go([&] { data.Refresh(); });
    go([&] { data.Recordset.MoveLast(); });
    go(log.table->layOut);
}

}  // namespace review
