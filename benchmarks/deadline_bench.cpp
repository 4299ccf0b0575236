// Sleeping to a deadline on the program thread while the window repaints as fast as it can, beside a bare loop of the
// same sleeps on a thread of its own. Prints how late the sleeps end, in milliseconds.
//
//     QT_QPA_PLATFORM=offscreen deadline_bench
#include <QApplication>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <string>
#include <thread>
#include <vector>

#include "bench_folder.h"
#include "desktop/desktop_program.h"
#include "figure.h"
#include "screen/frm_init.h"

namespace {

constexpr int sleeps = 1500;
constexpr std::chrono::milliseconds period(3);

using Late = std::vector<double>;

/// How late each sleep to a deadline ended; `sleepUntil` as the program's clock.
template <typename Now, typename SleepUntil>
Late measure(Now now, SleepUntil sleepUntil)
{
    Late late;
    auto deadline = now();
    for (int i = 0; i < sleeps; ++i) {
        deadline += period;
        sleepUntil(deadline);
        late.push_back(std::chrono::duration<double, std::milli>(now() - deadline).count());
    }
    return late;
}

void print(const char* name, const char* figure, const Late& late)
{
    std::printf("%-34s median %7.3f   99%% %7.3f   worst %7.3f\n", name, bench::quantile(late, 0.5),
                bench::quantile(late, 0.99), bench::quantile(late, 1));
    bench::tellFigure(std::string(figure) + ".median", bench::quantile(late, 0.5), "ms");
    bench::tellFigure(std::string(figure) + ".99", bench::quantile(late, 0.99), "ms");
}

Late bareLoop()
{
    Late late;
    std::thread([&] {
        late = measure([] { return std::chrono::steady_clock::now(); },
                       [](auto deadline) { std::this_thread::sleep_until(deadline); });
    }).join();
    return late;
}

Late programLate;
std::atomic<bool> measured{false};

void sleepInHandler()
{
    platform::Clock& clock = platform::machine().clock;
    programLate = measure([&] { return clock.monotonic(); }, [&](auto deadline) { clock.sleepUntil(deadline); });
    measured = true;
}

Late onProgramThread()
{
    const bench::Folder folder;
    desktop::CommandLine commandLine;
    commandLine.programFolder = folder.path().string();
    desktop::DesktopProgram program(commandLine);
    program.start();
    program.waitUntilIdle();
    FrmInit.OpbTest.Click = nullptr;
    FrmInit.mnuInit.Click = sleepInHandler;
    program.post(app::ControlClicked{&FrmInit.mnuInit});
    while (!measured) {
        program.form().repaint();
        QApplication::processEvents();
    }
    return programLate;
}

}  // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    Late bare = bareLoop();
    const Late program = onProgramThread();
    const Late bareAgain = bareLoop();
    bare.insert(bare.end(), bareAgain.begin(), bareAgain.end());
    print("program thread, window repainting", "program", program);
    print("bare loop, idle, before and behind", "bare", bare);
    return 0;
}
