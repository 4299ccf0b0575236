// One line of text in a window of the toolkit, typed into as the program is, with the same watch. Ends with Escape.
#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QScreen>
#include <QShortcut>

#include "key_watch.h"

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QMainWindow window;
    window.setWindowTitle(QStringLiteral("Kelvo"));
    auto* const line = new QLineEdit;
    window.setCentralWidget(line);
    QObject::connect(line, &QLineEdit::returnPressed, line, &QLineEdit::clear);
    QObject::connect(new QShortcut(Qt::Key_Escape, &window), &QShortcut::activated, &window, &QWidget::close);
    if (const QScreen* screen = window.screen()) window.setGeometry(screen->availableGeometry());
    window.showMaximized();
    line->setFocus();
    const bench::KeyWatch watch(
        *line, [] { return true; }, [] { return true; });
    const int status = QApplication::exec();
    watch.tell();
    return status;
}
