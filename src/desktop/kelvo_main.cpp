// The desktop program: kelvo [--folder DIR] [WORD].

#include <QApplication>
#include <cstdio>

#include "desktop/command_line.h"
#include "desktop/desktop_program.h"
#include "desktop/termination_signals.h"

namespace {

constexpr int statusOfBadCommandLine = 2;
constexpr int statusWithoutDisplay = 3;

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

}  // namespace

int main(int argc, char** argv)
{
    if (!hasDisplay()) {
        std::fputs("Kelvo needs a display: neither DISPLAY nor WAYLAND_DISPLAY is set.\n", stderr);
        return statusWithoutDisplay;
    }
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Kelvo"));
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(QStringLiteral("Fusion"));

    const desktop::CommandLine commandLine =
        desktop::readCommandLine(QApplication::arguments(), QApplication::applicationDirPath());
    if (!commandLine.complaint.isEmpty()) {
        std::fprintf(stderr, "%s\nUse: kelvo [--folder DIR] [WORD]\n", qPrintable(commandLine.complaint));
        return statusOfBadCommandLine;
    }

    desktop::DesktopProgram program(commandLine);
    const desktop::TerminationSignals signalsToEnd([&program] { program.askToEnd(); });
    QObject::connect(&program, &desktop::DesktopProgram::finished, &application, &QApplication::quit);
    program.start();
    return QApplication::exec();
}
