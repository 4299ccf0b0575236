// The quiet line at the foot of the window.
#pragma once

#include <QWidget>

namespace desktop {

class NoticeLine final : public QWidget {
    Q_OBJECT
 public:
    explicit NoticeLine(QWidget* parent = nullptr);

    /// Shows a notice, cut when it is too long; pointing at it shows all of it.
    void setNotice(const QString& notice);
    const QString& notice() const { return notice_; }

    QSize sizeHint() const override;

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    QString notice_;
};

}  // namespace desktop
