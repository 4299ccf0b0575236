// A key from the queue to the published picture, on an idle form, beside a value copy of that picture.
#include <benchmark/benchmark.h>

#include "base/text.h"
#include "bench_folder.h"
#include "screen/frm_qso.h"
#include "support/station.h"

namespace {

class LastPicture : public app::PictureSink {
 public:
    void publish(std::shared_ptr<const app::Picture> picture) override { last = std::move(picture); }
    std::shared_ptr<const app::Picture> last;
};

void copyOfPicture(benchmark::State& state)
{
    const bench::Folder folder;
    LastPicture sink;
    test::Station station(folder.path(), &sink);
    for (auto _ : state) {
        auto copy = std::make_shared<app::Picture>(*sink.last);
        benchmark::DoNotOptimize(copy);
    }
}

/// A letter in the report field, which has no search behind it, and its Backspace.
void keyToPicture(benchmark::State& state)
{
    const bench::Folder folder;
    LastPicture sink;
    test::Station station(folder.path(), &sink);
    station.program().handle(app::FocusAsked{&FrmQSO.TxtRSTR1});
    bool erase = false;
    for (auto _ : state) {
        station.down(erase ? "Backspace" : "5");
        erase = !erase;
        benchmark::DoNotOptimize(sink.last);
    }
}

/// A letter of the call, which narrows the grid.
void keyInCallToPicture(benchmark::State& state)
{
    const bench::Folder folder;
    test::fillLog(folder.path(), "Uus144a", static_cast<int>(state.range(0)));
    LastPicture sink;
    test::Station station(folder.path(), &sink);
    station.type("Y");
    bool erase = false;
    for (auto _ : state) {
        station.down(erase ? "Backspace" : "O");
        erase = !erase;
        benchmark::DoNotOptimize(sink.last);
    }
}

BENCHMARK(copyOfPicture)->Unit(benchmark::kMicrosecond);
BENCHMARK(keyToPicture)->Unit(benchmark::kMicrosecond);
BENCHMARK(keyInCallToPicture)->Arg(100)->Arg(30000)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
