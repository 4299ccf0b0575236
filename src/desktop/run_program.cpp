#include "desktop/run_program.h"

#include <QApplication>
#include <QDir>
#include <cstdio>

#include "desktop/command_line.h"
#include "desktop/complaint.h"
#include "desktop/desktop_program.h"
#include "desktop/first_use.h"
#include "desktop/look.h"
#include "desktop/own_files.h"
#include "desktop/sound_messages.h"
#include "desktop/termination_signals.h"

namespace desktop {

namespace {

constexpr int statusOfBadCommandLine = 2;
constexpr int statusWithoutDisplay = 3;
constexpr int statusWithoutFolder = 4;

/// Where windows come from a display server, the toolkit aborts when there is none.
bool hasDisplay()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) return true;
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
#else
    return true;
#endif
}

int runIn(CommandLine commandLine, const ReadyFolder& folder, const std::function<void(DesktopProgram&)>& started)
{
    commandLine.programFolder = folder.folder;
    DesktopProgram program(commandLine);
    const TerminationSignals signalsToEnd([&program] { program.askToEnd(); });
    QObject::connect(&program, &DesktopProgram::finished, qApp, &QApplication::quit);
    program.start(folder.notice);
    if (started) started(program);
    return QApplication::exec();
}

}  // namespace

int runProgram(int argc, char** argv, const std::function<void(DesktopProgram&)>& started)
{
    if (!hasDisplay()) {
        std::fputs("Kelvo needs a display: neither DISPLAY nor WAYLAND_DISPLAY is set.\n", stderr);
        return statusWithoutDisplay;
    }
    silenceSoundLibraries();
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Kelvo"));
    QApplication::setQuitOnLastWindowClosed(false);
    styleApplication();
    showOwnIcon();
    addOwnFonts(QApplication::applicationDirPath());

    const CommandLine commandLine = readCommandLine(QApplication::arguments(), QApplication::applicationDirPath());
    if (!commandLine.complaint.isEmpty()) {
        complain(commandLine.complaint + QStringLiteral("\nUse: kelvo [--folder DIR] [WORD]"));
        return statusOfBadCommandLine;
    }

    FirstUse firstUse(commandLine, QDir::homePath() + QStringLiteral("/Kelvo"), chooseFolderInWindow);
    const std::optional<ReadyFolder> folder = firstUse.prepare();
    if (!folder) {
        std::fprintf(stderr, "%s\n", qPrintable(firstUse.whyNot()));
        return statusWithoutFolder;
    }
    return runIn(commandLine, *folder, started);
}

}  // namespace desktop
