// The search field of the help window: the words, how many places were found, the way from one to the next.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QWidget>

namespace desktop {

class HelpSearchBar final : public QWidget {
    Q_OBJECT
 public:
    explicit HelpSearchBar(QWidget* parent = nullptr);

    QLineEdit& field() { return *field_; }
    /// What is told of the places found: "2 of 7", "not found", nothing.
    QString count() const { return count_->text(); }

    /// Place number `current` from 0 of `total`.
    void showCount(std::size_t current, std::size_t total);
    void showNotFound();
    void showNothing();

    /// Begins a new search with a key that was typed elsewhere in the window.
    void beginWith(QKeyEvent& key);

 Q_SIGNALS:
    void wordsChanged(const QString& words);
    void nextAsked();
    void previousAsked();
    /// A key that scrolls the page.
    void pageKeyPressed(QKeyEvent* key);

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void tell(const QString& text, bool found);

    QLineEdit* field_;
    QLabel* count_;
    QToolButton* previous_;
    QToolButton* next_;
};

}  // namespace desktop
