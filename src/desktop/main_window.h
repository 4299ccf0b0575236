// The window: menu bar, form and notice line.
#pragma once

#include <QMainWindow>
#include <memory>
#include <optional>

#include "desktop/form_view.h"
#include "desktop/notice_line.h"

namespace desktop {

class MainWindow final : public QMainWindow {
    Q_OBJECT
 public:
    using Poster = std::function<void(const app::QueueEntry&)>;

    explicit MainWindow(const Poster& post);

    void setPicture(const std::shared_ptr<const app::Picture>& picture);

    FormView& form() { return *form_; }
    NoticeLine& noticeLine() { return *noticeLine_; }
    /// Letters that open a menu together with Alt.
    QString menuLetters() const;

    /// Closes the window: the program has ended. Before that, closing only asks the program.
    void closeForGood();

 protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void setMenu(const std::vector<app::MenuPicture>& menu);
    void enterMenuBar();
    void leaveIdleMenuBar();

    Poster post_;
    FormView* form_;
    NoticeLine* noticeLine_;
    std::vector<app::MenuPicture> menu_;
    bool programEnded_ = false;
};

}  // namespace desktop
