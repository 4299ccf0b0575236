// Scrolling through big logs in the window, by the wheel, by pages and by the thumb: from the posted entry until the
// picture with the rows is on the screen, and until it is painted. Prints milliseconds.
//
//     QT_QPA_PLATFORM=offscreen scroll_bench
#include <QApplication>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "bench_folder.h"
#include "desktop/desktop_program.h"
#include "figure.h"
#include "screen/frm_anzeigen.h"
#include "screen/frm_init.h"
#include "support/station.h"

namespace {

using Clock = std::chrono::steady_clock;
using Times = std::vector<double>;

constexpr int rows = 30000;
constexpr int steps = 400;
constexpr double mostMilliseconds = 16;

double millisecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

void fillMaratonLog(const std::filesystem::path& folder)
{
    test::PlainLog log(folder / "LogKelvo.mdb");
    log.execute(
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " + std::to_string(rows) +
        ") INSERT INTO UusLGYO2 (Callsign, Data, UTC, Sent, Rcvd, Mode, Bnd, QRALcR, NameR, Pct, QRALcE, NameE) "
        "SELECT printf('YO2%04dA', i % 9999), '15.11.26', '12:34', '599 001', '599 002', 'CW', "
        "CASE i % 4 WHEN 0 THEN '432' ELSE '144' END, 'KN16AA', 'ANA', '163', 'KN05OS', 'ION' FROM n");
}

/// The review form of the program, in its window over the whole screen.
class Window {
 public:
    /// In the contest of an option of the set-up page.
    Window(const bench::Folder& folder, screen::Control& contest) : program_(commandLineFor(folder))
    {
        program_.start();
        program_.waitUntilIdle();
        for (screen::Control* control :
             {&contest, static_cast<screen::Control*>(&FrmInit.OpbTest), static_cast<screen::Control*>(&FrmInit.mnuLOG),
              static_cast<screen::Control*>(&FrmAnzeigen.mnuLogAnzeigen)})
            click(*control);
    }

    void click(screen::Control& control)
    {
        program_.post(app::ControlClicked{&control});
        program_.waitUntilIdle();
    }

    /// Rows that have room in the grid.
    std::size_t capacityOf(const screen::Grid& grid)
    {
        const desktop::FormScale scale(program_.picture().width, program_.picture().height, program_.form().size());
        for (const app::ControlPicture& control : program_.picture().controls)
            if (control.control == &grid) return desktop::layOutGrid(control, scale).capacity;
        std::printf("%s is NOT in view\n", grid.name.c_str());
        return 1;
    }

    /// Each step of scrolling makes another one.
    std::shared_ptr<const app::GridPicture> shownOf(const screen::Grid& grid)
    {
        for (const app::ControlPicture& control : program_.picture().controls)
            if (control.control == &grid) return control.grid;
        return nullptr;
    }

    void step(const screen::Grid& grid, const app::QueueEntry& entry, Times& shown, Times& painted)
    {
        const std::shared_ptr<const app::GridPicture> before = shownOf(grid);
        const auto start = Clock::now();
        program_.post(entry);
        while (shownOf(grid) == before)
            QApplication::processEvents();
        shown.push_back(millisecondsSince(start));
        QApplication::processEvents();
        painted.push_back(millisecondsSince(start));
    }

 private:
    static desktop::CommandLine commandLineFor(const bench::Folder& folder)
    {
        desktop::CommandLine commandLine;
        commandLine.programFolder = folder.path().string();
        return commandLine;
    }

    desktop::DesktopProgram program_;
};

Times allShown;
Times allPainted;

void print(const std::string& name, const char* what, Times times)
{
    std::sort(times.begin(), times.end());
    const auto at = [&](double part) {
        return times[static_cast<std::size_t>(part * static_cast<double>(times.size() - 1))];
    };
    const auto stalls = times.end() - std::upper_bound(times.begin(), times.end(), mostMilliseconds);
    std::printf("%-34s %-8s median %7.3f   99%% %7.3f   worst %7.3f   stalls %d\n", name.c_str(), what, at(0.5),
                at(0.99), at(1.0), static_cast<int>(stalls));
}

template <typename EntryOfStep>
void measure(Window& window, const screen::Grid& grid, const std::string& name, EntryOfStep&& entryOfStep)
{
    Times shown;
    Times painted;
    for (int i = 0; i < steps; ++i)
        window.step(grid, entryOfStep(i), shown, painted);
    allShown.insert(allShown.end(), shown.begin(), shown.end());
    allPainted.insert(allPainted.end(), painted.begin(), painted.end());
    print(name, "shown", shown);
    print(name, "painted", painted);
}

void scrollThrough(Window& window, const std::string& log, screen::Grid& grid)
{
    const std::size_t capacity = window.capacityOf(grid);
    const auto by = [&](long count) { return app::GridScrolled{&grid, count, capacity}; };
    const long page = static_cast<long>(capacity) - 1;
    // The first thing dragged is the middle, where nothing has been yet.
    measure(window, grid, log + ", thumb", [&](int i) {
        const double place = static_cast<double>(i * 2 % steps) / steps;
        return app::GridDragged{&grid, i < steps / 2 ? 0.5 + place / 2 : 1 - place, capacity};
    });
    measure(window, grid, log + ", wheel", [&](int i) { return by(i < steps / 2 ? 3 : -3); });
    measure(window, grid, log + ", pages", [&](int i) { return by(i < steps / 2 ? page : -page); });
    measure(window, grid, log + ", end to end", [&](int i) { return by(i % 2 == 0 ? -rows : rows); });
}

void reviewBandContest(const bench::Folder& folder)
{
    Window window(folder, FrmInit.OpBCampNatUUS);
    window.click(FrmAnzeigen.OpB144a);
    scrollThrough(window, "band log", FrmAnzeigen.DBGrid1);
    window.click(FrmAnzeigen.OpBQRALoc);
    scrollThrough(window, "locators by call", FrmAnzeigen.DBGrid5);
}

void reviewMaraton(const bench::Folder& folder)
{
    Window window(folder, FrmInit.OpBMaraton);
    window.click(FrmAnzeigen.OpB144a);
    scrollThrough(window, "Maraton log of a band", FrmAnzeigen.DBGrid9);
}

}  // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const bench::Folder folder;
    test::fillLog(folder.path(), "Uus144a", rows);
    fillMaratonLog(folder.path());
    test::fillMemory(folder.path(), rows);
    reviewBandContest(folder);
    reviewMaraton(folder);
    for (const auto& [what, times] : {std::pair("shown", &allShown), std::pair("painted", &allPainted)}) {
        bench::tellFigure(std::string(what) + ".99", bench::quantile(*times, 0.99), "ms");
        bench::tellFigure(std::string(what) + ".worst", bench::quantile(*times, 1), "ms");
    }
    return 0;
}
