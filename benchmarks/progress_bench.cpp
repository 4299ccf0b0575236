// Telling how far long work has come, row by row, beside the same walk over a big log that tells nothing.
#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <cstdlib>
#include <optional>

#include "bench_folder.h"
#include "platform/progress.h"
#include "support/station.h"

namespace {

constexpr int rows = 30000;

void walk(benchmark::State& state, bool told)
{
    const bench::Folder folder;
    test::fillLog(folder.path(), "Uus144a", rows);
    sqlite3* log = nullptr;
    sqlite3_open((folder.path() / "LogKelvo.mdb").c_str(), &log);
    for (auto _ : state) {
        std::optional<platform::LongWork> work;
        if (told) work.emplace("Export", rows);
        sqlite3_stmt* statement = nullptr;
        sqlite3_prepare_v2(log, "SELECT Pct FROM Uus144a", -1, &statement, nullptr);
        double sum = 0;
        long row = 0;
        while (sqlite3_step(statement) == SQLITE_ROW) {
            sum += std::atof(reinterpret_cast<const char*>(sqlite3_column_text(statement, 0)));
            if (work) work->done(++row);
        }
        benchmark::DoNotOptimize(sum);
        sqlite3_finalize(statement);
    }
    sqlite3_close(log);
}

void silentWalk(benchmark::State& state)
{
    walk(state, false);
}

void toldWalk(benchmark::State& state)
{
    walk(state, true);
}

BENCHMARK(silentWalk)->Unit(benchmark::kMillisecond);
BENCHMARK(toldWalk)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
