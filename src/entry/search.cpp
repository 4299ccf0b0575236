#include "entry/search.h"

#include "base/number.h"
#include "base/text.h"
#include "entry/contest_groups.h"
#include "entry/log_table.h"
#include "runstate/contest_codes.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"
#include "screen/grid_layout.h"
#include "storage/log_statements.h"

namespace entry {

namespace {

constexpr std::int32_t lowestMicrowaveBand = 2001;

void search(screen::DataControl& data, const char* table, void (*layOut)(), const std::string& start)
{
    data.RecordSource = storage::callsBeginningWith(table, start);
    data.Refresh();
    layOut();
}

}  // namespace

void ConvANSI()
{
    const auto code = static_cast<long>(base::numericValue(FrmQSO.KeyCode));
    const bool known = code == '/' || (code >= '0' && code <= '9') || (code >= 'A' && code <= 'Z');
    if (known) FrmQSO.KeyChar = std::string(1, static_cast<char>(code));
}

void narrowLog(const std::string& field, char32_t keyAscii)
{
    FrmQSO.KeyCode = base::toText(static_cast<long long>(keyAscii));
    ConvANSI();
    const std::string start = base::trim(field) + FrmQSO.KeyChar;
    if (Modul1.ConcId == runstate::maratonContest)
        return search(FrmQSO.UusLGYO2, "UusLGYO2", screen::layOutUusLGYO2, start);
    const LogTable* table = currentLogTable();
    if (table == nullptr) return;
    const bool microwaves = table->band == bandGHz;
    if (microwaves && (Modul1.ConcId != runstate::internationalContest || Modul1.BandCur < lowestMicrowaveBand)) return;
    search(FrmQSO.*table->data, table->searchName, table->layOut, start);
}

}  // namespace entry
