// Writing a big log for the organisers, in each of its formats, beside a bare loop that reads the same columns and
// writes as many bytes.
#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "bench_folder.h"
#include "review/writers.h"
#include "runstate/modul1.h"
#include "screen/frm_anzeigen.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"
#include "support/station.h"

namespace {

namespace fs = std::filesystem;

constexpr int rows = 30000;

/// Where and how a log is written.
struct Road {
    std::uint16_t OutMode;
    std::uint16_t OutFormat;
    std::uint16_t ArhFormat;
    const char* file;
    std::size_t bytesARow;  ///< of a row of the log that is written here, with its line end
};

constexpr Road roads[] = {
    {10, 10, 0, "Log/YO2XYZ144 Floare26.txt", 68},
    {10, 100, 0, "Log/YO2XYZ144 Floare26.edi", 58},
    {20, 10, 60, "Arhiva/BENCH.adi", 127},
};

const char* nameOf(const Road& road)
{
    if (road.ArhFormat == 60) return "ADIF";
    return road.OutFormat == 100 ? "EDI" : "text";
}

/// A station that came from the entry form to the review form, with a full log on 144 MHz.
class Exporter {
 public:
    Exporter() : station_(prepared(folder_.path()), nullptr)
    {
        click(FrmQSO.mnuAnfang);
        click(FrmInit.mnuLOG);
    }

    void write(const Road& road)
    {
        FrmAnzeigen.OutMode = road.OutMode;
        FrmAnzeigen.OutFormat = road.OutFormat;
        FrmAnzeigen.ArhFormat = road.ArhFormat;
        FrmAnzeigen.ArhName = "BENCH";
        review::PLog144();
        Modul1.FileNo.close();
    }

    fs::path fileOf(const Road& road) const { return folder_.path() / road.file; }

 private:
    static const fs::path& prepared(const fs::path& folder)
    {
        fs::create_directory(folder / "Log");
        fs::create_directory(folder / "Arhiva");
        test::fillLog(folder, "Uus144a", rows);
        return folder;
    }

    void click(screen::Control& control) { station_.program().handle(app::ControlClicked{&control}); }

    bench::Folder folder_;
    test::Station station_;
};

/// Nine columns of every row, and a line of the same length for each.
void bareLoop(benchmark::State& state)
{
    const Road& road = roads[state.range(0)];
    state.SetLabel(nameOf(road));
    const bench::Folder folder;
    test::fillLog(folder.path(), "Uus144a", rows);
    sqlite3* log = nullptr;
    sqlite3_open((folder.path() / "LogKelvo.mdb").c_str(), &log);
    for (auto _ : state) {
        std::ofstream file(folder.path() / "out.txt", std::ios::binary | std::ios::trunc);
        sqlite3_stmt* statement = nullptr;
        sqlite3_prepare_v2(log,
                           "SELECT Callsign, Data, UTC, Sent, Rcvd, Mode, Freq, QRALoc, Pct FROM Uus144a ORDER BY ID",
                           -1, &statement, nullptr);
        std::string line;
        while (sqlite3_step(statement) == SQLITE_ROW) {
            line.clear();
            for (int column = 0; column < 9; ++column)
                line.append(reinterpret_cast<const char*>(sqlite3_column_text(statement, column)),
                            static_cast<std::size_t>(sqlite3_column_bytes(statement, column)));
            line.resize(road.bytesARow, ' ');
            file.write(line.data(), static_cast<std::streamsize>(line.size()));
        }
        sqlite3_finalize(statement);
        file.close();
    }
    sqlite3_close(log);
}

void exportLog(benchmark::State& state)
{
    const Road& road = roads[state.range(0)];
    state.SetLabel(nameOf(road));
    Exporter exporter;
    for (auto _ : state)
        exporter.write(road);
    const auto size = fs::exists(exporter.fileOf(road)) ? fs::file_size(exporter.fileOf(road)) : 0;
    if (size / rows != road.bytesARow) state.SkipWithError("a row has another length");
    if (Modul1.Qso144a != rows) state.SkipWithError("the count is wrong");
}

BENCHMARK(bareLoop)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);
BENCHMARK(exportLog)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
