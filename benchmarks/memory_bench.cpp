// Resident memory of the desktop program with 30,000 rows of a table shown, over an empty Qt window, in megabytes.
//
//     QT_QPA_PLATFORM=offscreen memory_bench empty; QT_QPA_PLATFORM=offscreen memory_bench kelvo
#include <QApplication>
#include <QMainWindow>
#include <cstdio>
#include <cstring>
#include <string>

#include "bench_folder.h"
#include "desktop/desktop_program.h"
#include "figure.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"
#include "support/station.h"

namespace {

void showEmptyWindow()
{
    QMainWindow window;
    window.showMaximized();
    for (int i = 0; i < 20; ++i)
        QApplication::processEvents();
    std::printf("empty window %.1f\n", bench::residentMegabytes());
    bench::tellFigure("empty", bench::residentMegabytes(), "MB");
}

void showLog()
{
    const bench::Folder folder;
    test::fillLog(folder.path(), "Uus144a", 30000);
    desktop::CommandLine commandLine;
    commandLine.programFolder = folder.path().string();
    desktop::DesktopProgram program(commandLine);
    program.start();
    program.waitUntilIdle();
    for (screen::Control* control :
         {static_cast<screen::Control*>(&FrmInit.OpBFloareademina), static_cast<screen::Control*>(&FrmInit.OpbTest),
          static_cast<screen::Control*>(&FrmInit.mnuQSOfahren), static_cast<screen::Control*>(&FrmQSO.Cmd144),
          static_cast<screen::Control*>(&FrmQSO.CmdCW)}) {
        program.post(app::ControlClicked{control});
        program.waitUntilIdle();
    }
    constexpr long page = 10;
    for (int i = 0; i < 200; ++i)
        program.post(app::GridScrolled{&FrmQSO.DBGrid1, -page, page});
    program.waitUntilIdle();
    const bool shown = program.picture().form == "FrmQSO" && FrmQSO.DBGrid1.seen();
    std::printf("kelvo, 30,000 rows %.1f%s\n", bench::residentMegabytes(), shown ? "" : " (the log is NOT in view)");
    bench::tellFigure("kelvo", bench::residentMegabytes(), "MB");
}

}  // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    if (argc == 2 && std::strcmp(argv[1], "empty") == 0) {
        showEmptyWindow();
        return 0;
    }
    showLog();
    return 0;
}
