// Waiting for another program that holds a database.
#pragma once

struct sqlite3;

namespace storage {

/// Makes a connection wait up to two seconds for a file that another program has locked, telling the operator so. A
/// statement that is still kept out then fails with SQLITE_BUSY.
void waitForOtherPrograms(sqlite3* handle);

}  // namespace storage
