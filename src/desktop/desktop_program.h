// The desktop program as a whole: window, machine and program thread. Tests build it on a platform without a screen.
#pragma once

#include <QMessageBox>
#include <QObject>
#include <atomic>
#include <chrono>
#include <memory>
#include <mutex>

#include "desktop/desktop_machine.h"
#include "desktop/entry_queue.h"
#include "desktop/keyboard.h"
#include "desktop/main_window.h"
#include "desktop/program_thread.h"
#include "desktop/progress_watch.h"

namespace desktop {

class DesktopProgram final : public QObject, private app::PictureSink {
    Q_OBJECT
 public:
    /// On the window thread, with a QApplication. One at a time.
    explicit DesktopProgram(const CommandLine& commandLine);

    /// Takes the program away as a kill would, when it has not ended by itself.
    ~DesktopProgram() override;

    /// Opens the window over the whole screen and starts the program, with a notice if there is something to tell.
    void start(const std::string& notice = {});

    /// Asks the program to end, as the close button does.
    void askToEnd();

    /// The program has ended by itself, and its window is closed.
    bool ended() const { return ended_; }

    MainWindow& window() { return window_; }
    FormView& form() { return window_.form(); }
    /// The picture on the screen.
    const app::Picture& picture() { return window_.form().picture(); }
    /// The message box on the screen, nullptr when there is none.
    QMessageBox* box() const { return machine_.messageBoxes().box(); }
    platform::Machine& machine() { return machine_.machine(); }
    HelpFile& help() { return machine_.help(); }

    /// Posts an entry as the window does.
    void post(const app::QueueEntry& entry);

    /// The program waits, for an entry or for the answer of a box, with everything before handled and shown.
    bool settled() const;

    /// Turns the event loop until the program waits, for an entry or for the answer of a box, with everything before
    /// handled and shown. False when that has not come about after `limit`.
    bool waitUntilIdle(std::chrono::milliseconds limit = std::chrono::seconds(30));

 Q_SIGNALS:
    /// The program has ended and its window is closed.
    void finished();

 private:
    void publish(std::shared_ptr<const app::Picture> picture) override;
    void showNewest();
    void close();

    EntryQueue queue_;
    mutable DesktopMachine machine_;
    MainWindow window_;
    ProgressWatch progress_;
    Keyboard keyboard_;
    mutable std::mutex newestMutex_;
    std::shared_ptr<const app::Picture> newest_;  ///< not shown yet, nullptr when it is
    bool ended_ = false;
    ProgramThread thread_;  // last: it uses all the others until it is gone
};

}  // namespace desktop
