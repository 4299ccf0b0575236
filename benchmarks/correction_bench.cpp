// A row deleted in the middle of a big contest, beside the bare statements that it stands on; and the keys of a paper
// log that is typed into a big one.
#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <chrono>
#include <cstdlib>
#include <optional>
#include <string>

#include "bench_folder.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"
#include "support/station.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int rows = 30000;
constexpr int deletions = 200;

double secondsSince(Clock::time_point start)
{
    return std::chrono::duration<double>(Clock::now() - start).count();
}

class LastPicture : public app::PictureSink {
 public:
    void publish(std::shared_ptr<const app::Picture> picture) override { last = std::move(picture); }
    std::shared_ptr<const app::Picture> last;
};

/// Reads what a recount reads.
double sumOfPoints(sqlite3* log)
{
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(log, "SELECT Pct, QRALoc FROM Uus144a", -1, &statement, nullptr);
    double sum = 0;
    while (sqlite3_step(statement) == SQLITE_ROW) {
        sum += std::atof(reinterpret_cast<const char*>(sqlite3_column_text(statement, 0)));
        benchmark::DoNotOptimize(sqlite3_column_text(statement, 1));
    }
    sqlite3_finalize(statement);
    return sum;
}

void bareDeleteAndSelect(benchmark::State& state)
{
    const bench::Folder folder;
    test::fillLog(folder.path(), "Uus144a", rows);
    test::PlainLog log(folder.path() / "LogKelvo.mdb");
    sqlite3* reader = nullptr;
    sqlite3_open((folder.path() / "LogKelvo.mdb").c_str(), &reader);
    int key = rows;
    for (auto _ : state) {
        const auto start = Clock::now();
        log.execute("DELETE FROM Uus144a WHERE ID=" + std::to_string(key--));
        benchmark::DoNotOptimize(sumOfPoints(reader));
        state.SetIterationTime(secondsSince(start));
    }
    sqlite3_close(reader);
}

/// From the key to the picture without the row, both boxes answered at once.
void deleteNewestRow(benchmark::State& state)
{
    const bench::Folder folder;
    test::fillLog(folder.path(), "Uus144a", rows);
    LastPicture sink;
    test::Station station(folder.path(), &sink);
    int left = rows;
    for (auto _ : state) {
        station.machine().boxes.queueAnswer(platform::buttonYes, 0);
        const auto start = Clock::now();
        station.down("Ctrl+Delete");
        state.SetIterationTime(secondsSince(start));
        station.press("Ctrl+Delete");
        if (Modul1.Qso144a != --left) state.SkipWithError("the row was not deleted");
    }
}

/// The station in paper-log input, at the beginning of a line.
class PaperStation {
 public:
    PaperStation()
    {
        test::fillLog(folder_.path(), "Uus144a", rows);
        test::fillMemory(folder_.path(), rows);
        station.emplace(folder_.path(), &sink_);
        Modul1.OfflineInput = 100;
        Modul1.DateOff = "15.11.26";
        Modul1.TimeOff = "18:";
    }

 private:
    bench::Folder folder_;
    LastPicture sink_;

 public:
    std::optional<test::Station> station;
};

void paperKeyInCall(benchmark::State& state)
{
    PaperStation paper;
    paper.station->type("Y");
    bool erase = false;
    for (auto _ : state) {
        paper.station->down(erase ? "Backspace" : "O");
        erase = !erase;
    }
}

/// Tab takes a call that the memory knows and the log has, and leads to the minutes.
void paperTabInCall(benchmark::State& state)
{
    PaperStation paper;
    for (auto _ : state) {
        paper.station->type("YO2AAAA");
        const auto start = Clock::now();
        paper.station->down("Tab");
        state.SetIterationTime(secondsSince(start));
        if (FrmQSO.ActiveControl != &FrmQSO.TxtUTC) state.SkipWithError("the minutes were not asked for");
        paper.station->program().handle(app::ControlClicked{&FrmQSO.CmdAbbruchX});
    }
}

/// The first digit of the minutes, and the second, which leads on to the code.
void paperMinutes(benchmark::State& state)
{
    PaperStation paper;
    paper.station->type("YO2AAAA");
    paper.station->press("Tab");
    for (auto _ : state) {
        paper.station->down("3");
        paper.station->down("4");
        state.PauseTiming();
        if (FrmQSO.ActiveControl != &FrmQSO.TxtRSTR2) state.SkipWithError("the minutes did not lead on");
        paper.station->press("F3");
        state.ResumeTiming();
    }
    state.SetItemsProcessed(2 * static_cast<std::int64_t>(state.iterations()));
}

BENCHMARK(bareDeleteAndSelect)->UseManualTime()->Iterations(deletions)->Unit(benchmark::kMillisecond);
BENCHMARK(deleteNewestRow)->UseManualTime()->Iterations(deletions)->Unit(benchmark::kMillisecond);
BENCHMARK(paperKeyInCall)->Unit(benchmark::kMicrosecond);
BENCHMARK(paperTabInCall)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(paperMinutes)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
