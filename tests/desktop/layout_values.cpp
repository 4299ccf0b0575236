#include "layout_values.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "base/text.h"

namespace layout {

using app::ControlPicture;
using screen::Kind;

namespace {

struct Value {
    std::string_view form;
    std::string_view control;
    std::string_view text;
};

constexpr Value values[] = {
    // The set-up page.
    {"FrmInit", "TxtMyCall", "YO2ABC/P"},
    {"FrmInit", "txtMyQRA", "KN16AA"},
    {"FrmInit", "TxtTime", "-12"},
    {"FrmInit", "TxtMyName", "CONSTANTIN"},
    {"FrmInit", "TxtRpNr", "1000"},
    {"FrmInit", "TxtSD", "15.11.2026"},
    {"FrmInit", "TxtST", "12:34"},
    {"FrmInit", "TxtCP", "12"},
    // The entry form: the QSO.
    {"FrmQSO", "txtIndic", "YO/DL2ABC/P"},
    {"FrmQSO", "TxtRSTE1", "599"},
    {"FrmQSO", "txtRSTE2", "1000"},
    {"FrmQSO", "txtRSTe3", "KN16AA"},
    {"FrmQSO", "TxtMyName", "CONSTANTIN"},
    {"FrmQSO", "TxtRSTR1", "599"},
    {"FrmQSO", "TxtRSTR2", "1000"},
    {"FrmQSO", "TxtRSTr3", "KN16AA"},
    {"FrmQSO", "TxtYourName", "CONSTANTIN"},
    {"FrmQSO", "TxtUTC", "12:34"},
    {"FrmQSO", "TxtDate", "15.11.26"},
    {"FrmQSO", "LblCod", "1000"},
    {"FrmQSO", "LblCod432", "1000"},
    {"FrmQSO", "LblCod1296", "1000"},
    {"FrmQSO", "LblCodGhz", "1000"},
    {"FrmQSO", "LblQRB1", "1250 Km"},
    {"FrmQSO", "LblBeam1", "360 °"},
    // Its frames.
    {"FrmQSO", "LblPkt", "123456"},
    {"FrmQSO", "LblPkt1", "123456"},
    {"FrmQSO", "LblPkt2", "123456"},
    {"FrmQSO", "LblPkt3", "123456"},
    {"FrmQSO", "LblQSO", "1250"},
    {"FrmQSO", "LblQSO1", "1250"},
    {"FrmQSO", "LblQSO2", "1250"},
    {"FrmQSO", "LblQSO3", "1250"},
    {"FrmQSO", "LblMyCall", "YO2ABC/P"},
    {"FrmQSO", "LblMyQRA", "KN16AA"},
    {"FrmQSO", "TxtFGHz", "76000"},
    {"FrmQSO", "TxtPauseSSB", "60"},
    {"FrmQSO", "txtPauseCW", "60"},
    {"FrmQSO", "TxtPauseFm", "60"},
    {"FrmQSO", "lblWPM", "60"},
    // The review form.
    {"FrmAnzeigen", "LblQSO1", "12500"},
    {"FrmAnzeigen", "LblPkt1", "1234567"},
    {"FrmAnzeigen", "TxtNameDat", "YOVHFUHF 144 MHZ 2026.TXT"},
    {"FrmAnzeigen", "TxtSection", "MULTI OP 144 MHZ"},
    {"FrmAnzeigen", "TxtOp", "CONSTANTIN IONESCU"},
    {"FrmAnzeigen", "TxtNo", "12"},
    {"FrmAnzeigen", "TxtQTH", "CLUJ-NAPOCA"},
    {"FrmAnzeigen", "TxtClub", "CSTA CLUJ-NAPOCA"},
    // The EDI header.
    {"FrmAnzeigen", "TxtTName", "CAMPIONATELE NATIONALE UUS"},
    {"FrmAnzeigen", "TxtTDate1", "15.11.26"},
    {"FrmAnzeigen", "TxtTDate2", "15.11.26"},
    {"FrmAnzeigen", "TxtPCall", "YO2ABC/P"},
    {"FrmAnzeigen", "TxtPWWLo", "KN16AA"},
    {"FrmAnzeigen", "TxtPSect", "MULTI"},
    {"FrmAnzeigen", "TxtPBand", "1296"},
    {"FrmAnzeigen", "TxtRName", "Constantin Ionescu"},
    {"FrmAnzeigen", "TxtRCall", "YO2ABC/P"},
    {"FrmAnzeigen", "TxtRPoCo", "400001"},
    {"FrmAnzeigen", "TxtRCity", "Cluj-Napoca"},
    {"FrmAnzeigen", "TxtSPowe", "1000 W"},
    {"FrmAnzeigen", "TxtSAntH1", "12"},
    {"FrmAnzeigen", "TxtSAntH2", "1250"},
    {"FrmAnzeigen", "TxtCQSOs1", "1250"},
    {"FrmAnzeigen", "TxtCQSOs2", "10"},
    {"FrmAnzeigen", "TxtCQSOP", "1234567"},
    {"FrmAnzeigen", "TxtCWWLs1", "125"},
    {"FrmAnzeigen", "TxtCToSc", "1234567"},
    {"FrmAnzeigen", "TxtCODXC1", "YO2ABC/P"},
    {"FrmAnzeigen", "TxtCODXC2", "KN16AA"},
    {"FrmAnzeigen", "TxtCODXC3", "1250"},
};

struct ColumnValue {
    std::string_view title;
    std::string_view text;
};

constexpr ColumnValue columnValues[] = {
    {"ID", "1250"},          {"Callsign", "YO2ABC/P"}, {"Data", "15.11.26"},    {"UTC", "12:34"},
    {"Sent", "599 001"},     {"Rcvd", "599 001"},      {"Mode", "Mixt"},        {"Freq", "10368"},
    {"Bnd", "1296"},         {"QRALoc", "KN16AA"},     {"Pct", "1250"},         {"QRALcR", "KN16AA"},
    {"NameR", "CONSTANTIN"}, {"QRALcE", "KN16AA"},     {"NameE", "CONSTANTIN"}, {"Call", "YO2ABC/P"},
    {"QRA_LOC", "KN16AA"},
};

struct ListValue {
    std::string_view list;
    std::array<const char*, 4> items;
};

constexpr ListValue listValues[] = {
    {"DrvList", {"", "/media/operator/KELVO", "/media/stick", "C:"}},
    {"DirList", {"..", "2025", "Contests of 2026", "Log"}},
    {"FilList", {"CARPATI 2026.TXT", "YOVHFUHF 1296 MHZ 2026.TXT", "YOVHFUHF 1296 MHZ 2026.ADI", "A.ADI"}},
};

const Value* valueOf(const ControlPicture& control)
{
    const auto* const found = std::find_if(std::begin(values), std::end(values), [&](const Value& value) {
        return value.control == control.control->name && value.form == control.control->form.name;
    });
    return found == std::end(values) ? nullptr : found;
}

bool hasText(Kind kind)
{
    return kind == Kind::textBox || kind == Kind::label;
}

/// What stands there stays where it is the longer one.
void fillText(ControlPicture& control)
{
    const Value* value = valueOf(control);
    if (value == nullptr || base::length(base::trim(control.text)) >= base::length(value->text)) return;
    control.text = value->text;
    control.selStart = control.selLength = control.caret = 0;
}

void fillList(ControlPicture& list)
{
    for (const ListValue& value : listValues)
        if (value.list == list.control->name) list.items.assign(value.items.begin(), value.items.end());
}

std::string columnValue(const std::string& title)
{
    for (const ColumnValue& value : columnValues)
        if (value.title == title) return std::string(value.text);
    return {};
}

/// Two rows, of which the second is the one that the grid stands on.
void fillGrid(ControlPicture& grid)
{
    auto rows = std::make_shared<app::GridRows>();
    storage::Row row{1, {}};
    for (const std::string& title : grid.grid->titles)
        row.columns.push_back(columnValue(title));
    rows->rows = {row, {2, row.columns}};
    rows->moreAbove = rows->moreBelow = true;
    auto filled = std::make_shared<app::GridPicture>(*grid.grid);
    filled->rows = rows;
    filled->currentKey = 2;
    grid.grid = filled;
}

}  // namespace

app::Picture filledIn(const app::Picture& page)
{
    app::Picture filled = page;
    for (ControlPicture& control : filled.controls) {
        if (hasText(control.kind)) fillText(control);
        if (control.kind == Kind::listBox) fillList(control);
        if (control.kind == Kind::grid) fillGrid(control);
    }
    return filled;
}

bool showsAll(const ControlPicture& box)
{
    return valueOf(box) != nullptr;
}

}  // namespace layout
