// An empty window of the toolkit over the whole screen: ends as soon as it is painted.
#include <QApplication>
#include <QMainWindow>
#include <QScreen>
#include <QTimer>

#include "start_mark.h"

namespace {

class EmptyWindow final : public QMainWindow {
 protected:
    void paintEvent(QPaintEvent* event) override
    {
        QMainWindow::paintEvent(event);
        // Behind the event the window is on its way to the screen.
        QTimer::singleShot(0, this, [] {
            QGuiApplication::sync();
            bench::tellReady();
            QApplication::quit();
        });
    }
};

}  // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    EmptyWindow window;
    if (const QScreen* screen = window.screen()) window.setGeometry(screen->availableGeometry());
    window.showMaximized();
    return QApplication::exec();
}
