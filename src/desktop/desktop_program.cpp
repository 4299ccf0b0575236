#include "desktop/desktop_program.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QScreen>

namespace desktop {

DesktopProgram::DesktopProgram(const CommandLine& commandLine)
    : machine_(commandLine, queue_, [this] { thread_.publish(); }),
      window_([this](const app::QueueEntry& entry) { post(entry); }),
      progress_(queue_, window_.noticeLine()),
      keyboard_(window_.form(), machine_.polledKeys(), [this](const app::QueueEntry& entry) { post(entry); }),
      thread_(queue_, *this, [this] { QMetaObject::invokeMethod(this, &DesktopProgram::close, Qt::QueuedConnection); })
{
    machine_.messageBoxes().setParentWindow(&window_);
    machine_.help().setParentWindow(&window_);
}

DesktopProgram::~DesktopProgram() = default;

void DesktopProgram::start(const std::string& notice)
{
    if (!notice.empty()) machine_.machine().notices.notice(notice);
    // The size first: where no window manager is, nobody else makes the window as large as the screen.
    if (const QScreen* screen = window_.screen()) window_.setGeometry(screen->availableGeometry());
    window_.showMaximized();
    window_.activateWindow();
    thread_.start(machine_.machine());
    progress_.wake();
}

void DesktopProgram::post(const app::QueueEntry& entry)
{
    queue_.post(entry);
    progress_.wake();
}

void DesktopProgram::askToEnd()
{
    post(app::CloseAsked{});
}

/// Program thread. Pictures that come faster than the window shows them are left out, but for the newest.
void DesktopProgram::publish(std::shared_ptr<const app::Picture> picture)
{
    const std::lock_guard lock(newestMutex_);
    const bool asked = newest_ != nullptr;
    newest_ = std::move(picture);
    if (!asked) QMetaObject::invokeMethod(this, &DesktopProgram::showNewest, Qt::QueuedConnection);
}

void DesktopProgram::showNewest()
{
    std::shared_ptr<const app::Picture> picture;
    {
        const std::lock_guard lock(newestMutex_);
        picture.swap(newest_);
    }
    if (!picture) return;
    window_.setPicture(picture);
    keyboard_.setMenuLetters(window_.menuLetters());
}

void DesktopProgram::close()
{
    ended_ = true;
    window_.closeForGood();
    Q_EMIT finished();
}

bool DesktopProgram::settled() const
{
    if (ended_) return true;
    if (!queue_.idle() || keyboard_.holdsRelease() || machine_.messageBoxes().opening()) return false;
    const std::lock_guard lock(newestMutex_);
    return newest_ == nullptr;
}

bool DesktopProgram::waitUntilIdle(std::chrono::milliseconds limit)
{
    const QDeadlineTimer deadline(limit);
    constexpr int turnMilliseconds = 5;
    // Showing a picture leaves work for the next turn, as laying out the menu bar: so two quiet turns.
    int quietTurns = 0;
    do {
        QCoreApplication::processEvents(QEventLoop::AllEvents, turnMilliseconds);
        quietTurns = settled() ? quietTurns + 1 : 0;
    } while (quietTurns < 2 && !deadline.hasExpired());
    return quietTurns == 2;
}

}  // namespace desktop
