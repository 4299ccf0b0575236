#include <QGuiApplication>
#include <QSessionManager>

#include "desktop/termination_signals.h"

namespace desktop {

/// The system asks when the user logs off or the computer is shut down. It is told to wait for the answer: who is in
/// the middle of a contest shall not lose the program to an update.
TerminationSignals::TerminationSignals(std::function<void()> asked) : asked_(std::move(asked))
{
    connect(
        qGuiApp, &QGuiApplication::commitDataRequest, this,
        [this](QSessionManager& session) {
            session.cancel();
            asked_();
        },
        Qt::DirectConnection);
}

TerminationSignals::~TerminationSignals() = default;

}  // namespace desktop
