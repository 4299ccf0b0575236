#include "screen/grid_layout.h"

#include <span>

#include "runstate/modul1.h"
#include "screen/frm_anzeigen.h"
#include "screen/frm_qso.h"

namespace screen {

namespace {

/// Widths of one column, in twips.
struct ColumnRow {
    double review;
    double contest4;     ///< on the review form in contest 4, times ScaleX
    double smallScreen;  ///< on the review form on a screen narrower than the design screen, times ScaleX
    double entry;        ///< on the entry form, times ScaleX
};

/// In a table of widths: the width stands as the columns before it made it.
constexpr double same = -1;

constexpr ColumnRow band144Columns[] = {
    // review, contest 4, small screen, entry
    {900, 800, 1000, 900},   // Callsign
    {910, 810, 860, 910},    // Data
    {600, same, same, 600},  // UTC
    {650, same, 750, 600},   // Sent
    {650, same, 750, 600},   // Rcvd
    {400, same, 450, 600},   // Mode
    {600, 600, same, 600},   // Freq
    {700, same, 850, 700},   // QRALoc
    {500, same, same, 500},  // Pct
};

constexpr ColumnRow band432And1296Columns[] = {
    // review, contest 4, small screen, entry
    {950, 850, 1000, 950},   // Callsign
    {850, 800, 860, 850},    // Data
    {600, same, same, 600},  // UTC
    {750, same, 750, 750},   // Sent
    {750, same, 750, 750},   // Rcvd
    {500, same, 450, 500},   // Mode
    {550, 550, same, 550},   // Freq
    {800, same, 850, 800},   // QRALoc
    {550, same, same, 550},  // Pct
};

constexpr ColumnRow microwaveColumns[] = {
    // review, contest 4, small screen, entry
    {950, 850, 1000, 950},   // Callsign
    {800, 800, 860, 800},    // Data
    {550, same, same, 550},  // UTC
    {750, same, 750, 750},   // Sent
    {750, same, 750, 750},   // Rcvd
    {500, same, 450, 500},   // Mode
    {650, 650, same, 650},   // Freq
    {800, same, 850, 800},   // QRALoc
    {550, same, same, 550},  // Pct
};

constexpr ColumnRow maratonColumns[] = {
    // review, contest 4, small screen, entry
    {900, same, 900, 900},  // Callsign
    {900, same, 900, 900},  // Data
    {600, same, 600, 600},  // UTC
    {600, same, 600, 600},  // Sent
    {600, same, 600, 600},  // Rcvd
    {600, same, 600, 600},  // Mode
    {600, same, 600, 600},  // Bnd
    {600, same, 600, 600},  // QRALcR
    {600, same, 600, 600},  // NameR
    {650, same, 650, 650},  // Pct
    {650, same, 650, 650},  // QRALcE
    {650, same, 650, 650},  // NameE
};

void showAlone(const Form& form, const Grid& grid)
{
    for (Control* control : form.controls())
        if (control->kind == Kind::grid) control->Visible = control == &grid;
}

double reviewWidth(const ColumnRow& row, double scaleX)
{
    if (scaleX < 1 && row.smallScreen != same) return row.smallScreen * scaleX;
    if (Modul1.ConcId == 4 && row.contest4 != same) return row.contest4 * scaleX;
    return row.review;
}

double entryWidth(const ColumnRow& row, double scaleX)
{
    return row.entry * scaleX;
}

void layOut(const Form& form, Grid& grid, std::span<const ColumnRow> rows, double (*width)(const ColumnRow&, double))
{
    showAlone(form, grid);
    grid.columnWidths[0] = 0;  // the counter
    for (std::size_t row = 0; row < rows.size(); ++row)
        grid.columnWidths.at(row + 1) = width(rows[row], Modul1.ScaleX);
}

void layOut(Grid& entryGrid, Grid& reviewGrid, std::span<const ColumnRow> rows)
{
    if (Modul1.GridRebuild == 1000) layOut(FrmAnzeigen, reviewGrid, rows, reviewWidth);
    if (Modul1.GridRebuild == 100) layOut(FrmQSO, entryGrid, rows, entryWidth);
}

}  // namespace

void layOutUus144a()
{
    layOut(FrmQSO.DBGrid1, FrmAnzeigen.DBGrid1, band144Columns);
}

void layOutUus144b()
{
    layOut(FrmQSO.DBGrid2, FrmAnzeigen.DBGrid2, band144Columns);
}

void layOutUus432a()
{
    layOut(FrmQSO.DBGrid3, FrmAnzeigen.DBGrid3, band432And1296Columns);
}

void layOutUus432b()
{
    layOut(FrmQSO.DBGrid4, FrmAnzeigen.DBGrid4, band432And1296Columns);
}

void layOutUus1296a()
{
    layOut(FrmQSO.DBGrid6, FrmAnzeigen.DBGrid6, band432And1296Columns);
}

void layOutUus1296b()
{
    layOut(FrmQSO.DBGrid7, FrmAnzeigen.DBGrid7, band432And1296Columns);
}

void layOutUusGHz()
{
    layOut(FrmQSO.DBGrid8, FrmAnzeigen.DBGrid8, microwaveColumns);
}

void layOutUusLGYO2()
{
    layOut(FrmQSO.DBGrid9, FrmAnzeigen.DBGrid9, maratonColumns);
}

void layOutQra()
{
    showAlone(FrmAnzeigen, FrmAnzeigen.DBGrid5);
    FrmAnzeigen.DBGrid5.columnWidths[0] = 1100;  // Call; this table has no counter
    FrmAnzeigen.DBGrid5.columnWidths[1] = 1100;  // QRA_LOC
}

}  // namespace screen
