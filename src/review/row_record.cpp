#include "review/row_record.h"

#include "screen/frm_anzeigen.h"

namespace review {

void readBandRow(storage::RecordSet& rows)
{
    screen::LogRecord& record = FrmAnzeigen.LogRec;
    record.Callsign = rows.Field(1);
    record.Data = rows.Field(2);
    record.UTC = rows.Field(3);
    record.Sent = rows.Field(4);
    record.Rcvd = rows.Field(5);
    record.Mode = rows.Field(6);
    record.Freq = rows.Field(7);
    record.QRALoc = rows.Field(8);
    record.Pct = rows.Field(9);
}

void readMaratonRow(storage::RecordSet& rows)
{
    screen::LogRecord& record = FrmAnzeigen.LogRec;
    record.Callsign = rows.Field(1);
    record.Data = rows.Field(2);
    record.UTC = rows.Field(3);
    record.Sent = rows.Field(4);
    record.Rcvd = rows.Field(5);
    record.Mode = rows.Field(6);
    record.Freq = rows.Field(7);
    record.QRALoc = rows.Field(8);
    record.NameR = rows.Field(9);
    record.Pct = rows.Field(10);
    record.QRALcE = rows.Field(11);
    record.NameE = rows.Field(12);
}

}  // namespace review
