// A row of a log in the record that its readers share.
#pragma once

#include "storage/record_set.h"

namespace review {

/// Copies the current row of a band table, or of the Maraton log, into `LogRec`. Errors of the record set go up, and
/// leave the columns behind the failing one as they were.
void readBandRow(storage::RecordSet& rows);
void readMaratonRow(storage::RecordSet& rows);

}  // namespace review
