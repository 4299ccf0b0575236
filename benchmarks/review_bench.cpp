// Reviewing a big log: opening the view of a table with its recount beside a bare statement that adds up the same
// column, the recount of all eight tables, and scrolling through the grid.
#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <string>

#include "bench_folder.h"
#include "review/sums.h"
#include "runstate/modul1.h"
#include "screen/frm_anzeigen.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"
#include "support/station.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int rows = 30000;
constexpr long page = 25;
constexpr const char* bandTables[] = {"Uus144a", "Uus144b", "Uus432a", "Uus432b", "Uus1296a", "Uus1296b", "UusGHz"};

class LastPicture : public app::PictureSink {
 public:
    void publish(std::shared_ptr<const app::Picture> picture) override { last = std::move(picture); }
    std::shared_ptr<const app::Picture> last;
};

/// A station that came from the entry form to the review form and began to view logs.
class Reviewer {
 public:
    explicit Reviewer(const std::filesystem::path& folder) : station_(folder, &sink_)
    {
        click(FrmQSO.mnuAnfang);
        click(FrmInit.mnuLOG);
        click(FrmAnzeigen.mnuLogAnzeigen);
    }

    void click(screen::Control& control) { station_.program().handle(app::ControlClicked{&control}); }
    void scroll(screen::Grid& grid, long by) { station_.program().handle(app::GridScrolled{&grid, by, page}); }

 private:
    LastPicture sink_;
    test::Station station_;
};

void fillMaratonLog(const std::filesystem::path& folder)
{
    test::PlainLog log(folder / "LogKelvo.mdb");
    log.execute("BEGIN");
    constexpr const char* bands[] = {"144", "432", "1296"};
    for (int row = 0; row < rows; ++row)
        log.execute(
            "INSERT INTO UusLGYO2 (Callsign, Data, UTC, Sent, Rcvd, Mode, Bnd, QRALcR, NameR, Pct, QRALcE, NameE) "
            "VALUES ('YO2ABC','15.11.26','12:34','599 001','599 002','CW','" +
            std::string(bands[row % 3]) + "','KN16AA','ANA','163','KN05OS','ION')");
    log.execute("COMMIT");
}

void bareSum(benchmark::State& state)
{
    const bench::Folder folder;
    test::fillLog(folder.path(), "Uus144a", rows);
    sqlite3* log = nullptr;
    sqlite3_open((folder.path() / "LogKelvo.mdb").c_str(), &log);
    for (auto _ : state) {
        sqlite3_stmt* statement = nullptr;
        sqlite3_prepare_v2(log, "SELECT Pct FROM Uus144a", -1, &statement, nullptr);
        double sum = 0;
        while (sqlite3_step(statement) == SQLITE_ROW)
            sum += std::atof(reinterpret_cast<const char*>(sqlite3_column_text(statement, 0)));
        benchmark::DoNotOptimize(sum);
        sqlite3_finalize(statement);
    }
    sqlite3_close(log);
}

/// The click on the button: the table read anew, counted, and its newest rows in the picture.
void openView(benchmark::State& state)
{
    const bench::Folder folder;
    test::fillLog(folder.path(), "Uus144a", rows);
    Reviewer reviewer(folder.path());
    for (auto _ : state)
        reviewer.click(FrmAnzeigen.OpB144a);
    if (FrmAnzeigen.LblQSO1.Caption != std::to_string(rows)) state.SkipWithError("the count is wrong");
    if (!FrmAnzeigen.DBGrid1.seen()) state.SkipWithError("the log is not in view");
}

void recountAllTables(benchmark::State& state)
{
    const bench::Folder folder;
    for (const char* table : bandTables)
        test::fillLog(folder.path(), table, rows);
    fillMaratonLog(folder.path());
    const Reviewer reviewer(folder.path());
    for (auto _ : state) {
        for (void (*sum)() : {review::Summe144a, review::Summe144b, review::Summe432a, review::Summe432b,
                              review::Summe1296a, review::Summe1296b, review::SummeGHz, review::SummeYO2})
            sum();
    }
    if (Modul1.QsoGHz != rows || Modul1.QsoYO1296 != rows / 3) state.SkipWithError("the recount is wrong");
}

/// From the newest row page by page to the oldest, back, and in one go from end to end. Says how long the longest of
/// these stalls was, from the entry to the published picture.
void scrollThrough(benchmark::State& state)
{
    const bench::Folder folder;
    test::fillLog(folder.path(), "Uus144a", rows);
    Reviewer reviewer(folder.path());
    reviewer.click(FrmAnzeigen.OpB144a);
    double longest = 0;
    const auto scroll = [&](long by) {
        const auto start = Clock::now();
        reviewer.scroll(FrmAnzeigen.DBGrid1, by);
        longest = std::max(longest, std::chrono::duration<double, std::milli>(Clock::now() - start).count());
    };
    for (auto _ : state) {
        for (const long by : {-page, page})
            for (int pages = 0; pages < rows / page; ++pages)
                scroll(by);
        for (const long by : {-rows, rows, -rows, rows})
            scroll(by);
    }
    state.counters["longest_ms"] = longest;
    state.counters["scrolls"] = 2.0 * rows / page + 4;
}

BENCHMARK(bareSum)->Unit(benchmark::kMillisecond);
BENCHMARK(openView)->Unit(benchmark::kMillisecond);
BENCHMARK(recountAllTables)->Unit(benchmark::kMillisecond);
BENCHMARK(scrollThrough)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
