// Watches from the window thread whether the program takes its time over something, and shows it at the foot of the
// window. The program itself is not disturbed: nothing is served for it, and keys that are typed meanwhile wait.
#pragma once

#include <QObject>
#include <QTimer>
#include <chrono>
#include <optional>

#include "desktop/entry_queue.h"
#include "desktop/notice_line.h"
#include "platform/progress.h"

namespace desktop {

/// What is shown once the program has been busy for so long, with that work in hand. Nothing for short work.
std::optional<ProgressShown> progressToShow(std::chrono::nanoseconds busy,
                                            const std::optional<platform::WorkSeen>& work);

class ProgressWatch final : public QObject {
    Q_OBJECT
 public:
    /// Both outlive the watch.
    ProgressWatch(const EntryQueue& queue, NoticeLine& line);

    /// The program gets something to do. It is watched until it waits for the next entry.
    void wake();

 private:
    void look();

    const EntryQueue& queue_;
    NoticeLine& line_;
    QTimer timer_;
};

}  // namespace desktop
