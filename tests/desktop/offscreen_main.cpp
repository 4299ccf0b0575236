// Runs the tests of a file inside one application without a screen.
#include <gtest/gtest.h>

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <cstdio>

#include "desktop/look.h"

namespace {

/// The platform without a screen complains of what only a screen could do.
void passOnMessage(QtMsgType, const QMessageLogContext&, const QString& message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support")))
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

}  // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    // The loudspeaker of whoever runs the tests stays silent. Tests of sound choose for themselves.
    if (!qEnvironmentVariableIsSet("ALSOFT_DRIVERS")) qputenv("ALSOFT_DRIVERS", "null");
    // Nor does a sheet leave a printer: they are asked for where no print service answers.
    qputenv("CUPS_SERVER", "/nowhere/cups.sock");
    // What the windows keep for their user stays in a folder of the run.
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    testing::InitGoogleTest(&argc, argv);
    qInstallMessageHandler(passOnMessage);
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    desktop::styleApplication();
    return RUN_ALL_TESTS();
}
