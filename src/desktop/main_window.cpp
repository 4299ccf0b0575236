#include "desktop/main_window.h"

#include <QCloseEvent>
#include <QVBoxLayout>

#include "desktop/characters.h"
#include "desktop/menu.h"

namespace desktop {

MainWindow::MainWindow(const Poster& post) : post_(post), form_(new FormView(post)), noticeLine_(new NoticeLine)
{
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(form_, 1);
    layout->addWidget(noticeLine_);
    setCentralWidget(page);
    menuBar()->setNativeMenuBar(false);
    menuBar()->installEventFilter(this);
    form_->installEventFilter(this);
    form_->setFocus();
    setWindowTitle(QStringLiteral("Kelvo"));
}

void MainWindow::setPicture(const std::shared_ptr<const app::Picture>& picture)
{
    setMenu(picture->menu);
    form_->setPicture(picture);
    noticeLine_->setNotice(toolkitText(picture->notice));
    const QString title = toolkitText(picture->caption);
    setWindowTitle(title.isEmpty() ? QStringLiteral("Kelvo") : title);
}

void MainWindow::setMenu(const std::vector<app::MenuPicture>& menu)
{
    if (sameMenu(menu, menu_)) return;
    menu_ = menu;
    fillMenuBar(*menuBar(), menu_, [this](screen::Control* entry) { post_(app::ControlClicked{entry}); });
}

QString MainWindow::menuLetters() const
{
    return lettersOfMenus(menu_);
}

void MainWindow::closeForGood()
{
    programEnded_ = true;
    close();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(programEnded_);
    if (!programEnded_) post_(app::CloseAsked{});
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == form_ && event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_F10) {
        enterMenuBar();
        return true;
    }
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::enterMenuBar()
{
    const QList<QAction*> entries = menuBar()->actions();
    if (entries.isEmpty()) return;
    menuBar()->setFocus(Qt::MenuBarFocusReason);
    menuBar()->setActiveAction(entries.front());
}

}  // namespace desktop
