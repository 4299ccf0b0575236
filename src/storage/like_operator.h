// Gives LIKE the meaning of LikePattern.
#pragma once

struct sqlite3;

namespace storage {

/// From here on LIKE on this handle follows LikePattern. A null on either side gives null, a broken pattern an error.
void takeOverLike(sqlite3* handle);

}  // namespace storage
