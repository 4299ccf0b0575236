// The quiet line at the foot of the window: the last notice, or how far long work has come.
#pragma once

#include <QWidget>
#include <optional>

namespace desktop {

/// What is to be seen of long work.
struct ProgressShown {
    QString text;
    std::optional<double> share = {};  ///< of the work that is done, from 0 to 1; nothing when nobody knows
    bool operator==(const ProgressShown&) const = default;
};

class NoticeLine final : public QWidget {
    Q_OBJECT
 public:
    explicit NoticeLine(QWidget* parent = nullptr);

    /// Shows a notice, cut when it is too long; pointing at it shows all of it.
    void setNotice(const QString& notice);
    const QString& notice() const { return notice_; }

    /// Shows work in the place of the notice, with a bar where its share is known; nothing gives the notice back.
    void setProgress(const std::optional<ProgressShown>& progress);
    /// What the line shows now, whole.
    const QString& shown() const { return progress_ ? progress_->text : notice_; }
    const std::optional<ProgressShown>& progress() const { return progress_; }

    QSize sizeHint() const override;

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    QRect paintBar(QPainter& painter, const QRect& room) const;

    QString notice_;
    std::optional<ProgressShown> progress_;
};

}  // namespace desktop
