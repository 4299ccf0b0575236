#include "desktop/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFontInfo>
#include <QToolTip>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/characters.h"
#include "desktop/menu.h"

namespace desktop {

namespace {

/// Pixels of the texts around the form: they grow with the window as those of the form do.
int fontPixelsFor(int windowHeight)
{
    constexpr int designPixels = 11;
    constexpr int designHeight = 600;
    const int systemPixels = QFontInfo(QApplication::font()).pixelSize();
    return std::max(systemPixels, windowHeight * designPixels / designHeight);
}

}  // namespace

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
    connect(menuBar(), &QMenuBar::triggered, this, &MainWindow::leaveIdleMenuBar, Qt::QueuedConnection);
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

void MainWindow::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    QFont texts = QApplication::font();
    texts.setPixelSize(fontPixelsFor(height()));
    setFont(texts);
    QToolTip::setFont(texts);
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event)
{
    const bool key = event->type() == QEvent::KeyPress;
    // Behind the event: by then a key may have left the bar or picked an entry, the pointer have taken the mark away.
    if (watched == menuBar() && (key || event->type() == QEvent::Leave))
        QMetaObject::invokeMethod(this, &MainWindow::leaveIdleMenuBar, Qt::QueuedConnection);
    if (watched == form_ && key && static_cast<QKeyEvent*>(event)->key() == Qt::Key_F10) {
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

/// A menu bar without a marked entry has no use for keys: they are the form's again.
void MainWindow::leaveIdleMenuBar()
{
    if (menuBar()->activeAction() == nullptr) form_->setFocus();
}

}  // namespace desktop
