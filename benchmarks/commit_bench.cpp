// One QSO committed, from Enter to the cleared screen, beside a bare durable INSERT with the same settings into the
// same file. Run with random interleaving, so that both see the same disk:
//
//     commit_bench --benchmark_enable_random_interleaving=true --benchmark_repetitions=9
//                  --benchmark_report_aggregates_only=true
#include <benchmark/benchmark.h>

#include <chrono>

#include "bench_folder.h"
#include "screen/frm_qso.h"
#include "support/station.h"

namespace {

using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point start)
{
    return std::chrono::duration<double>(Clock::now() - start).count();
}

void bareInsert(benchmark::State& state)
{
    const bench::Folder folder;
    test::fillLog(folder.path(), "Uus144a", static_cast<int>(state.range(0)));
    test::PlainLog log(folder.path() / "LogKelvo.mdb");
    int number = 0;
    for (auto _ : state) {
        const std::string call = "DL" + std::to_string(number++) + "X";
        const auto start = Clock::now();
        log.execute("INSERT INTO Uus144a (Callsign, Data , UTC, Sent, Rcvd, Mode, Freq, QRALoc, Pct)  VALUES ('" +
                    call + "','15.11.26','12:34','599 001','599 012','CW','144','KN16AA','163');");
        state.SetIterationTime(secondsSince(start));
    }
}

/// A call with three digits in its middle never repeats and has no prefix that the log of fillLog() holds.
void commit(benchmark::State& state, bool known)
{
    const bench::Folder folder;
    test::fillLog(folder.path(), "Uus144a", static_cast<int>(state.range(0)));
    test::fillMemory(folder.path(), static_cast<int>(state.range(0)));
    constexpr int mostQsos = 20000;
    if (known) {
        test::PlainLog memory(folder.path() / "DbsKelvo.mdb");
        memory.execute("BEGIN");
        for (int i = 0; i < mostQsos; ++i)
            memory.execute("INSERT INTO QRA (Call, QRA_LOC) VALUES ('DL" + std::to_string(i) + "X','KN16AA')");
        memory.execute("COMMIT");
    }
    test::Station station(folder.path(), nullptr);
    int number = 0;
    for (auto _ : state) {
        station.fillScreen("DL" + std::to_string(number++) + "X", known);
        const auto start = Clock::now();
        station.down("Enter");
        state.SetIterationTime(secondsSince(start));
        station.press("Enter");
        if (!FrmQSO.txtIndic.Text.get().empty()) state.SkipWithError("the screen did not clear");
    }
}

void commitKnownStation(benchmark::State& state)
{
    commit(state, true);
}

void commitNewStation(benchmark::State& state)
{
    commit(state, false);
}

BENCHMARK(bareInsert)->Arg(100)->Arg(10000)->Arg(30000)->UseManualTime()->Iterations(200);
BENCHMARK(commitKnownStation)->Arg(100)->Arg(10000)->Arg(30000)->UseManualTime()->Iterations(200);
BENCHMARK(commitNewStation)->Arg(100)->Arg(10000)->Arg(30000)->UseManualTime()->Iterations(200);

}  // namespace

BENCHMARK_MAIN();
