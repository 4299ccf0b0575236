// Watches a window while it is typed into: how long from a key until everything that it did is painted, and how long
// the window thread ever was away from its events.
#pragma once

#include <QKeyEvent>
#include <QObject>
#include <QTimer>
#include <functional>
#include <vector>

namespace bench {

class KeyWatch final : public QObject {
    Q_OBJECT
 public:
    using Question = std::function<bool()>;

    /// Keys come to `receiver` and count while `listening`. `settled` says whether all keys before have been handled
    /// and shown.
    KeyWatch(QObject& receiver, Question listening, Question settled);

    /// Tells what was seen as figures, in milliseconds.
    void tell() const;

 private:
    struct Pressed {
        double at = 0;  ///< milliseconds of the monotonic clock
        bool commits = false;
    };

    bool eventFilter(QObject* watched, QEvent* event) override;
    void wentDown(const QKeyEvent& key);
    void look();
    void finishPending(double now);
    void beat();

    QObject& receiver_;
    Question listening_;
    Question settled_;
    QTimer looks_;
    QTimer beats_;
    std::vector<Pressed> pending_;
    int quietLooks_ = 0;
    double lastBeat_ = 0;
    std::vector<double> keys_;     ///< from a key to its picture
    std::vector<double> commits_;  ///< the same of a key that logs a QSO
    std::vector<double> behind_;   ///< of keys that came while a QSO was being logged
    std::vector<double> gaps_;     ///< between two turns of the event loop that were asked for 5 ms apart
    double firstKey_ = 0;
    double lastKey_ = 0;
};

}  // namespace bench
