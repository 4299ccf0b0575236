#include "desktop/progress_watch.h"

#include <QLocale>

#include "desktop/characters.h"

namespace desktop {

namespace {

using namespace std::chrono_literals;

/// Before that an operator takes it for nothing.
constexpr auto patience = 400ms;
/// Nobody says what it is: then a little later, since more often than not it is over by then.
constexpr auto patienceWithTheUnknown = 800ms;
constexpr auto betweenLooks = 100ms;

/// "12,000"
QString grouped(long number)
{
    return QLocale(QLocale::English).toString(static_cast<qlonglong>(number));
}

}  // namespace

std::optional<ProgressShown> progressToShow(std::chrono::nanoseconds busy,
                                            const std::optional<platform::WorkSeen>& work)
{
    if (busy < (work ? patience : patienceWithTheUnknown)) return std::nullopt;
    if (!work) return ProgressShown{QStringLiteral("Working …")};
    if (work->what.empty()) return std::nullopt;
    const QString what = toolkitText(work->what);
    if (work->total > 0)
        return ProgressShown{what + QStringLiteral(" %1 of %2").arg(grouped(work->done), grouped(work->total)),
                             static_cast<double>(work->done) / static_cast<double>(work->total)};
    if (work->done > 0) return ProgressShown{what + QLatin1Char(' ') + grouped(work->done)};
    return ProgressShown{what + QStringLiteral(" …")};
}

ProgressWatch::ProgressWatch(const EntryQueue& queue, NoticeLine& line) : queue_(queue), line_(line)
{
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &ProgressWatch::look);
}

void ProgressWatch::wake()
{
    if (!timer_.isActive()) timer_.start(patience);
}

void ProgressWatch::look()
{
    line_.setProgress(progressToShow(queue_.busyFor(), platform::presentWork()));
    if (!queue_.waitsForEntry()) timer_.start(betweenLooks);
}

}  // namespace desktop
