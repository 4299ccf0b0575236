#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <csignal>

#include "desktop/termination_signals.h"

namespace desktop {

namespace {

constexpr std::array signalsToEnd = {SIGTERM, SIGINT, SIGHUP};

// A signal handler may do next to nothing: it writes one byte here, the window thread reads it.
std::array<int, 2> ends = {-1, -1};

extern "C" void passOn(int)
{
    const char byte = 1;
    const int interrupted = errno;
    // A full pipe means that the request is on its way already.
    [[maybe_unused]] const auto written = ::write(ends[1], &byte, 1);
    errno = interrupted;
}

void setHandlers(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (int number : signalsToEnd)
        ::sigaction(number, &action, nullptr);
}

}  // namespace

TerminationSignals::TerminationSignals(std::function<void()> asked) : asked_(std::move(asked))
{
    if (::pipe(ends.data()) != 0) return;
    for (int end : ends) {
        ::fcntl(end, F_SETFL, O_NONBLOCK);
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
    }
    auto* arrived = new QSocketNotifier(ends[0], QSocketNotifier::Read, this);
    connect(arrived, &QSocketNotifier::activated, this, [this] {
        std::array<char, 16> bytes{};
        while (::read(ends[0], bytes.data(), bytes.size()) > 0) {
        }
        asked_();
    });
    setHandlers(passOn);
}

TerminationSignals::~TerminationSignals()
{
    if (ends[0] < 0) return;
    setHandlers(SIG_DFL);
    qDeleteAll(children());
    for (int& end : ends) {
        ::close(end);
        end = -1;
    }
}

}  // namespace desktop
