// Watches the keys of the whole application and brings those of the form to the program.
#pragma once

#include <QObject>
#include <QTimer>
#include <QWidget>
#include <functional>

#include "app/queue.h"
#include "desktop/key_state.h"
#include "desktop/key_translator.h"

namespace desktop {

class Keyboard final : public QObject {
    Q_OBJECT
 public:
    using Poster = std::function<void(const app::QueueEntry&)>;

    /// `form` is the widget whose keys belong to the program. All arguments outlive the watch.
    Keyboard(QWidget& form, PolledKeys& polledKeys, Poster post);

    /// Letters that open a menu together with Alt, as capitals: these stay with the menu bar.
    void setMenuLetters(const QString& letters) { menuLetters_ = letters; }

    /// A release is kept back for a moment.
    bool holdsRelease() const { return translator_.holdsRelease(); }

    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    bool isForForm(const QKeyEvent& event) const;
    bool isOtherWindow(const QObject& watched) const;
    void notePolled(const QKeyEvent& event);
    void wentDown(const QKeyEvent& event);
    void cameUp(const QKeyEvent& event);
    void letGo();
    void post(const KeyTranslator::Entries& entries) const;

    QWidget& form_;
    PolledKeys& polledKeys_;
    Poster post_;
    QString menuLetters_;
    KeyTranslator translator_;
    QTimer turn_;
};

}  // namespace desktop
