// Signals that ask the program to end, brought to the window thread.
#pragma once

#include <QObject>
#include <functional>

namespace desktop {

/// Calls `asked` on the window thread whenever the system asks the program to end. One at a time. Where the system
/// has no such signals it does nothing: there the window is closed instead.
class TerminationSignals final : public QObject {
    Q_OBJECT
 public:
    explicit TerminationSignals(std::function<void()> asked);
    ~TerminationSignals() override;

 private:
    std::function<void()> asked_;
};

}  // namespace desktop
