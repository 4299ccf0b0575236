#include "storage/like_operator.h"

#include <sqlite3.h>

#include <memory>
#include <new>
#include <string_view>

#include "base/runtime_error.h"
#include "storage/like_pattern.h"

namespace storage {

namespace {

std::string_view textOf(sqlite3_value* value)
{
    const auto* const bytes = reinterpret_cast<const char*>(sqlite3_value_text(value));
    if (bytes == nullptr) return {};
    return {bytes, static_cast<std::size_t>(sqlite3_value_bytes(value))};
}

/// The pattern of this statement. It is the same for all rows, so SQLite keeps it beside the statement.
const LikePattern* patternOf(sqlite3_context* context, sqlite3_value* value)
{
    if (const auto* const kept = static_cast<const LikePattern*>(sqlite3_get_auxdata(context, 0))) return kept;
    auto made = std::make_unique<LikePattern>(textOf(value));
    sqlite3_set_auxdata(context, 0, made.release(), [](void* pattern) { delete static_cast<LikePattern*>(pattern); });
    return static_cast<const LikePattern*>(sqlite3_get_auxdata(context, 0));
}

/// The function that SQLite calls for `text LIKE pattern`, with the pattern first. No exception may leave it.
void like(sqlite3_context* context, int /*count*/, sqlite3_value** values)
{
    const bool anyNull = sqlite3_value_type(values[0]) == SQLITE_NULL || sqlite3_value_type(values[1]) == SQLITE_NULL;
    if (anyNull) return sqlite3_result_null(context);
    try {
        const LikePattern* const pattern = patternOf(context, values[0]);
        const bool fits = pattern != nullptr ? pattern->matches(textOf(values[1]))
                                             : LikePattern(textOf(values[0])).matches(textOf(values[1]));
        sqlite3_result_int(context, fits ? 1 : 0);
    } catch (const base::RuntimeError& error) {
        sqlite3_result_error(context, error.what(), -1);
    } catch (const std::bad_alloc&) {
        sqlite3_result_error_nomem(context);
    }
}

}  // namespace

void takeOverLike(sqlite3* handle)
{
    sqlite3_create_function_v2(handle, "like", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, like, nullptr, nullptr,
                               nullptr);
}

}  // namespace storage
