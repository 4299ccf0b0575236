#include "key_watch.h"

#include <QCoreApplication>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <utility>

#include "figure.h"

namespace bench {

namespace {

constexpr int betweenLooks = 1;
constexpr int betweenBeats = 5;
constexpr double stall = 50;

/// Milliseconds of the clock that the X server stamps its events with, too.
double nowMilliseconds()
{
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/// When the server got the key, if its stamp makes sense, else when it came in here.
double momentOf(const QKeyEvent& key)
{
    constexpr double longestWay = 10000;
    const double now = nowMilliseconds();
    const auto stamped = static_cast<double>(key.timestamp());
    return stamped <= now && stamped > now - longestWay ? stamped : now;
}

int stallsIn(const std::vector<double>& times)
{
    return static_cast<int>(std::count_if(times.begin(), times.end(), [](double time) { return time > stall; }));
}

void tellTimes(const std::string& name, const std::vector<double>& times)
{
    std::printf("%-28s %6zu: median %7.2f   99%% %7.2f   worst %7.2f   above %.0f ms: %d\n", name.c_str(), times.size(),
                quantile(times, 0.5), quantile(times, 0.99), quantile(times, 1), stall, stallsIn(times));
    tellFigure(name + ".median", quantile(times, 0.5), "ms");
    tellFigure(name + ".99", quantile(times, 0.99), "ms");
    tellFigure(name + ".worst", quantile(times, 1), "ms");
    tellFigure(name + ".stalls", stallsIn(times), "stalls");
}

}  // namespace

KeyWatch::KeyWatch(QObject& receiver, Question listening, Question settled)
    : receiver_(receiver), listening_(std::move(listening)), settled_(std::move(settled)), lastBeat_(nowMilliseconds())
{
    // The program takes its keys at the same place, and those that come later look first.
    qApp->installEventFilter(this);
    looks_.setTimerType(Qt::PreciseTimer);
    beats_.setTimerType(Qt::PreciseTimer);
    connect(&looks_, &QTimer::timeout, this, &KeyWatch::look);
    connect(&beats_, &QTimer::timeout, this, &KeyWatch::beat);
    beats_.start(betweenBeats);
}

bool KeyWatch::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &receiver_ && event->type() == QEvent::KeyPress) wentDown(static_cast<const QKeyEvent&>(*event));
    return QObject::eventFilter(watched, event);
}

/// A letter with Alt leads to another page or a box, which is no typing.
void KeyWatch::wentDown(const QKeyEvent& key)
{
    if (!listening_() || key.key() == Qt::Key_Alt || key.modifiers().testFlag(Qt::AltModifier)) return;
    pending_.push_back({momentOf(key), key.key() == Qt::Key_Return});
    if (firstKey_ == 0) firstKey_ = pending_.back().at;
    lastKey_ = pending_.back().at;
    quietLooks_ = 0;
    if (!looks_.isActive()) looks_.start(betweenLooks);
}

/// What was shown in the turn before this one is painted by now: so two quiet looks.
void KeyWatch::look()
{
    quietLooks_ = settled_() ? quietLooks_ + 1 : 0;
    if (quietLooks_ < 2) return;
    looks_.stop();
    finishPending(nowMilliseconds());
}

/// Keys that came behind one that logs had to wait for the disk, so they are counted apart.
void KeyWatch::finishPending(double now)
{
    std::vector<double>* times = &keys_;
    for (const Pressed& key : std::exchange(pending_, {})) {
        if (key.commits) {
            commits_.push_back(now - key.at);
            times = &behind_;
        } else {
            times->push_back(now - key.at);
        }
    }
}

void KeyWatch::beat()
{
    // As long as there is typing.
    constexpr double pause = 500;
    const double now = nowMilliseconds();
    const double gap = now - std::exchange(lastBeat_, now);
    if (now - lastKey_ < pause) gaps_.push_back(gap);
}

void KeyWatch::tell() const
{
    const double seconds = (lastKey_ - firstKey_) / 1000;
    const auto all = static_cast<double>(keys_.size() + commits_.size() + behind_.size());
    std::printf("%.0f keys in %.0f seconds, %.1f a second\n", all, seconds, seconds > 0 ? all / seconds : 0);
    tellTimes("keys", keys_);
    tellTimes("commits", commits_);
    tellTimes("keys_behind_a_commit", behind_);
    tellTimes("turns_of_the_event_loop", gaps_);
    tellFigure("keys_a_second", seconds > 0 ? all / seconds : 0, "keys");
    tellFigure("commits.count", static_cast<double>(commits_.size()), "QSOs");
}

}  // namespace bench
