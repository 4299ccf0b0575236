// Message boxes: the program thread asks, the window thread shows a modal box, the answer comes back through the queue.
#pragma once

#include <QMessageBox>
#include <QObject>
#include <QPointer>
#include <atomic>
#include <functional>

#include "desktop/entry_queue.h"
#include "platform/machine.h"

namespace desktop {

/// The box for a request: its icon, buttons and default button by the style. Not shown yet; `parent` owns it.
/// The keys of a box: Enter and Space press the marked button, arrows and Tab mark another one, Y and N answer a
/// question, Esc is No, else Cancel, else OK.
QMessageBox* makeMessageBox(const platform::MessageBoxRequest& request, QWidget* parent);

/// What the box was answered.
platform::Button answerOf(const QMessageBox& box);

class MessageBoxWindow final : public QObject, public platform::MessageBoxes {
    Q_OBJECT
 public:
    /// `queue` outlives the boxes. `publish` is called on the program thread before a box opens, so that the form
    /// behind it shows what the box speaks of.
    MessageBoxWindow(EntryQueue& queue, std::function<void()> publish);
    ~MessageBoxWindow() override;

    platform::Button show(const platform::MessageBoxRequest& request) override;

    /// Window thread: boxes open over this window.
    void setParentWindow(QWidget* parent) { parent_ = parent; }
    /// Window thread: the box on the screen, nullptr when there is none.
    QMessageBox* box() const { return box_; }
    /// A box was asked for and is not on the screen yet.
    bool opening() const { return opening_; }

 private:
    void open(const platform::MessageBoxRequest& request);

    EntryQueue& queue_;
    std::function<void()> publish_;
    QPointer<QWidget> parent_;
    QPointer<QMessageBox> box_;
    std::atomic<bool> opening_ = false;
};

}  // namespace desktop
