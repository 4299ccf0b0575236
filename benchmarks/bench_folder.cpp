#include "bench_folder.h"

#include <chrono>
#include <string>
#include <system_error>

#include "storage/schema.h"

namespace bench {

namespace fs = std::filesystem;

Folder::Folder()
{
    const auto stamp = std::chrono::steady_clock::now().time_since_epoch().count();
    path_ = fs::absolute("kelvo-bench-" + std::to_string(stamp));
    fs::create_directories(path_);
    storage::makeMissingDatabases(path_);
}

Folder::~Folder()
{
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

}  // namespace bench
