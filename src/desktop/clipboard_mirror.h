// The text of the clipboard, which only the window thread may touch, mirrored for the program thread.
#pragma once

#include <QObject>
#include <mutex>

#include "platform/machine.h"

namespace desktop {

class ClipboardMirror final : public QObject, public platform::Clipboard {
    Q_OBJECT
 public:
    /// On the window thread.
    ClipboardMirror();

    std::string text() const override;
    void setText(const std::string& text) override;

 private:
    void takeOver();

    mutable std::mutex mutex_;
    std::string text_;
};

}  // namespace desktop
