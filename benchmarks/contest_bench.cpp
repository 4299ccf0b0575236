// In the middle of a big contest: Tab in the call field, the recount of a table, and picking up a run, beside the bare
// statements that they stand on.
#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <chrono>
#include <cstdlib>
#include <stdexcept>
#include <string>

#include "band/stage.h"
#include "band/switching.h"
#include "band/totals.h"
#include "bench_folder.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"
#include "support/station.h"

namespace {

constexpr int rows = 30000;
constexpr int memorySize = 100000;
constexpr const char* allTables[] = {"Uus144a", "Uus144b", "Uus432a", "Uus432b", "Uus1296a", "Uus1296b", "UusGHz"};

void bareLookUps(benchmark::State& state)
{
    const bench::Folder folder;
    test::fillLog(folder.path(), "Uus144a", rows);
    sqlite3* log = nullptr;
    sqlite3_open((folder.path() / "LogKelvo.mdb").c_str(), &log);
    for (auto _ : state)
        sqlite3_exec(log, "SELECT * FROM Uus144a WHERE Callsign='YO2AAAA'", nullptr, nullptr, nullptr);
    sqlite3_close(log);
}

/// Tab takes a call that the memory knows and the log has: look-ups, verdict, distance, heading, points.
void tabInCall(benchmark::State& state)
{
    const bench::Folder folder;
    test::fillLog(folder.path(), "Uus144a", rows);
    test::fillMemory(folder.path(), memorySize);
    test::Station station(folder.path(), nullptr);
    for (auto _ : state) {
        station.type("YO2AAAA");
        const auto start = std::chrono::steady_clock::now();
        station.down("Tab");
        state.SetIterationTime(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
        if (FrmQSO.txtIndic.BackColor != screen::red) state.SkipWithError("the duplicate was not found");
        station.press("Esc");
        station.press("Esc");
    }
}

void bareSum(benchmark::State& state)
{
    const bench::Folder folder;
    test::fillLog(folder.path(), "Uus144a", rows);
    sqlite3* log = nullptr;
    sqlite3_open((folder.path() / "LogKelvo.mdb").c_str(), &log);
    for (auto _ : state) {
        sqlite3_stmt* statement = nullptr;
        sqlite3_prepare_v2(log, "SELECT Pct, QRALoc FROM Uus144a", -1, &statement, nullptr);
        double sum = 0;
        while (sqlite3_step(statement) == SQLITE_ROW) {
            sum += std::atof(reinterpret_cast<const char*>(sqlite3_column_text(statement, 0)));
            benchmark::DoNotOptimize(sqlite3_column_text(statement, 1));
        }
        benchmark::DoNotOptimize(sum);
        sqlite3_finalize(statement);
    }
    sqlite3_close(log);
}

void recount(benchmark::State& state)
{
    const bench::Folder folder;
    test::fillLog(folder.path(), "Uus144a", rows);
    const test::Station station(folder.path(), nullptr);
    for (auto _ : state)
        band::Summe144();
    if (Modul1.Qso144a != rows) state.SkipWithError("the recount is wrong");
}

/// Band, stage and mode chosen in a new run over full tables.
void pickUpRun(benchmark::State& state)
{
    const bench::Folder folder;
    for (const char* table : allTables)
        test::fillLog(folder.path(), table, rows);
    const test::Station station(folder.path(), nullptr);
    for (auto _ : state) {
        Modul1.TotalsDone = 0;
        band::B144();
        band::MCw();
    }
}

BENCHMARK(bareLookUps)->Unit(benchmark::kMicrosecond);
BENCHMARK(tabInCall)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(bareSum)->Unit(benchmark::kMillisecond);
BENCHMARK(recount)->Unit(benchmark::kMillisecond);
BENCHMARK(pickUpRun)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
