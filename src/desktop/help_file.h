// The help file of the program, and the window that shows it.
#pragma once

#include <QObject>
#include <QPointer>
#include <filesystem>
#include <string>

#include "desktop/help_window.h"
#include "platform/machine.h"

namespace desktop {

class HelpFile final : public QObject, public platform::HelpViewer {
    Q_OBJECT
 public:
    /// On the window thread. The help file is looked for in `programFolder`, then in `executableFolder` (empty for
    /// none). `notices` outlives the viewer. Nothing is read before the help is asked for.
    HelpFile(std::string programFolder, std::string executableFolder, platform::Notices& notices);
    ~HelpFile() override;

    /// Program thread: looks for the file and goes on at once, the window opens by itself. A missing file gives a
    /// notice.
    void open(int context) override;

    /// Window thread: the help opens over this window, and its keys go back to it.
    void setParentWindow(QWidget* parent) { parent_ = parent; }
    /// Window thread: the help window, nullptr before the help was asked for.
    HelpWindow* window() const { return window_; }

 Q_SIGNALS:
    /// The window is on the screen with what belongs to a context number.
    void opened(int context);

 private:
    void show(const std::filesystem::path& file, int context);

    std::string programFolder_;
    std::string executableFolder_;
    platform::Notices& notices_;
    QPointer<QWidget> parent_;
    QPointer<HelpWindow> window_;
    std::filesystem::path shown_;  ///< the file in the window
};

}  // namespace desktop
